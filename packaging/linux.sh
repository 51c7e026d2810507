# shellcheck shell=bash disable=SC2154
# Sourced by ./package: the archive for Linux.

# newest PREFIX: the newest version that a program wants of a library whose versions are called so.
newest() { objdump -T "$1" | sed -n "s/.*[ (]$2\([0-9.]*[0-9]\).*/\1/p" | sort -V | tail -n 1; }

make_linux_archive() {
  local name
  name=termvik-$version-linux-$(uname -m)
  local folder=$out/$name
  configure release -D TERMVIK_PORTABLE=ON -D CMAKE_EXE_LINKER_FLAGS=-Wl,-s,-z,relro,-z,now,--as-needed
  build_into "$name" release
  fill_in packaging/portable/read-me-linux.txt "VERSION=$version" "MACHINE=$(uname -m)" \
    "QT=$(newest "$folder/termvik" Qt_)" "GLIBC=$(newest "$folder/termvik" GLIBC_)" \
    "GLIBCXX=$(newest "$folder/termvik" GLIBCXX_3.4.)" >"$folder/READ-ME.txt"
  cat packaging/portable/notices-linux.txt "$(sed -n 's/^icu_license:FILEPATH=//p' "$out/release/CMakeCache.txt")" \
    >"$folder/NOTICES.txt"
  as_of_commit "$folder"
  # The two programs have their ICU in common, which xz sees and gzip does not.
  tar --create --format=ustar --sort=name --owner=0 --group=0 --numeric-owner -C "$out" "$name" |
    xz -9 --threads=1 >"$folder.tar.xz"
}
