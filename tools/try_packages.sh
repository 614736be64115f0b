#!/usr/bin/env bash
# Tries the packages in dist/ on a bare Debian 12 without Qt: as root, in a few minutes.
#
#   tools/try_packages.sh portable   the portable archive, in a folder with spaces and umlauts in its name
#   tools/try_packages.sh installed  the Debian package: installed, used, replaced by a higher version, removed, purged
#   tools/try_packages.sh same       makes both packages twice, in two folders, and compares them
#   tools/try_packages.sh            all of it
#
# The bare system is made once, in build/bare. It uses a virtual screen of this machine.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."

[ "$(id -u)" -eq 0 ] || { echo "Only root can start programs in another root." >&2; exit 1; }
tools/install_packages.sh bare

readonly bare=$PWD/build/bare
readonly display=:79

# The libraries of packaging/host_libraries.txt, as packages.
readonly host_packages=(libx11-6 libx11-xcb1 libxcb1 libwayland-client0 libegl1 libglx0 libfontconfig1)

fail() {
  echo "Failed: $*" >&2
  exit 1
}

# In a mount namespace of its own, so that no mounts remain.
if [ -z "${QUILLON_TRIAL:-}" ]; then
  exec env QUILLON_TRIAL=1 unshare --mount "$0" "$@"
fi

make_bare() {
  [ ! -e "$bare/made" ] || return 0
  rm -rf "$bare"
  mkdir -p "$bare"
  debootstrap --variant=minbase bookworm "$bare/root" >"$bare/log" || { tail -n 5 "$bare/log" >&2; fail "debootstrap"; }
  touch "$bare/made"
}

# A copy of the bare system for one trial.
start_trial() {
  make_bare
  trial=$bare/$1
  rm -rf "$trial"
  cp -a "$bare/root" "$trial"
  mount -t proc proc "$trial/proc"
}

end_trial() {
  umount "$trial/proc"
  rm -rf "$trial"
}

# in_trial USER COMMAND ...
in_trial() {
  local user=$1
  shift
  chroot --userspec="$user" "$trial" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 \
    DISPLAY=$display HOME="$(home_of "$user")" "$@"
}

home_of() {
  [ "$1" = root ] && echo /root || echo "/home/$1"
}

install_in_trial() {
  in_trial root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "$@" \
    >"$bare/log" 2>&1 || { tail -n 20 "$bare/log" >&2; fail "apt-get install $*"; }
}

start_screen() {
  Xvfb $display -screen 0 1400x1000x24 -nolisten tcp >/dev/null 2>&1 &
  screen=$!
  trap 'kill $screen 2>/dev/null || true' EXIT
  export DISPLAY=$display
  for _ in $(seq 100); do
    xdotool getmouselocation >/dev/null 2>&1 && break
    sleep 0.1
  done
  openbox --sm-disable >/dev/null 2>&1 &
}

# Analyses a range and closes the window: analyse USER COMMAND ...
analyse() {
  local window program report='' tries
  in_trial "$@" &
  program=$!
  window=$(timeout 60 xdotool search --sync --onlyvisible --name '^Quillon [0-9]' | head -n 1)
  [ -n "$window" ] || fail "no window of $2"
  xdotool windowactivate --sync "$window" key ctrl+3 Home Down Down Down ctrl+Return
  for tries in $(seq 40); do
    sleep 0.25
    xdotool key ctrl+5 ctrl+a ctrl+c
    report=$(timeout 2 xclip -selection clipboard -o 2>/dev/null || true)
    [[ $report != *72o* ]] || break
  done
  [[ $report == *72o* ]] || fail "no report after $tries attempts"
  xdotool key ctrl+q
  wait "$program" || fail "$2 ended with status $?"
}

