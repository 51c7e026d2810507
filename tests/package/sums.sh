#!/bin/bash
# The command of the README that checks a download finds one that is whole, and one that is not.
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/../.."
source scripts/setup.sh

scratch=$PWD/build/sums-test
rm -rf "$scratch" && mkdir -p "$scratch"
check=$(sed -n 's/^ *\(sha256sum .*SHA256SUMS\)$/\1/p' README.md)
[[ $check ]] || fail "The README tells no command that checks a download"
cp build/packages/SHA256SUMS build/packages/*.zip "$scratch"
cd "$scratch"
bash -c "$check" >log || fail "The command of the README does not find the archive whole: $(<log)"
echo >>./*.zip
! bash -c "$check" &>log || fail "The command of the README does not see that an archive is spoilt"
rm -rf "$scratch"
