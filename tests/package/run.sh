#!/bin/bash
# Makes the archives twice, in two places, unpacks each into an empty folder and starts what is in it.
# With --no-build, looks at the archives that are there.
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/../.."
source scripts/setup.sh

scratch=$PWD/build/package-test
other=$scratch/another\ place
home=$scratch/home

# From the same files with other times, in another place and surroundings, come the same bytes.
check_twice() {
  local archive
  ./package
  mkdir "$other"
  git ls-files -z --cached --others --exclude-standard | xargs -0 cp --parents -t "$other"
  (
    umask 077
    export SOURCE_DATE_EPOCH TZ=Asia/Kolkata CXXFLAGS=-g LDFLAGS=-g
    SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
    "$other/package"
  )
  for archive in build/packages/*.{tar.gz,zip}; do
    cmp "$archive" "$other/$archive" || fail "The same files give another archive"
  done
}

# unpack ARCHIVE TOOL...: into its `folder`, and a second time for comparison.
unpack() {
  local place
  name=${1##*/} name=${name%.tar.gz} name=${name%.zip}
  for place in "$scratch/new" "$scratch/Ordböcker Ł"; do
    mkdir -p "$place"
    (cd "$place" && "${@:2}" "$1" && [[ -d $name ]])
    folder=$place/$name
  done
}

sees_window() { [[ $(xdotool getactivewindow getwindowname 2>/dev/null) == 'Termvik - '* ]]; }

# open PROGRAM...: until its window has the keyboard, which a message box would take from it.
open() {
  # With no message bus, since one that starts by itself would leave its address in the home.
  env HOME="$home" XDG_RUNTIME_DIR="$home" DBUS_SESSION_BUS_ADDRESS=disabled: timeout 120 "$@" &
  background+=($!)
  await 60 sees_window || fail "$name: the window did not appear"
}

# Closes the window as a person does. The program leaves its parameters and nothing else.
close() {
  xdotool key alt+F4
  wait "${background[-1]}" || fail "$name: the program did not end properly"
  [[ $(LC_ALL=C diff -r "$scratch/new/$name" "$folder") == "Only in $folder: Termvik.par" ]] ||
    fail "$name: the program has changed other files than Termvik.par"
  [[ -z $(ls -A "$home") ]] || fail "$name: something was written into the user's home"
}

# All libraries that the running program needs come with the packages that the read-me names.
check_system_packages() {
  local plugin files
  plugin=$(grep -om1 '/.*/platforms/.*' "/proc/$(xdotool getactivewindow getwindowpid)/maps")
  files=$(ldd "$folder/termvik" "$plugin" | sed -n 's/.*=> \(.*\) (.*/\1/p')
  sed -n 's/^ *apt install //p' "$folder/READ-ME.txt" |
    xargs apt-cache depends --recurse --important | sort >"$scratch/named"
  sed 's/^\(\/usr\)\?/*/' <<<"$plugin"$'\n'"$files" | sort -u | xargs dpkg-query -S |
    sed 's/:.*//' | sort -u | comm -23 - "$scratch/named" >"$scratch/missing"
  [[ ! -s $scratch/missing ]] || fail "The read-me lacks packages, see $scratch/missing"
}

check_linux() {
  local entry=.local/share/applications/termvik.desktop
  unpack "$PWD"/build/packages/*.tar.gz tar -xzf
  open "$folder/termvik"
  check_system_packages
  close
  (cd "$folder" && sed -n '/^ *mkdir/,/^ *sed/p' READ-ME.txt | HOME=$scratch bash -e)
  [[ $(<"$scratch/$entry") == *"Exec=\"$folder/termvik\""*"Icon=$folder/termvik.png"* ]] ||
    fail "The read-me's menu entry does not lead to the program"
}

# Wine has the DLLs of Windows, and no others.
check_executable() {
  local facts dll
  facts=$(x86_64-w64-mingw32-objdump -p "$folder/Termvik.exe")
  [[ $facts == *'(Windows GUI)'* ]] || fail "Termvik.exe would open a console"
  while read -r dll; do
    [[ -e $WINEPREFIX/drive_c/windows/system32/${dll,,} ]] || fail "Windows has no $dll"
  done < <(sed -n 's/^.*DLL Name: //p' <<<"$facts")
  (($(stat -c %s "$folder/Termvik.exe") < 3000000)) || fail "Termvik.exe has grown to 3 MB"
}

check_windows() {
  export WINEPREFIX=$scratch/wine WINEDEBUG=-all LC_ALL=C.UTF-8 PATH=/usr/lib/wine:$PATH
  export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe="
  (unset DISPLAY && wine64 wineboot.exe --init && timeout 60 wineserver --wait) &>"$scratch/wine.log" ||
    fail "Wine did not start, see $scratch/wine.log"
  touch "$scratch/mark"
  unpack "$PWD"/build/packages/*.zip unzip -q
  [[ -z $(LC_ALL=C sed 's/^[^\r]*\r$//' "$folder/READ-ME.txt") ]] || fail "READ-ME.txt lacks Windows line ends"
  check_executable
  open wine64 "$folder/Termvik.exe"
  close
  timeout 60 wineserver --wait || fail "Windows did not shut down"
  [[ -z $(find "$WINEPREFIX/drive_c" -newer "$scratch/mark") ]] || fail "Termvik.exe wrote elsewhere"
  ! grep -i termvik "$WINEPREFIX"/*.reg || fail "Termvik.exe wrote into the registry"
}

rm -rf "$scratch" && mkdir -p "$scratch" && mkdir -m 700 "$home"
need_packages "${windows_packages[@]}" unzip
[[ ${1-} == --no-build ]] || check_twice
open_virtual_display
check_linux
check_windows
echo "The archives are good"
