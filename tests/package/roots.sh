# shellcheck shell=bash
# Sourced by the tests that try something in a bare Debian. Needs scripts/setup.sh.

# bare_root FOLDER SUITE PACKAGE...: a fresh Debian with these packages in FOLDER. What that takes is
# kept in build/roots. Fails with a line on the reason where none can be made.
bare_root() {
  local folder=$1 suite=$2 packages mirror kept
  packages=$(IFS=, && echo "${*:3}")
  kept=build/roots/$suite-$packages.tar
  if [[ ! -e $kept ]]; then
    ((EUID == 0)) || { skipped "only root can make a bare Debian" && return 1; }
    need_packages debootstrap
    # shellcheck disable=SC2016 # for apt, not for the shell
    mirror=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' 'Label: Debian')
    [[ $mirror ]] || { skipped "apt knows no mirror of Debian" && return 1; }
    mkdir -p build/roots && rm -rf build/roots/new
    debootstrap --variant=minbase --include="$packages" "$suite" build/roots/new "${mirror%%$'\n'*}" \
      >build/roots/debootstrap.log 2>&1 ||
      { skipped "debootstrap cannot make a bare $suite here, see build/roots/debootstrap.log" && return 1; }
    rm -f build/roots/new/var/cache/apt/archives/*.deb
    tar --one-file-system -C build/roots/new -cf "$kept.new" . && mv "$kept.new" "$kept"
    rm -rf build/roots/new
  fi
  mkdir -p "$folder" && tar -C "$folder" -xpf "$kept"
}

skipped() { echo "Skipped: $1"; }

# in_root FOLDER USER COMMAND...: as that user of the root. Whatever it starts ends with it.
in_root() {
  # shellcheck disable=SC2016 # the inner shell's arguments
  unshare --mount --pid --fork --kill-child bash -c \
    'mount -t proc proc "$1/proc" && exec chroot --userspec="$2" "$1" "${@:3}"' in_root "$@"
}
