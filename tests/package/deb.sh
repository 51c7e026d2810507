#!/bin/bash
# The Debian package, as Debian's own check sees it.
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/../.."
source scripts/setup.sh

command -v dpkg-deb >/dev/null || { echo "Skipped: no dpkg-deb" && exit; }
need_packages lintian
found=$(lintian --allow-root build/packages/*.deb 2>&1) || true
[[ -z $found ]] || fail "$found"
dpkg-deb --field build/packages/*.deb Depends | grep -q 'libqt6widgets6.*(>=' || fail "The package names no version of Qt"
