#!/bin/bash
# `./install` of the archive: the menu starts the program from a folder of any name, and `--remove` leaves
# nothing behind.
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/../.."
source scripts/setup.sh

scratch=$PWD/build/menu-test
export HOME=$scratch/home XDG_RUNTIME_DIR=$scratch/home DBUS_SESSION_BUS_ADDRESS=disabled:
export XDG_DATA_HOME=$HOME/.data
entry=$XDG_DATA_HOME/applications/test.termvik.Termvik.desktop

# started_by_menu FOLDER: what a desktop starts is the program of that folder.
started_by_menu() {
  rm -f "$scratch/started"
  (cd / && gio launch "$entry") || fail "The desktop cannot start the entry for $1"
  await 10 test -s "$scratch/started" || fail "The menu entry does not start $1/termvik"
  [[ $(<"$scratch/started") == "$1/termvik" ]] || fail "The menu entry started $(<"$scratch/started")"
}

rm -rf "$scratch" && mkdir -p "$scratch" "$HOME"
need_packages desktop-file-utils libglib2.0-bin xz-utils
tar -C "$scratch" -xf build/packages/*.tar.xz
cat >"$scratch/program" <<END
#!/bin/sh
printf '%s\\n' "\$0" >"$scratch/started.new" && mv "$scratch/started.new" "$scratch/started"
END

# shellcheck disable=SC2016 # nothing may expand them
names=(plain 'two  blanks' 'R&D' '100% %f' "it's \"quoted\"" 'back\slash\\two' '$HOME `id` $(id)' 'a;b|c<d>=*?~#!'
  'Ordböcker Ł' ' end ')
for name in "${names[@]}"; do
  folder=$scratch/$name
  cp -a "$scratch"/termvik-* "$folder"
  install "$scratch/program" "$folder/termvik"
  "$folder/install" >"$scratch/log"
  desktop-file-validate "$entry"
  started_by_menu "$folder"
done
[[ $(find "$XDG_DATA_HOME/icons" -name 'test.termvik.Termvik.*' | wc -l) == 11 ]] || fail "There are not all icons"
mv "$folder" "$scratch/moved" && "$scratch/moved/install" >"$scratch/log" && started_by_menu "$scratch/moved"
"$scratch/moved/install" --remove >"$scratch/log"
[[ -z $(find "$HOME" -type f) ]] || fail "Something is left of the menu entry: $(find "$HOME" -type f)"
! "$scratch/moved/install" --unknown 2>"$scratch/log" || fail "install takes any argument"
rm -rf "$scratch"
