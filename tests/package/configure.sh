#!/bin/bash
# What a plain `cmake` asks for: the program needs nothing that only its tests need, and nobody gets a
# build without a window who has not asked for it.
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/../.."
source scripts/setup.sh

scratch=$PWD/build/configure-test

# configure_without PACKAGE... [-D OPTION...]: as on a system that lacks these packages of CMake.
configure_without() {
  local option options=()
  for option; do
    [[ $option == *=* ]] && options+=(-D "$option") || options+=(-D "CMAKE_DISABLE_FIND_PACKAGE_$option=ON")
  done
  cmake -S . -B "$scratch/$*" -G Ninja "${options[@]}" &>"$scratch/log"
}

rm -rf "$scratch" && mkdir -p "$scratch"
need_packages "${core_packages[@]}"
configure_without nlohmann_json GTest Qt6Test BUILD_TESTING=OFF ||
  fail "The program alone asks for what its tests need: $(<"$scratch/log")"
! configure_without Qt6 || fail "A build without Qt was configured unasked"
[[ $(tr -s ' \n' ' ' <"$scratch/log") == *'needs Qt 6.4 or later'*'TERMVIK_QT=OFF'* ]] ||
  fail "The lack of Qt is not told: $(<"$scratch/log")"
configure_without Qt6 TERMVIK_QT=OFF || fail "There is no build without Qt: $(<"$scratch/log")"
rm -rf "$scratch"
