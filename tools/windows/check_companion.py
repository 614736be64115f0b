"""Compares the answers of the companion for Windows with those of this system's, byte for byte.

Started by check_companion.sh in a folder with quillon-cli, quillon-cli.exe, Ranges and run.sh. Questions are made up at
random, the same at every run. A question that changes files is asked of each companion in a folder of its own, and the
files are compared in the end.
"""

import concurrent.futures
import fcntl
import os
import pathlib
import random
import re
import select
import shutil
import subprocess
import sys
import termios
import time

NAMES = ["Käse und 漢字", "Button Shove", "Big Blind Call", "Everything", "Tight Open", "Größe", "v1.5"]
UNKNOWN = ["Tight Opne", "漢", "nobody", "../Ranges/Everything"]
HANDS = ["any", "top 15%", "88+,ATs+,KQ:0.5", "22+,A2s+,KT+", "76s-54s:0.5,AA", "top 0.5%", "AKo", "KK-TT,A5s"]
BAD_HANDS = ["AX", "top 101%", "", "88+,", "AA:2", "…", "72o-"]
AMOUNTS = ["1", "1.5", "0.5", "9", "150", "=150+75-25", "$20", "0.1", "1e3", "33.333333"]
BAD_AMOUNTS = ["", "-5", "x", "=1/0", "1e400", "=" + "9" * 400 + "+1", "１"]
FORMATS = ["plain", "2+2", "table", "csv", "json", "html", "svg"]


class Questions:
    def __init__(self, seed):
        self.random = random.Random(seed)

    def amount(self):
        return self.random.choice(AMOUNTS if self.random.random() < 0.93 else BAD_AMOUNTS)

    def range(self, prefix=""):
        """A range by name or notation, rarely a missing or invalid one."""
        if self.random.random() < 0.4:
            return [f"--{prefix}range", self.random.choice(NAMES if self.random.random() < 0.93 else UNKNOWN)]
        return [f"--{prefix}hands", self.random.choice(HANDS if self.random.random() < 0.93 else BAD_HANDS)]

    def format(self, formats):
        if self.random.random() < 0.02:
            return ["--format", "gíf"]
        return ["--format", self.random.choice(formats)] if self.random.random() < 0.85 else []

    def hands(self):
        return ["--hand", *self.random.sample(["AA", "AKs", "72o", "K9o", "Xx"], 2)] if self.random.random() < 0.2 else []

    def sweep(self, options):
        """Turns one of the amounts into steps."""
        index = self.random.randrange(1, len(options), 2)
        options[index] = self.random.choice(["1:9:2", "5:20:5", "0.5:2:0.5", "3:1:1", "1:2"])
        return options

    def amounts(self, *names):
        return [part for name in names for part in (f"--{name}", self.amount())]

    def line(self):
        """A line of a batch."""
        mode = self.random.choice(["call", "raise", "equity", "rise"])
        parts = [f'"id":{self.random.randrange(1000)}', f'"mode":"{mode}"']
        for amount in {"call": ["pot", "call"], "raise": ["pot", "call", "shove"]}.get(mode, []):
            parts.append(f'"{amount}":"{self.amount()}"')
        hands = self.random.choice(HANDS)
        parts.append(f'"hands":"{hands}"')
        if mode == "raise":
            parts.append('"calling_range":"Käse und 漢字"')
        return "{" + ",".join(parts) + "}"

    def question(self):
        """A command line, and its typed input."""
        command = self.random.choice(
            ["raise", "call", "equity", "limits", "sweep", "balance", "matrix", "notation", "chart", "batch", "summary",
             "ranges", "save", "help", "wrong"])
        if command == "raise":
            return ["raise", *self.amounts("pot", "call", "shove"), *self.range(), *self.range("calling-"),
                    *self.format(FORMATS), *self.hands()], ""
        if command == "call":
            return ["call", *self.amounts("pot", "call"), *self.range(), *self.format(FORMATS), *self.hands()], ""
        if command == "equity":
            return ["equity", *self.range(), *self.format(FORMATS), *self.hands()], ""
        if command == "limits":
            mode = self.random.choice(["call", "raise"])
            more = ["--call", self.amount(), *self.range("calling-")] if mode == "raise" else []
            return ["limits", mode, "--pot", self.amount(), *more, *self.range(),
                    *self.format(["grid", "csv", "json", "html", "svg"])], ""
        if command == "sweep":
            mode = self.random.choice(["call", "raise"])
            amounts = self.amounts("pot", "call", *(["shove"] if mode == "raise" else []))
            more = self.range("calling-") if mode == "raise" else []
            return ["sweep", mode, *self.sweep(amounts), *self.range(), *more,
                    *self.format(["table", "csv", "json", "svg"]), *self.hands()], ""
        if command == "balance":
            return ["balance", *self.amounts("pot", "call", "shove"), *(self.range() if self.random.random() < 0.5 else []),
                    *self.format(["plain", "json"])], ""
        if command == "matrix":
            return ["matrix", *self.format(["csv", "json"])], ""
        if command == "chart":
            start = self.random.choice(["5", "9.5", "15"])
            return ["chart", "--from", start, "--to", "17", "--step", self.random.choice(["2", "0.5"]),
                    *self.format(["grid", "csv", "json", "html", "svg"])], ""
        if command == "batch":
            lines = "".join(self.line() + self.random.choice(["\n", "\r\n"]) for _ in range(self.random.randrange(30)))
            fields = self.random.choice([[], ["--fields", "best,ev,equity"], ["--fields", "hand"]])
            return ["batch", *self.random.choice([[], ["-"]]), *fields, "--jobs", "2"], lines
        if command in ("notation", "summary"):
            if self.random.random() < 0.2:
                return [command, "--hands", "-"], self.random.choice(HANDS) + "\r\n"
            return [command, *self.range()], ""
        if command == "ranges":
            return ["ranges"], ""
        if command == "save":
            name = self.random.choice(["Neu 漢", "Größe", "Temp Range1", "a/b", 'a"b', "a?", ""])
            replace = ["--replace"] if self.random.random() < 0.5 else []
            return ["save", name, "--hands", self.random.choice(HANDS), *replace], ""
        if command == "help":
            return [self.random.choice(["--help", "--version", "help"])], ""
        return [self.random.choice(["", "shove", "--quick", "räise", "call"])], ""


