# shellcheck shell=bash
# Sourced by the tests that open the program's window on the virtual display of scripts/setup.sh.

sees_window() { [[ $(xdotool getactivewindow getwindowname 2>/dev/null) == 'Termvik - '* ]]; }

# open COMMAND...: until its window has the keyboard, which a message box would take from it.
open() {
  "$@" &
  background+=($!)
  await 60 sees_window || fail "The window of $1 did not appear"
}

# Closes the window as a person does, who tries again when a busy machine has not heard it.
closed() { ! kill -0 "${background[-1]}" 2>/dev/null || { xdotool key alt+F4 && sleep 1 && false; }; }
close() {
  await 60 closed || fail "The program did not end when its window was closed"
  wait "${background[-1]}" || fail "The program did not end properly"
}
