# shellcheck shell=bash disable=SC2154
# Sourced by ./package: the Debian package, which needs the libraries of the Debian that it was made on.

make_deb() {
  local staged=$out/deb arch doc
  command -v dpkg-deb >/dev/null || { echo "No Debian package: dpkg-deb is missing" && return; }
  # The same tree again, which only has to be linked anew.
  configure release -U 'ICU_*' -U 'EXPAT_*' -D TERMVIK_PORTABLE=OFF -D CMAKE_INSTALL_LIBDIR=lib
  build_into deb/usr release
  arch=$(dpkg --print-architecture)
  doc=$staged/usr/share/doc/termvik

  # Debian has the licences in one file of its own form, and a changelog in its own.
  rm -r "$doc/LICENSE" "$doc/LICENSES"
  { cat packaging/deb/copyright && sed 's/^$/./; s/^/ /' LICENSES/CC-BY-4.0.txt; } >"$doc/copyright"
  fill_in packaging/deb/changelog "VERSION=$version" "DATE=$(date -R --date="@$SOURCE_DATE_EPOCH")" >"$doc/changelog"
  gzip -n9 "$doc"/changelog "$staged"/usr/share/man/*/*

  mkdir "$staged/DEBIAN"
  (cd "$staged" && find usr -type f -exec md5sum {} + | LC_ALL=C sort -k 2 >DEBIAN/md5sums)
  fill_in packaging/deb/control "VERSION=$version" "ARCH=$arch" "DEPENDS=$(library_packages "$staged")" \
    "SIZE=$(du -sk --apparent-size "$staged/usr" | cut -f 1)" >"$staged/DEBIAN/control"
  as_of_commit "$staged"
  dpkg-deb --root-owner-group -Zxz --threads-max=1 --build "$staged" "$out/termvik_${version}_$arch.deb"
}

# library_packages FOLDER: those that its programs are linked to, with the versions that they need.
library_packages() {
  mkdir -p "$out/shlibs/debian"
  printf 'Source: termvik\n\nPackage: termvik\nArchitecture: any\n' >"$out/shlibs/debian/control"
  (
    cd "$out/shlibs" || exit
    find "$1"/usr/lib/termvik/termvik "$1"/usr/bin -type f -exec sh -c 'head -c 4 "$1" | grep -q ELF' sh {} \; -print0 |
      xargs -0 dpkg-shlibdeps -O | sed 's/^shlibs:Depends=//'
  )
}