class Companion:
    """One of the two companions, in a folder of its own with its ranges, which is not the current one."""

    def __init__(self, kind, program, start):
        self.root = pathlib.Path(f"{kind} Käse & 漢字").absolute()
        (self.root / "Elsewhere").mkdir(parents=True)
        self.folder = self.root / "Quillon ½"
        shutil.copytree("Ranges", self.folder / "Ranges")
        text = (self.folder / "Ranges" / "Tight Open.txt").read_bytes()
        for name in ("Käse und 漢字", "Größe", "v1.5"):
            (self.folder / "Ranges" / f"{name}.txt").write_bytes(text)
        (self.folder / "Ranges" / "broken.txt").write_bytes(b"no range")
        self.program = self.folder / program
        shutil.copy(program, self.program)
        self.start = [*start, str(self.program)]

    def ask(self, arguments, typed=""):
        done = subprocess.run([*self.start, *arguments], input=typed.encode(), capture_output=True,
                              cwd=self.root / "Elsewhere", check=False, timeout=60)
        return done.returncode, self.plain(done.stdout), self.plain(done.stderr)

    def at_a_terminal(self, arguments, output=None, typed=b"", pressed=b""):
        """The exit status and what the terminal shows. With `output` answers go to that file. Types `typed` until there are
        some, since Wine's console loses early input, and then `pressed`."""
        ours, theirs = os.openpty()
        process = subprocess.Popen([*self.start, *arguments], stdin=theirs, stdout=output or theirs, stderr=theirs,
                                   cwd=self.root / "Elsewhere", start_new_session=True,
                                   preexec_fn=lambda: fcntl.ioctl(0, termios.TIOCSCTTY, 0))
        os.close(theirs)
        shown = b""
        next_time = time.monotonic()
        limit = next_time + 60
        while process.poll() is None:
            if time.monotonic() > limit:
                process.kill()
            if pressed and os.fstat(output.fileno()).st_size > 0:
                os.write(ours, pressed)
                typed = pressed = b""
            if typed and time.monotonic() >= next_time:
                os.write(ours, typed)
                next_time += 3
            if select.select([ours], [], [], 0.05)[0]:
                try:
                    shown += os.read(ours, 65536)
                except OSError:  # the other end is closed
                    break
        while select.select([ours], [], [], 1)[0]:  # another process, such as Wine's console, may still be writing
            try:
                shown += os.read(ours, 65536)
            except OSError:
                break
        os.close(ours)
        return process.wait(60), shown

    def interrupted_batch(self, *file, typed=b""):
        """The exit status and the answers of a batch that is ended by Ctrl+C after the first ones."""
        with open(self.root / "answers", "w+b") as answers:
            status, _ = self.at_a_terminal(["batch", "--jobs", "2", *file], answers, typed, b"\x03")
            answers.seek(0)
            return status, answers.read()

    def plain(self, text):
        """The text with paths below the root in this system's form."""
        root = rb"(?:Z:)?" + rb"[/\\]".join(re.escape(name) for name in str(self.root).encode().split(b"/"))
        return re.sub(root + rb"([^\n\"<>|:]*)", lambda path: b"ROOT" + path[1].replace(b"\\", b"/"), text)

    def files(self):
        return {str(path.relative_to(self.folder)): path.read_bytes() for path in (self.folder / "Ranges").iterdir()}


