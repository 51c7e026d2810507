#!/bin/sh
# run.sh REPLAY TOOLKIT CASE SCRATCH: plays CASE/script.txt in a copy of CASE/files and compares to the
# byte: the output with expected.jsonl, where @FOLDER@/ stands for the folder, and the files with
# after/. The folder has a name that no 8-bit code page can write. CASE/options has more of the tool's.
set -eu
replay=$1 toolkit=$2 case=$3 scratch=$4
folder="$scratch/Ordböcker Ł"
rm -rf "$scratch" && mkdir -p "$folder"
cp "$case"/files/* "$folder"
more=$(cat "$case/options" 2>/dev/null || true)
shown=$folder/
case $replay in
*.exe) # what Windows calls these files
  wine=$(dirname "$0")/../../scripts/wine
  shown=$("$wine" --path "$folder")\\
  set -- "$wine" "$replay" --toolkit "$toolkit" --folder "${shown%?}" "$("$wine" --path "$case")\\script.txt"
  ;;
*) set -- "$replay" --toolkit "$toolkit" --folder "$folder" "$case/script.txt" ;;
esac
# shellcheck disable=SC2086  # words
"$@" $more >"$scratch/output.jsonl"
# Each backslash stands twice in JSON, and each of these twice in what sed puts in.
shown=$(printf %s "$shown" | sed 's/\\/\\\\\\\\/g')
sed "s|@FOLDER@/|$shown|g" "$case/expected.jsonl" | diff -u - "$scratch/output.jsonl"
for file in "$case"/after/*; do
  [ ! -e "$file" ] || diff -u "$file" "$folder/${file##*/}"
done
