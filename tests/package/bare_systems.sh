#!/bin/bash
# Bare Debians with nothing but the one package that the archive's read-me names: the archive starts on
# each, as a plain user, and so does the Debian package on the release that it was made on.
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/../.."
source scripts/setup.sh
source tests/package/display.sh
source tests/package/roots.sh

scratch=$PWD/build/bare-test
named=$(tar -xOf build/packages/*.tar.xz --wildcards '*/READ-ME.txt' | sed -n 's/^.*apt install //p')

# as USER COMMAND...: in the root, with the display and a home.
as() { in_root "$root" "$1:$1" env -i HOME="/home/$1" PATH=/usr/bin DISPLAY="$DISPLAY" LANG=C.UTF-8 "${@:2}"; }
opens_and_closes() { open as "$@" && close; }
has() { [[ -s $root/home/$1 ]] || fail "There is no /home/$1 on $suite"; }

try_archive() {
  tar -C "$root/home/anna" -xf build/packages/*.tar.xz
  mv "$root"/home/anna/termvik-* "$root/home/anna/Termvik here"
  chroot "$root" chown -R anna: /home/anna
  opens_and_closes anna '/home/anna/Termvik here/termvik'
  has 'anna/Termvik here/Termvik.par'
}

try_package() {
  local said user
  cp build/packages/*.deb "$root/termvik.deb"
  in_root "$root" root:root apt-get -qqy install /termvik.deb &>"$scratch/log" ||
    fail "The package cannot be installed on $suite: $(<"$scratch/log")"
  for user in anna bo; do
    opens_and_closes "$user" termvik
    has "$user/.local/share/termvik/Termvik.par"
  done
  # A user whose home cannot be written.
  open as carl termvik 2>"$scratch/said"
  close
  said=$(<"$scratch/said")
  [[ $said == *'nothing will be kept'* ]] || fail "A home that cannot be written is not told: $said"
  echo 'my words' >"$root/home/bo/.local/share/termvik/graphword.txt"
  in_root "$root" root:root dpkg --purge termvik >"$scratch/log"
  [[ -z $(find "$root/usr" -path '*termvik*') ]] || fail "The purged package leaves files"
  has anna/.local/share/termvik/Termvik.par
  has bo/.local/share/termvik/graphword.txt
}

rm -rf "$scratch" && mkdir -p "$scratch"
need_packages "${display_packages[@]}"
open_virtual_display
made_on=$(. /etc/os-release && echo "$VERSION_CODENAME")
for suite in bookworm trixie; do
  [[ $made_on != trixie || $suite == trixie ]] || continue  # what is older may lack what it needs
  root=$scratch/$suite
  # shellcheck disable=SC2086 # one word a package
  bare_root "$root" "$suite" $named || continue
  for user in anna bo carl; do chroot "$root" useradd --create-home "$user"; done
  chroot "$root" chown root: /home/carl
  try_archive
  [[ $made_on != "$suite" ]] || try_package
  rm -rf "$root"
done
rm -rf "$scratch"
