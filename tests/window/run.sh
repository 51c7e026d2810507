#!/bin/bash
# run.sh TEST PROGRAM SCRATCH: drives the program on a display and a message bus of the test's own.
set -euo pipefail
here=$(dirname "${BASH_SOURCE[0]}")
# shellcheck source=scripts/setup.sh
source "$here/../../scripts/setup.sh"

open_virtual_display
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 LC_ALL=C.UTF-8 WINDOW_MANAGER=${background[-1]}
# Debian's own Python is the one that has the bindings to accessibility.
dbus-run-session -- /usr/bin/python3 "$here/$1" "${@:2}"
