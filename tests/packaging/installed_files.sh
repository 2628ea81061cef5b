#!/usr/bin/env bash
# `cmake --install` puts there what is listed, but for the documents, which are those of docs/.
. "$(dirname "$0")/common.sh"
install_all
(cd "$work/root" && find . -type f | sed 's/^\.//' | grep -v '^/usr/share/doc/zephyl/docs/' | sort) >"$work/found"
same "installed files" "$here/installed_files.txt" "$work/found"
(cd "$source_folder/docs" && find . -name '*.md' -o -name '*.png' | sort) >"$work/docs"
(cd "$work/root/usr/share/doc/zephyl/docs" && find . -type f | sort) >"$work/installed_docs"
same "documents" "$work/docs" "$work/installed_docs"

for size in 16 22 24 32 48 64 96 128 256; do
  icon=$work/root/usr/share/icons/hicolor/${size}x$size/apps/zephyl.png
  file "$icon" | grep -q "PNG image data, $size x $size, 8-bit/color RGBA" || fail "$(file "$icon")"
done
