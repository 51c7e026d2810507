# shellcheck shell=bash disable=SC2154
# Sourced by ./package: the archive for Windows.

make_windows_archive() {
  local name=termvik-$version-windows-x64 text
  local folder=$out/$name
  configure windows -D CMAKE_EXE_LINKER_FLAGS=-Wl,--no-insert-timestamp
  build_into "$name" windows
  fill_in packaging/portable/read-me-windows.txt "VERSION=$version" | iconv -t WINDOWS-1252 >"$folder/READ-ME.txt"
  cp packaging/portable/notices-windows.txt "$folder/NOTICES.txt"
  # As Windows ends lines, and under a name that it opens.
  mv "$folder/LICENSE" "$folder/LICENSE.txt"
  for text in "$folder"/{READ-ME,NOTICES,LICENSE,LICENSES/*}.txt; do sed -i 's/$/\r/' "$text"; done
  as_of_commit "$folder"
  (cd "$out" && find "$name" | LC_ALL=C sort | zip -qX9 "$name.zip" -@)
}
