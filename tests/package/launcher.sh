#!/bin/bash
# launcher.sh INSTALLED: the launcher of an installed tree, with a program that only tells from where it
# was started: first starts, upgrades with and without edits, several starts at once, no home to write.
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/../.."
source scripts/setup.sh

installed=$(realpath "$1")
scratch=$PWD/build/launcher-test
system=$scratch/system
program=$(cd "$installed" && find lib* -path '*/termvik/termvik')
shipped=$system/share/termvik
unset XDG_DATA_HOME
export HOME=$scratch/home/anna
mine=$HOME/.local/share/termvik

expect() { [[ $1 == "$2" ]] || fail "$3: $1 instead of $2"; }
is() { expect "$(<"$mine/$1")" "$2" "$1"; }
lacks() { [[ ! -e $mine/$1 ]] || fail "There is a $1"; }
start() { expect "$("$system/bin/termvik" "$@")" "$mine/termvik $*" "Started from"; }
upgrade() { echo "words $1" >"$shipped/graphword.txt" && echo "tools $1" >"$shipped/toolsword.txt"; }

# Nothing but whole files, and no trace of how they came there.
is_clean() {
  [[ -z $(find "$mine" -name '.new*' -o -name '*.shipped' -empty) ]] || fail "Something is left in $mine"
}

first_start() {
  start --with 'an argument'
  is graphword.txt 'words 1' && is toolsword.txt 'tools 1'
  is_clean
}

another_user() {
  HOME=$scratch/home/bo mine=$scratch/home/bo/.local/share/termvik first_start
  HOME=/nowhere XDG_DATA_HOME=$scratch/data mine=$scratch/data/termvik first_start
}

# A rewritten glossary stays through two upgrades; the untouched one follows both.
upgrades() {
  echo 'my words' >"$mine/graphword.txt"
  start && lacks graphword.txt.new
  upgrade 2 && start
  is graphword.txt 'my words' && is graphword.txt.new 'words 2' && is toolsword.txt 'tools 2'
  lacks toolsword.txt.new
  rm "$mine/graphword.txt.new" && start && lacks graphword.txt.new
  upgrade 3 && start
  is graphword.txt 'my words' && is graphword.txt.new 'words 3' && is toolsword.txt 'tools 3'
  mv "$mine/graphword.txt.new" "$mine/graphword.txt"
  upgrade 4 && start
  is graphword.txt 'words 4' && lacks graphword.txt.new
}

# A glossary kept elsewhere stays there; one that was deleted comes back.
links_and_losses() {
  mv "$mine/graphword.txt" "$scratch/elsewhere" && ln -s "$scratch/elsewhere" "$mine/graphword.txt"
  rm "$mine/toolsword.txt"
  upgrade 5 && start
  [[ -L $mine/graphword.txt ]] || fail "A link has been replaced"
  is graphword.txt 'words 4' && is graphword.txt.new 'words 5' && is toolsword.txt 'tools 5'
}

moved_system() {
  mv "$system" "$scratch/other system" && system="$scratch/other system" && start && system=$scratch/system
  mv "$scratch/other system" "$system" && start
}

six_starts() {
  local starts=() number
  for number in 1 2 3 4 5 6; do start "$number" & starts+=($!); done
  for number in "${starts[@]}"; do wait "$number" || fail "One of six starts at once failed"; done
  is_clean
}

six_at_once() {
  rm -rf "$mine" && six_starts && is graphword.txt 'words 5'
  upgrade 6 && six_starts && is graphword.txt 'words 6' && lacks graphword.txt.new
  echo 'my words' >"$mine/graphword.txt"
  upgrade 7 && six_starts && is graphword.txt 'my words' && is graphword.txt.new 'words 7'
}

no_home() {
  local home said folder
  folder=$(dirname "$(readlink -f "$system/$program")")
  for home in /dev/null ''; do
    said=$(HOME=$home "$system/bin/termvik" 2>"$scratch/said" </dev/null)
    expect "$said" "$folder/termvik " "Without a home"
    expect "$(grep -c 'nothing will be kept' "$scratch/said")/$(wc -l <"$scratch/said")" 1/1 "Sentences"
  done
  expect "$(cat "$folder/graphword.txt")" "$(<"$shipped/graphword.txt")" "Words beside the program"
}

rm -rf "$scratch" && mkdir -p "$HOME" "$system"
cp -a "$installed/." "$system"
# shellcheck disable=SC2016
printf '#!/bin/sh\necho "$0 $*"\n' >"$system/$program"
upgrade 1
first_start
another_user
upgrades
links_and_losses
moved_system
six_at_once
no_home
rm -rf "$scratch"
echo "The launcher is good"
