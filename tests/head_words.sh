#!/bin/bash
# head_words.sh FILE: writes the head words of Swedish, English and French dictionaries, each with
# its word type. Nothing where the packages are not installed.
set -euo pipefail

# words TYPE DICTIONARY...
words() {
  local type=$1 dictionary
  for dictionary in "${@:2}"; do
    gzip -dc "/usr/share/dictd/freedict-$dictionary.dict.dz"
  done | sed -n "/^[^ ].* \//s/^\(.*\) \/.*/$type\1/p" | LC_ALL=C sort -u
}

rm -f "$1"
for dictionary in swe-{eng,fra} eng-{swe,fra} fra-eng; do
  [[ -f /usr/share/dictd/freedict-$dictionary.dict.dz ]] || exit 0
done
{
  words S swe-{eng,fra}
  words E eng-{swe,fra}
  words F fra-eng
} >"$1"
