# shellcheck shell=bash disable=SC2034
# Sourced by the scripts that need more than a fresh Debian has: its packages, and a display.

build_packages=(build-essential cmake ninja-build pkg-config libicu-dev qt6-base-dev
                nlohmann-json3-dev fonts-liberation)
display_packages=(xvfb openbox xdotool x11-utils imagemagick)
test_packages=("${display_packages[@]}" libgtest-dev xclip dbus dbus-x11 at-spi2-core python3
               python3-gi gir1.2-atspi-2.0)
windows_packages=(g++-mingw-w64-x86-64 wine64 googletest nlohmann-json3-dev cmake ninja-build
                  fonts-liberation "${display_packages[@]}")

fail() { echo "$1" >&2 && exit 1; }

# Installs the packages that are missing; says which and stops where it may not.
need_packages() {
  local installed package missing=() as_root=()
  if ! command -v dpkg-query >/dev/null; then return; fi  # no Debian: the build says what it misses
  # Some of them it may never have heard of, which is no failure here.
  installed=\;$(dpkg-query -W -f '${Package} ${db:Status-Status};' "$@" 2>/dev/null) || true
  for package; do
    [[ $installed == *";$package installed;"* ]] || missing+=("$package")
  done
  ((${#missing[@]})) || return 0
  if ((EUID != 0)); then
    as_root=(sudo)
    sudo -n true 2>/dev/null || { [[ -t 0 ]] && command -v sudo >/dev/null; } ||
      fail "These packages are missing, and only root can install them: ${missing[*]}"
  fi
  echo "Installing ${missing[*]}"
  as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -qq)
  "${as_root[@]}" update && "${as_root[@]}" install --yes --no-install-recommends "${missing[@]}"
}

# build_preset PRESET PACKAGES...: configures only what is not; the build itself sees to the rest.
build_preset() {
  need_packages "${@:2}"
  grep -qs '^build termvik:' "build/$1/build.ninja" || cmake --preset "$1"
  cmake --build --preset "$1"
}

# Opens a display of the script's own, with a window manager. Both end with the script.
open_virtual_display() {
  local from_server number
  unset WAYLAND_DISPLAY XAUTHORITY
  # Else the server starts anew when its last client leaves, and throws out who is just coming.
  exec {from_server}< <(exec Xvfb -noreset -displayfd 1 -screen 0 1920x1080x24 2>/dev/null)
  background=($!)
  trap 'kill "${background[@]}" 2>/dev/null || true' EXIT
  read -r -t 30 number <&"$from_server" || fail "The virtual display did not open"
  export DISPLAY=:$number QT_QPA_PLATFORM=xcb
  openbox --sm-disable --config-file /etc/xdg/openbox/rc.xml &>/dev/null &
  background+=($!)
  await 10 eval "xprop -root _NET_SUPPORTING_WM_CHECK | grep -q '#'" || fail "No window manager"
}

# await SECONDS COMMAND...: until the command succeeds; fails when it has not by then.
await() {
  local deadline=$((SECONDS + $1))
  until "${@:2}"; do
    ((SECONDS < deadline)) && sleep 0.05 || return 1
  done
}

# Starts the Windows of scripts/wine on the display, so that no test waits for it. It ends with the
# script. Its desktop is one window, in which no X window manager has a say.
start_windows() {
  if ! grep -qs '"Default"="1920x1080"' build/windows/wine/user.reg; then
    (
      unset DISPLAY  # for now, since a desktop that is open would stay as it is
      scripts/wine wineboot.exe --init
      scripts/wine reg.exe add 'HKCU\Software\Wine\Explorer' /v Desktop /d Default /f
      scripts/wine reg.exe add 'HKCU\Software\Wine\Explorer\Desktops' /v Default /d 1920x1080 /f
      scripts/wine --server --wait
    ) &>build/windows/wine.log || fail "Wine did not start, see build/windows/wine.log"
  fi
  scripts/wine --server --foreground --persistent &
  background+=($!)
  scripts/wine wineboot.exe --init &>build/windows/wine.log
}
