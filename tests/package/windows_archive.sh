#!/bin/bash
# The archive for Windows: one program that needs no DLL of ours, started under Wine, which writes nothing
# but Termvik.par.
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/../.."
source scripts/setup.sh
source tests/package/display.sh

archive=$(echo "$PWD"/build/packages/*.zip)
name=$(basename "$archive" .zip)
scratch=$PWD/build/windows-archive-test
folder=$scratch/Ordböcker\ Ł/$name
export WINEPREFIX=$scratch/wine WINEDEBUG=-all LC_ALL=C.UTF-8 PATH=/usr/lib/wine:$PATH
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe="
home=$scratch/home

unpack() { mkdir -p "$1" && (cd "$1" && unzip -q "$archive" && [[ -d $name ]]); }

# check_executable PROGRAM SUBSYSTEM. Wine has the DLLs of Windows, and no others.
check_executable() {
  local facts dll
  facts=$(x86_64-w64-mingw32-objdump -p "$folder/$1")
  [[ $facts == *"(Windows $2)"* ]] || fail "$1 is no program for the Windows $2"
  while read -r dll; do
    [[ -e $WINEPREFIX/drive_c/windows/system32/${dll,,} ]] || fail "Windows has no $dll"
  done < <(sed -n 's/^.*DLL Name: //p' <<<"$facts")
  (($(stat -c %s "$folder/$1") < 3000000)) || fail "$1 has grown to 3 MB"
}

check_texts() {
  local text
  for text in READ-ME NOTICES LICENSE LICENSES/MIT LICENSES/CC-BY-4.0; do
    [[ -s $folder/$text.txt ]] || fail "There is no $text.txt"
    [[ -z $(LC_ALL=C sed 's/^[^\r]*\r$//' "$folder/$text.txt") ]] || fail "$text.txt lacks Windows line ends"
  done
}

rm -rf "$scratch" && mkdir -p "$scratch" && mkdir -m 700 "$home"
need_packages "${windows_packages[@]}" unzip
(unset DISPLAY && wine64 wineboot.exe --init && timeout 60 wineserver --wait) &>"$scratch/wine.log" ||
  fail "Wine did not start, see $scratch/wine.log"
touch "$scratch/mark"
unpack "$scratch/new"
unpack "$(dirname "$folder")"
check_executable Termvik.exe GUI
check_executable termvik-glossary.exe CUI
check_texts
(unset DISPLAY && cd "$folder" && wine64 termvik-glossary.exe check graphword.txt toolsword.txt)
open_virtual_display
open env HOME="$home" wine64 "$folder/Termvik.exe"
close
[[ $(LC_ALL=C diff -r "$scratch/new/$name" "$folder") == "Only in $folder: Termvik.par" ]] ||
  fail "Termvik.exe has changed other files than Termvik.par"
timeout 60 wineserver --wait || fail "Windows did not shut down"
[[ -z $(find "$WINEPREFIX/drive_c" "$home" -newer "$scratch/mark" -type f) ]] || fail "Termvik.exe wrote elsewhere"
! grep -i termvik "$WINEPREFIX"/*.reg || fail "Termvik.exe wrote into the registry"
rm -rf "$scratch"
