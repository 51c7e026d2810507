# shellcheck shell=bash disable=SC2034
# Sourced by the scripts that run the benchmarks: builds them, and opens a display for the window's.
source scripts/setup.sh

subjects=(load fill key_stroke full_search doublets hostile glossary_tool start window)

prepare() {
  need_packages "${build_packages[@]}" "${display_packages[@]}" "${bench_packages[@]}"
  {
    cmake --preset bench
    cmake --build --preset bench
  } >&2
  open_virtual_display
  export QT_LOGGING_RULES=default.warning=false
}

# measure SUBJECT ARGUMENTS...: runs the benchmarks of one subject.
measure() {
  # A desktop has a message bus; without one every Qt program starts its own and waits for it.
  dbus-run-session -- "build/bench/$1_bench" "${@:2}"
}
