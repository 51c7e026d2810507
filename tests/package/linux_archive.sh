#!/bin/bash
# The archive for Linux: what it needs of the system, what it keeps to itself, and starts of it.
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/../.."
source scripts/setup.sh
source tests/package/display.sh

archive=$(echo "$PWD"/build/packages/*.tar.xz)
name=$(basename "$archive" .tar.xz)
scratch=$PWD/build/linux-archive-test
folder=$scratch/Ordböcker\ Ł/$name
home=$scratch/home
# With no message bus, since one that starts by itself would leave its address in the home.
user=(env HOME="$home" XDG_RUNTIME_DIR="$home" DBUS_SESSION_BUS_ADDRESS=disabled:)

unpack() { mkdir -p "$1" && tar -C "$1" -xf "$archive" && [[ -d $1/$name ]]; }

# Qt's own ICU must not meet the one inside, whose data is cut.
check_icu() {
  local program=$1
  [[ $(objdump -p "$program") != *libicu* ]] || fail "$program needs the ICU of one release of one system"
  ! nm --dynamic --defined-only "$program" | grep -E 'icu|_[0-9]{2}$' || fail "$program gives out names of ICU"
}

# Made on Debian 12, it starts on every later system.
check_needs() {
  local told
  told=$(sed -n 's/^Needs *//p' "$folder/READ-ME.txt")
  [[ $(. /etc/os-release && echo "$ID $VERSION_ID") != 'debian 12' ||
    $told == 'Qt 6.4, glibc 2.34 and libstdc++.so.6.0.30, or later:' ]] || fail "The archive needs $told"
}

# All libraries that the running program needs come with the packages that the read-me names.
check_system_packages() {
  local plugin files
  plugin=$(grep -om1 '/.*/platforms/.*' "/proc/$(xdotool getactivewindow getwindowpid)/maps")
  files=$(ldd "$folder/termvik" "$plugin" | sed -n 's/.*=> \(.*\) (.*/\1/p')
  sed -n 's/^.*apt install //p' "$folder/READ-ME.txt" |
    xargs apt-cache depends --recurse --important | sort >"$scratch/named"
  sed 's/^\(\/usr\)\?/*/' <<<"$plugin"$'\n'"$files" | sort -u | xargs dpkg-query -S |
    sed 's/:.*//' | sort -u | comm -23 - "$scratch/named" >"$scratch/missing"
  [[ ! -s $scratch/missing ]] || fail "The read-me lacks packages, see $scratch/missing"
}

# The program leaves its parameters and nothing else.
check_traces() {
  [[ $(LC_ALL=C diff -r "$scratch/new/$name" "$folder") == "Only in $folder: Termvik.par" ]] ||
    fail "The program has changed other files than Termvik.par"
  [[ -z $(ls -A "$home") ]] || fail "Something was written into the user's home"
}

rm -rf "$scratch" && mkdir -p "$scratch" && mkdir -m 700 "$home"
need_packages "${display_packages[@]}" binutils xz-utils
unpack "$scratch/new"
unpack "$(dirname "$folder")"
for program in termvik termvik-glossary; do check_icu "$folder/$program"; done
"$folder/termvik-glossary" check "$folder"/*word.txt
check_needs
(($(stat -c %s "$archive") < 3000000)) || fail "The archive has grown to 3 MB"
for text in LICENSE LICENSES/MIT.txt LICENSES/CC-BY-4.0.txt; do cmp "$text" "$folder/$text"; done
grep -q 'UNICODE, INC' "$folder/NOTICES.txt" || fail "The archive does not tell the licence of ICU"

open_virtual_display
open "${user[@]}" "$folder/termvik"
check_system_packages
close
check_traces
# Its order is made of tables that no other language needs.
printf 'GLOSSARYINDEX 2\r\n' >"$folder/Termvik.par"
open "${user[@]}" LC_ALL=ja_JP.UTF-8 "$folder/termvik"
close
rm -rf "$scratch"
