# shellcheck shell=bash disable=SC2034
# Sourced by the scripts that need more than a fresh Debian has: its packages, and a display.

build_packages=(build-essential cmake ninja-build libicu-dev qt6-base-dev libcli11-dev libexpat1-dev
                fonts-liberation)
display_packages=(xvfb openbox xdotool x11-utils imagemagick)
core_packages=("${build_packages[@]}" libgtest-dev nlohmann-json3-dev)
test_packages=("${display_packages[@]}" libgtest-dev nlohmann-json3-dev xclip dbus dbus-x11 at-spi2-core python3
               python3-gi gir1.2-atspi-2.0 orca dict-freedict-{swe-eng,swe-fra,eng-swe,eng-fra,fra-eng})
fuzz_packages=(clang libclang-rt-dev)
bench_packages=(dbus pkg-config libbenchmark-dev libxcb-damage0-dev)
windows_packages=(g++-mingw-w64-x86-64 wine64 googletest nlohmann-json3-dev libcli11-dev dpkg-dev cmake
                  ninja-build fonts-liberation "${display_packages[@]}")

with_windows=0  # Windows runs on the display

fail() { echo "$1" >&2 && exit 1; }

# What some packages are needed for, on systems that name their packages otherwise.
declare -A command_of=(
  [binutils]=objdump [build-essential]=g++ [clang]=clang++ [cmake]=cmake [dbus]=dbus-run-session [g++-mingw-w64-x86-64]=x86_64-w64-mingw32-g++
  [git]=git [icu-devtools]=icupkg [imagemagick]=import [ninja-build]=ninja [openbox]=openbox [python3]=python3
  [wine64]=wine [x11-utils]=xprop [xclip]=xclip [xdotool]=xdotool [xvfb]=Xvfb [xz-utils]=xz [zip]=zip)

# Without apt: names the commands that are missing; what else is, the build says.
need_commands() {
  local package command missing=()
  for package; do
    command=${command_of[$package]-}
    [[ -z $command || " ${missing[*]} " == *" $command "* ]] || PATH=$PATH:/usr/sbin command -v "$command" >/dev/null ||
      missing+=("$command")
  done
  ((${#missing[@]} == 0)) || fail "There is no apt here to install what is missing: ${missing[*]}
CONTRIBUTING.md names the packages of some systems."
}

# Installs the packages that are missing; says which and stops where it may not.
need_packages() {
  local installed package missing=() as_root=()
  if ! command -v apt-get >/dev/null; then need_commands "$@" && return; fi
  # Some of them it may never have heard of, which is no failure here.
  installed=\;$(dpkg-query -W -f '${Package} ${db:Status-Status};' "$@" 2>/dev/null) || true
  for package; do
    [[ $installed == *";$package installed;"* || " ${missing[*]} " == *" $package "* ]] || missing+=("$package")
  done
  ((${#missing[@]})) || return 0
  if ((EUID != 0)); then
    as_root=(sudo)
    sudo -n true 2>/dev/null || { [[ -t 0 ]] && command -v sudo >/dev/null; } ||
      fail "Packages are missing, which an administrator can install:
  apt-get install --no-install-recommends ${missing[*]}"
  fi
  echo "Installing ${missing[*]}"
  as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -qq)
  "${as_root[@]}" update && "${as_root[@]}" install --yes --no-install-recommends "${missing[@]}"
}

# need_source PACKAGE: the distribution's source of a library, as the build for Windows takes it, in
# build/sources/PACKAGE. It comes by apt like the packages, with lists of its own, so that nothing of
# the system changes. Where the newest version is not to be had, an older one will do.
need_source() {
  local root=$PWD/build/sources version
  [[ ! -d $root/$1 ]] || return 0
  command -v apt-get >/dev/null || { echo "The source of $1 belongs into $root/$1" && return 1; }
  echo "Fetching the source of $1"
  local apt=(-qq -o "Dir::Etc::SourceList=$root/apt/sources.list" -o Dir::Etc::SourceParts=/dev/null
    -o "Dir::State::Lists=$root/apt/lists" -o "Dir::Cache=$root/apt/cache" -o APT::Sandbox::User=root)
  rm -rf "$root/apt" && mkdir -p "$root/apt/lists/partial"
  # shellcheck disable=SC2016  # apt puts them in
  apt-get indextargets --format '$(ORIGIN) deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' |
    sed -n 's/^\(Debian\|Ubuntu\) //p' | sort -u >"$root/apt/sources.list"
  apt-get "${apt[@]}" update || return
  for version in $(apt-cache "${apt[@]}" showsrc --only-source "$1" | sed -n 's/^Version: //p' | sort -Vru); do
    (cd "$root/apt" && apt-get "${apt[@]}" source "$1=$version") &>"$root/apt/log" || continue
    mv "$root/apt/$1"-*/ "$root/$1" && rm -rf "$root/apt"
    return
  done
  echo "It is not to be had, see $root/apt/log" && return 1
}

# build_preset PRESET PACKAGES... [-- OPTIONS...]: configures only what is not; the build itself sees
# to the rest. OPTIONS go to the build.
build_preset() {
  local preset=$1 packages=()
  while shift && (($#)) && [[ $1 != -- ]]; do packages+=("$1"); done
  need_packages "${packages[@]}"
  [[ $preset != windows ]] || need_source expat || echo "termvik-glossary will not be built"
  grep -qs '^build termvik:' "build/$preset/build.ninja" || cmake --preset "$preset"
  cmake --build --preset "$preset" "${@:2}"
}

# Opens a display of the script's own, with a window manager. Both end with the script.
open_virtual_display() {
  local from_server number
  unset WAYLAND_DISPLAY XAUTHORITY
  # Else the server starts anew when its last client leaves, and throws out who is just coming.
  exec {from_server}< <(exec Xvfb -noreset -displayfd 1 -screen 0 1920x1080x24 2>/dev/null)
  background=($!)
  trap end_background EXIT
  read -r -t 30 number <&"$from_server" || fail "The virtual display did not open"
  export DISPLAY=:$number QT_QPA_PLATFORM=xcb
  openbox --sm-disable --config-file /etc/xdg/openbox/rc.xml &>/dev/null &
  background+=($!)
  await 10 eval "xprop -root _NET_SUPPORTING_WM_CHECK | grep -q '#'" || fail "No window manager"
}

end_background() {
  if ((with_windows)); then scripts/wine --server --kill || true; fi
  kill "${background[@]}" 2>/dev/null || true
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
  with_windows=1  # its server takes all that it runs along, if it is told to end, not killed
  scripts/wine wineboot.exe --init &>build/windows/wine.log
}
