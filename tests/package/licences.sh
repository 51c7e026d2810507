#!/bin/bash
# Every file of the repository tells its licence. Before version 4, which Debian 12 lacks, `reuse` reads
# no REUSE.toml: then a bare Debian 13 has a newer one.
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/../.."
source scripts/setup.sh
source tests/package/roots.sh

major() { dpkg-query -W -f '${Version}' reuse 2>/dev/null | sed 's/\..*//'; }

need_packages reuse git
if (($(major) >= 4)); then exec reuse lint --quiet; fi
scratch=$PWD/build/licences-test
rm -rf "$scratch"
bare_root "$scratch" trixie reuse || exit 0
mkdir "$scratch/src"
git ls-files -z --cached --others --exclude-standard | xargs -0 cp -P --parents -t "$scratch/src"
in_root "$scratch" root:root sh -c 'cd /src && reuse lint --quiet || reuse lint'
rm -rf "$scratch"
