#!/bin/bash
# From the same files with other times, in another place and surroundings, come the same bytes.
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/../.."
source scripts/setup.sh

other=$PWD/build/package-test/another\ place
rm -rf "$other" && mkdir -p "$other"
need_packages git
./package
git ls-files -z --cached --others --exclude-standard | xargs -0 cp --parents -t "$other"
(
  umask 077
  export SOURCE_DATE_EPOCH TZ=Asia/Kolkata CXXFLAGS=-g LDFLAGS=-g
  SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
  "$other/package"
)
diff build/packages/SHA256SUMS "$other/build/packages/SHA256SUMS" || fail "The same files give other bytes"
rm -rf "$other"