portable() {
  start_trial portable
  install_in_trial "${host_packages[@]}"
  ! in_trial root sh -c 'ls /usr/lib/x86_64-linux-gnu/libQt*' 2>/dev/null || fail "the bare system has Qt"
  in_trial root useradd --create-home ann
  local folder="/home/ann/Käse und Brot"
  mkdir "$trial$folder"
  tar -xJf dist/Quillon-*.tar.xz --strip-components=1 -C "$trial$folder"
  chown -R --reference="$trial/home/ann" "$trial$folder"
  [ "$(in_trial ann "$folder/quillon-cli" folder)" = "$folder" ] || fail "it uses another folder"
  in_trial ann "$folder/quillon-cli" ranges | grep -q '^Tight Open' || fail "no examples"
  analyse ann "$folder/quillon"
  [ -f "$trial$folder/settings.ini" ] || fail "no settings in the portable folder"
  [ ! -e "$trial/home/ann/.local" ] || fail "a portable copy has written elsewhere"
  mv "$trial$folder" "$trial/home/ann/moved"
  [ "$(in_trial ann /home/ann/moved/quillon-cli folder)" = /home/ann/moved ] || fail "it cannot be moved"

  # Every plug-in finds its libraries, even those that this screen does not use.
  in_trial ann sh -c 'find /home/ann/moved/plugins -name "*.so" -exec ldd {} +' | grep 'not found' && fail "libraries are missing"
  in_trial ann env QT_QPA_PLATFORM=offscreen timeout 5 /home/ann/moved/quillon && fail "no window stayed open"
  [ $? -eq 124 ] || fail "no start without a screen"

  # An incomplete copy says so in one line, and writes nothing.
  for part in lib/libQt6Svg.so.6 plugins; do
    cp -a "$trial/home/ann/moved" "$trial/home/ann/half"
    rm -r "$trial/home/ann/half/$part" "$trial/home/ann/half/settings.ini"
    in_trial ann /home/ann/half/quillon 2>"$bare/told" && fail "it starts without $part"
    [ "$(wc -l <"$bare/told")" -eq 1 ] || fail "without $part it says: $(cat "$bare/told")"
    [ ! -e "$trial/home/ann/half/settings.ini" ] || fail "an incomplete copy has written settings"
    rm -r "$trial/home/ann/half"
  done
  end_trial
  echo "The portable archive runs on a bare desktop."
}

installed() {
  start_trial installed
  local home=/home/ann package higher
  local folder=$home/.local/share/Quillon
  package=$(ls dist/quillon_*.deb)
  cp "$package" "$trial/quillon.deb"
  in_trial root useradd --create-home ann
  in_trial root useradd --create-home bob
  install_in_trial /quillon.deb
  find "$trial/usr/libexec/quillon" | sort >"$bare/files"

  analyse ann quillon
  [ -f "$trial$folder/settings.ini" ] || fail "no settings in the user's folder"
  [ "$(in_trial ann quillon-cli folder)" = "$folder" ] || fail "the companion has another folder"
  in_trial ann quillon-cli save Mine --hands AA
  in_trial bob quillon-cli ranges | grep -q '^Mine' && fail "users see each other's ranges"
  # Ranges from a portable folder.
  cp examples/Ranges/Everything.txt "$trial$folder/Ranges/Copied.txt"
  in_trial ann quillon-cli ranges | grep -q '^Copied' || fail "copied ranges are not found"
  analyse root quillon
  find "$trial/usr/libexec/quillon" | sort | cmp - "$bare/files" || fail "something was written among the programs"

  # The same files under a higher version.
  higher=$bare/higher
  rm -rf "$higher"
  dpkg-deb -R "$package" "$higher"
  sed -i 's/^Version: .*/Version: 0.91/' "$higher/DEBIAN/control"
  dpkg-deb --root-owner-group -b "$higher" "$trial/higher.deb" >/dev/null
  (cd "$trial$folder" && find . -type f -exec sha256sum {} +) >"$bare/sums"
  install_in_trial /higher.deb
  [ "$(in_trial root dpkg-query -W -f '${Version}' quillon)" = 0.91 ] || fail "the higher version is not installed"
  (cd "$trial$folder" && sha256sum --quiet --check "$bare/sums") || fail "an upgrade changed the user's files"
  analyse ann quillon

  in_trial root apt-get remove -y -qq quillon >"$bare/log" 2>&1 || fail "remove"
  [ ! -e "$trial/usr/bin/quillon" ] && [ ! -e "$trial/usr/libexec/quillon" ] || fail "programs are left"
  [ -f "$trial$folder/Ranges/Mine.txt" ] || fail "the user's ranges went with the package"
  in_trial root dpkg --purge quillon | grep -q '.local/share/Quillon' || fail "purge does not name the users' folders"
  [ -f "$trial$folder/Ranges/Mine.txt" ] || fail "the user's ranges were purged"
  end_trial
  echo "The Debian package can be installed, upgraded and removed, and the user's ranges stay."
}

same() {
  local copy
  for copy in one another; do
    rm -rf "${bare:?}/$copy"
    git clone -q . "$bare/$copy"
    CCACHE_DISABLE=1 "$bare/$copy/package" >"$bare/log" 2>&1 || { tail -n 20 "$bare/log" >&2; fail "./package"; }
  done
  for copy in "$bare"/one/dist/*; do
    cmp "$copy" "$bare/another/dist/$(basename "$copy")" || fail "two builds of $(basename "$copy") differ"
  done
  rm -rf "${bare:?}/one" "${bare:?}/another"
  echo "Two builds are identical, byte for byte."
}

mkdir -p "$bare"
[ $# -gt 0 ] || set -- portable installed same
start_screen
for trial_name in "$@"; do
  case "$trial_name" in
    portable | installed | same) "$trial_name" ;;
    *) fail "unknown trial: $trial_name" ;;
  esac
done
