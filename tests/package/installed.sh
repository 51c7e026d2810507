#!/bin/bash
# Installs the program as a packager does, has the parts that other programs read judged by the tools
# made for that, and starts it by its launcher.
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/../.."
source scripts/setup.sh
source tests/package/display.sh

scratch=$PWD/build/installed-test
prefix=$scratch/a\ prefix
home=$scratch/home

valid() (
  local metainfo=share/metainfo/test.termvik.Termvik.metainfo.xml newest name section
  newest=$(sed -n 's/.*<release version="\([^"]*\)".*/\1/p;T;q' "$prefix/$metainfo")
  grep -qx "CMAKE_PROJECT_VERSION:STATIC=$newest" build/release/CMakeCache.txt ||
    fail "The newest release of the metainfo is $newest"
  cd "$prefix"
  desktop-file-validate share/applications/*.desktop
  appstreamcli validate --no-net "$metainfo" >"$scratch/log" || fail "$(<"$scratch/log")"
  # It looks for the manuals that ours refer to among those of the system, so we look ourselves.
  find share/man -type f -exec mandoc -Tlint {} \; | grep -v 'referenced manual not found' >"$scratch/log" || true
  [[ ! -s $scratch/log ]] || fail "$(<"$scratch/log")"
  while read -r _ name section _; do
    [[ -s share/man/man$section/$name.$section ]] || fail "No manual $name($section) is installed"
  done < <(grep -rh '^\.Xr termvik' share/man)
)

# What X calls the window is what the desktop entry says, so that a desktop gives it the entry's icon.
has_its_entry() {
  local class
  class=$(sed -n 's/^StartupWMClass=//p' "$prefix"/share/applications/*.desktop)
  [[ $(xprop -id "$(xdotool getactivewindow)" WM_CLASS) == *"\"$class\"" ]] || fail "The window is not of class $class"
}

starts() {
  local folder=$home/.local/share/termvik
  (cd "$prefix" && find . -type f -exec sha256sum {} +) >"$scratch/before"
  open env -u XDG_DATA_HOME HOME="$home" XDG_RUNTIME_DIR="$home" DBUS_SESSION_BUS_ADDRESS=disabled: \
    "$prefix/bin/termvik"
  has_its_entry
  close
  [[ -s $folder/Termvik.par ]] || fail "The window's place was not kept in the user's folder"
  (cd "$prefix" && sha256sum --check --quiet "$scratch/before") || fail "The installed files have changed"
  [[ -z $(find "$prefix" -name Termvik.par) ]] || fail "The program wrote among the installed files"
}

rm -rf "$scratch" && mkdir -p "$scratch" && mkdir -m 700 "$home"
build_preset release "${build_packages[@]}" "${display_packages[@]}" desktop-file-utils appstream mandoc
cmake --install build/release --prefix "$prefix" >"$scratch/log"
valid
tests/package/launcher.sh "$prefix"
open_virtual_display
starts
rm -rf "$scratch"
echo "The installed program is good"
