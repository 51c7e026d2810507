#!/bin/sh
# run.sh REPLAY TOOLKIT CASE SCRATCH: plays CASE/script.txt in a copy of CASE/files and compares to the
# byte: the output with expected.jsonl, where @FOLDER@ stands for the folder, and the files with after/.
set -eu
replay=$1 toolkit=$2 case=$3 scratch=$4
rm -rf "$scratch" && mkdir -p "$scratch/program"
cp "$case"/files/* "$scratch/program"
"$replay" --toolkit "$toolkit" --folder "$scratch/program" "$case/script.txt" >"$scratch/output.jsonl"
sed "s|@FOLDER@|$scratch/program|g" "$case/expected.jsonl" | diff -u - "$scratch/output.jsonl"
for file in "$case"/after/*; do
  [ ! -e "$file" ] || diff -u "$file" "$scratch/program/${file##*/}"
done
