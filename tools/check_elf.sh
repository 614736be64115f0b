#!/usr/bin/env bash
# Checks the ELF files of packages: our programs must be hardened, no file may look for libraries outside the package,
# and whatever the portable archive needs must be in it or on its host.
#
#   tools/check_elf.sh FILE...    Debian packages and portable archives
set -euo pipefail

host=$(grep '^[a-z]' "$(dirname "${BASH_SOURCE[0]}")/../packaging/host_libraries.txt")

failures=0
fail() {
  echo "$1" >&2
  failures=$((failures + 1))
}

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# Reports each missing protection: check_hardening NAME FILE
check_hardening() {
  local name=$1 file=$2
  # Kept as texts: grep -q would break a pipe at its first match.
  local header segments dynamic symbols code
  header=$(readelf -Wh "$file")
  segments=$(readelf -Wl "$file")
  dynamic=$(readelf -Wd "$file")
  symbols=$(readelf -W --dyn-syms "$file")
  code=$(objdump -d --no-show-raw-insn "$file")
  grep -q 'Type: *DYN' <<<"$header" && grep -q 'Flags:.*PIE' <<<"$dynamic" || fail "$name: not position-independent"
  grep -q 'GNU_RELRO' <<<"$segments" && grep -q 'BIND_NOW\|Flags:.*NOW' <<<"$dynamic" || fail "$name: no full RELRO"
  grep -q '__stack_chk_fail' <<<"$symbols" || fail "$name: no stack protector"
  grep -q '__[a-z]*_chk@' <<<"$symbols" || fail "$name: no FORTIFY"
  # The library's own objects have a few; in ours every function that may be an indirect jump target begins with it.
  [ "$(grep -c 'endbr64' <<<"$code")" -gt 1000 ] || fail "$name: no control-flow protection"
}

# For every ELF file: check_file NAME FILE FOLDER
check_file() {
  local name=$1 file=$2 root=$3 path folder
  # Without this segment the stack is executable.
  readelf -Wl "$file" | grep 'GNU_STACK' | grep -q ' RW ' || fail "$name: the stack can be executed"
  path=$(readelf -Wd "$file" | sed -n 's/.*\(RUNPATH\|RPATH\).*\[\(.*\)\]/\2/p')
  [ -n "$path" ] || return 0
  folder=$(realpath -m "${path/#'$ORIGIN'/$(dirname "$file")}")
  [[ $path != *:* && $path == '$ORIGIN'* && $folder/ == "$root"/* ]] || fail "$name: looks for libraries in $path"
}

# Every library that a file of the archive needs must be in it or on the host: check_needs NAME FILE FOLDER
check_needs() {
  local name=$1 file=$2 root=$3 library
  for library in $(readelf -Wd "$file" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p'); do
    [ -e "$root/lib/$library" ] || grep -qxF "${library%%.so*}" <<<"$host" || fail "$name: needs $library, which is neither in the archive nor on the host"
  done
}

count=0
for package in "$@"; do
  root=$folder/$(basename "$package")
  mkdir "$root"
  case "$package" in
    *.deb) dpkg-deb -x "$package" "$root" ;;
    *) tar -xJf "$package" --strip-components=1 -C "$root" ;;
  esac
  programs=0
  while IFS= read -r -d '' file; do
    [ "$(head -c 4 "$file" | od -An -c | tr -d ' ')" = '177ELF' ] || continue
    name="$(basename "$package"): ${file#"$root"/}"
    count=$((count + 1))
    check_file "$name" "$file" "$root"
    case "$(basename "$file")" in
      quillon | quillon-cli)
        programs=$((programs + 1))
        check_hardening "$name" "$file"
        ;;
    esac
    [[ $package == *.deb ]] || check_needs "$name" "$file" "$root"
  done < <(find "$root" -type f -print0)
  [ "$programs" -eq 2 ] || fail "$package: $programs programs instead of 2"
done
[ "$failures" -eq 0 ] || exit 1
echo "$count ELF files checked"
