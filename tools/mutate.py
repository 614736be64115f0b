#!/usr/bin/env python3
"""Changes one operator, constant or comparison of the logic at a time and reports whether the folder's tests fail.

    tools/mutate.py                   200 changes, the same ones as long as their lines stay as they are
    tools/mutate.py -n 50 --seed 7    others
    tools/mutate.py --folder hand     in one folder only

It works on a copy of the source in build/mutation, so the source itself is never changed. A change that does not
compile does not count, and the next one takes its place. A test that does not end, or takes too much memory, has
noticed. Prints a line for each change, those that nobody noticed once more, and the share; fails where it is below
90%.
"""

import argparse
import hashlib
import pathlib
import re
import resource
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = ["support", "hand", "ranges", "analysis", "results", "study", "shell"]
LEFT_OUT = {"hand/equity_rows.cpp"}  # constant data; sources for Windows are not built here either
LONGEST_BUILD = 900  # seconds
LONGEST_TEST = 300
LARGEST_TEST = 4 << 30  # bytes of address space

SWAPS = {
    " < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ", " != ": " == ",
    " && ": " || ", " || ": " && ", " + ": " - ", " - ": " + ", " * ": " / ", " / ": " * ",
    " += ": " -= ", " -= ": " += ", "++": "--", "true": "false", "false": "true",
}
# String literals, characters and comments come first, so that nothing within them matches.
TOKEN = re.compile(
    r'(?P<skip>//[^\n]*|^\s*#[^\n]*|R"\(.*?\)"|"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])*\')'
    r"|(?P<number>(?<![\w.])\d+(?:\.\d+)?(?![\w.']))"
    r"|(?P<not>!(?=[\w(]))"
    r"|(?P<word>\b(?:true|false)\b)"
    r"|(?P<step>\+\+)"
    r"|(?P<operator> (?:<=|>=|==|!=|&&|\|\||\+=|-=|<|>|\+|-|\*|/) )",
    re.MULTILINE | re.DOTALL)


def changes_of(path):
    """All changes to one file: (offset, old text, new text)."""
    text = (ROOT / path).read_text()
    for match in TOKEN.finditer(text):
        old = match.group()
        line = text[text.rfind("\n", 0, match.start()) + 1:text.find("\n", match.start())]
        if match.lastgroup == "skip" or "static_assert" in line:
            continue
        if match.lastgroup == "number":
            new = str(int(old) + 1) if old.isdigit() else str(float(old) + 1)
        elif match.lastgroup == "not":
            new = ""
        else:
            new = SWAPS[old]
        yield path, match.start(), old, new


def sources(folders):
    for folder in folders:
        for path in sorted((ROOT / folder).glob("*.cpp")):
            name = f"{folder}/{path.name}"
            if not name.endswith(("_test.cpp", "_windows.cpp")) and name not in LEFT_OUT:
                yield name


def copy_source(copy):
    """Updates the copy; unchanged files keep their time, so that little is rebuilt."""
    listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard"], cwd=ROOT, check=True,
                            capture_output=True, text=True).stdout.splitlines()
    for name in listed:
        source, target = ROOT / name, copy / name
        if not source.is_file():
            continue
        if not target.is_file() or target.read_bytes() != source.read_bytes():
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(source, target)


def build(tree, targets):
    try:
        return subprocess.run(["ninja", "-C", str(tree), *targets], capture_output=True, text=True,
                              timeout=LONGEST_BUILD)
    except subprocess.TimeoutExpired:
        sys.exit("a build takes too long")


def passes(tree, folder):
    """Whether the folder's tests pass; a test that hangs or takes too much memory fails."""
    try:
        run = subprocess.run([str(tree / "bin" / f"{folder}_test"), "--gtest_brief=1", "--gtest_fail_fast"], cwd=tree,
                             stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                             timeout=LONGEST_TEST,
                             preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (LARGEST_TEST, LARGEST_TEST)))
        return run.returncode == 0
    except subprocess.TimeoutExpired:
        return False


def shown(path, offset, old, new):
    text = (ROOT / path).read_text()
    start = text.rfind("\n", 0, offset) + 1
    end = text.find("\n", offset)
    line = text[start:offset] + "[" + old.strip() + " -> " + new.strip() + "]" + text[offset + len(old):end]
    return f"{path}:{text.count(chr(10), 0, offset) + 1}: {line.strip()}"


def drawn_place(seed, path, offset, old, _new):
    """A random number that does not depend on the line number of the change."""
    text = (ROOT / path).read_text()
    start = text.rfind("\n", 0, offset) + 1
    before = text[start:offset].lstrip()
    after = text[offset:text.find("\n", offset)]
    return hashlib.sha256(repr((seed, path, before, old, after)).encode()).hexdigest()


def try_change(copy, tree, change):
    """True if the tests fail, False if they pass, None if it does not compile."""
    path, offset, old, new = change
    target = copy / path
    text = target.read_text()
    folder = path.split("/")[0]
    target.write_text(text[:offset] + new + text[offset + len(old):])
    try:
        if build(tree, [f"{folder}_test"]).returncode != 0:
            return None
        return not passes(tree, folder)
    finally:
        target.write_text(text)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("-n", type=int, default=200, help="how many changes")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--folder", choices=FOLDERS, action="append")
    options = parser.parse_args()
    folders = options.folder or FOLDERS

    copy = ROOT / "build" / "mutation" / "source"
    tree = ROOT / "build" / "mutation" / "build"
    copy_source(copy)
    subprocess.run(["cmake", "-S", str(copy), "-B", str(tree), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                    "-DQUILLON_GUI=OFF", "-DQUILLON_BENCH=OFF"], check=True, stdout=subprocess.DEVNULL)
    built = build(tree, [f"{folder}_test" for folder in folders])
    if built.returncode != 0:
        sys.exit(built.stdout)
    for folder in folders:
        if not passes(tree, folder):
            sys.exit(f"{folder}_test fails without any change")

    changes = [change for path in sources(folders) for change in changes_of(path)]
    changes.sort(key=lambda change: drawn_place(options.seed, *change))
    noticed, survivors = 0, []
    for change in changes:
        if noticed + len(survivors) == options.n:
            break
        result = try_change(copy, tree, change)
        if result is None:
            continue
        noticed += result
        print("noticed " if result else "SURVIVED", shown(*change), flush=True)
        if not result:
            survivors.append(shown(*change))

    tried = noticed + len(survivors)
    share = 100 * noticed / max(tried, 1)
    print(f"\n{len(survivors)} of {tried} changes went unnoticed:")
    for line in survivors:
        print("  " + line)
    print(f"noticed: {noticed} of {tried}, {share:.1f}%")
    return 0 if share >= 90 else 1


if __name__ == "__main__":
    sys.exit(main())