def told(answer):
    return answer if len(str(answer)) < 1500 else str(answer)[:1500] + "..."


def main():
    ours = Companion("Linux", "quillon-cli", [])
    theirs = Companion("Windows", "quillon-cli.exe", [str(pathlib.Path("run.sh").absolute())])
    questions = Questions(20240501)
    asked = [questions.question() for _ in range(int(sys.argv[1]))]
    failures = []

    def compare(question):
        arguments, typed = question
        mine, other = ours.ask(arguments, typed), theirs.ask(arguments, typed)
        if mine != other:
            failures.append(f"{arguments} {typed!r}\n  here:    {told(mine)}\n  Windows: {told(other)}")
        return mine[0]

    # Commands that write run in order.
    writing = [question for question in asked if question[0][0] == "save"]
    reading = [question for question in asked if question[0][0] != "save"]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as threads:
        statuses = list(threads.map(compare, reading))
    statuses += [compare(question) for question in writing]
    if ours.files() != theirs.files():
        failures.append(f"files differ: {sorted(ours.files())} {sorted(theirs.files())}")

    # A folder that cannot be written, and one that does not exist.
    for companion in (ours, theirs):
        for folder in (companion.folder, companion.folder / "Ranges"):
            folder.chmod(0o555)
    for arguments in (["save", "Neu", "--hands", "AA"], ["balance", "--pot", "2", "--call", "1", "--shove", "9",
                                                       "--save-shove", "a", "--save-call", "b"]):
        statuses.append(compare((arguments, "")))
        if statuses[-1] != 1:
            failures.append(f"{arguments} was not refused in a folder that cannot be written")
    for companion in (ours, theirs):
        for folder in (companion.folder, companion.folder / "Ranges"):
            folder.chmod(0o755)
    mine, other = (companion.ask(["ranges", "--folder", f"{companion.root}/nowhere"]) for companion in (ours, theirs))
    statuses.append(mine[0])
    if mine != other:
        failures.append(f"a folder that is not there:\n  here:    {mine}\n  Windows: {other}")

    # Ctrl+C in the middle of a batch, and while it waits for the next typed line.
    lines = b"".join(b'{"id":%d,"mode":"equity","hands":"any"}\n' % line for line in range(200000))
    for companion in (ours, theirs):
        (companion.root / "lines").write_bytes(lines)
    (status, some), (other, more) = (companion.interrupted_batch(f"{companion.root}/lines") for companion in (ours, theirs))
    some, more = sorted((some, more), key=len)
    if (status, other) != (130, 130) or not some.endswith(b"\n") or not more.startswith(some) or not more.endswith(b"\n"):
        failures.append(f"Ctrl+C: {status} {some[-200:]} {other} {more[-200:]}")
    if more.count(b"\n") == lines.count(b"\n"):
        failures.append("Ctrl+C came too late")
    typed = '{"id":"Käse 漢","mode":"equity","hands":"AA"}\r'.encode()
    mine, other = (companion.interrupted_batch(typed=typed) for companion in (ours, theirs))
    if (mine[0], other[0]) != (130, 130) or {*mine[1].splitlines()} != {*other[1].splitlines()} or b"\xc3\xa4" not in mine[1]:
        failures.append(f"a line that is typed:\n  here:    {told(mine)}\n  Windows: {told(other)}")

    # A console gets whole characters. It writes spaces as cursor moves.
    _, shown = theirs.at_a_terminal(["ranges"])
    if "Käseund漢字".encode() not in re.sub(rb"\x1b\[[?0-9;]*[A-Za-z]| ", b"", shown):
        failures.append(f"the ranges on a console: {shown[:1500]}")

    # Names that only Windows refuses.
    before = theirs.files()
    for name in ("CON", "nul.x", "LPT¹", "a.", "a ", "a|b"):
        status, output, errors = theirs.ask(["save", name, "--hands", "AA"])
        if (status, output) != (3, b"") or b"Windows" not in errors:
            failures.append(f"Windows took the name {name!r}: {status} {errors}")
    if theirs.files() != before:
        failures.append("a name that Windows refuses left a file")

    for failure in failures:
        print(failure)
    counts = {status: statuses.count(status) for status in sorted(set(statuses))}
    print(f"{len(statuses)} questions, exit statuses {counts}, {len(failures)} differences")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
