#!/bin/bash
# Makes the archives and the package twice, in two places, and starts what is in them.
# With --no-build, looks at those that are there.
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")"

[[ ${1-} == --no-build ]] || ./twice.sh
./sums.sh
./linux_archive.sh
./menu_entry.sh
./deb.sh
./bare_systems.sh
./windows_archive.sh
echo "The archives and the package are good"
