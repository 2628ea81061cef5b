#!/usr/bin/env bash
# The Debian package holds what `cmake --install` installs, asks for the libraries that it needs, and has nothing that
# Debian's checker calls an error or a warning.
. "$(dirname "$0")/common.sh"
install_all
(cd "$build_folder" && cpack -B "$work/package") >"$work/told" 2>&1 || fail "$(cat "$work/told")"
package=$(echo "$work"/package/*.deb)
field() { dpkg-deb --field "$package" "$1"; }

version=$("$work/root/usr/bin/zephyl" --version)
[ "$(field Package) $(field Version)" = "$version-1" ] || fail "it is $(field Package) $(field Version)"
for library in libc6 libqt6widgets6 libreadline8 zlib1g; do
  field Depends | grep -q "\b$library\b" || fail "it doesn't ask for $library but for $(field Depends)"
done
[ "$(field Section)" = math ] || fail "its section is $(field Section)"
[ "$(field Maintainer)" = "Zephyl developers <developers@zephyl.example.org>" ] || fail "by $(field Maintainer)"

(cd "$work/root" && find . -type f | sort) >"$work/installed"
dpkg-deb --contents "$package" | sed -n 's/^-.* \(\.\/.*\)/\1/p' | sort >"$work/packed"
same "files of the package and of an installation" "$work/installed" "$work/packed"

# The one tag left out is about reports to Debian itself.
lintian --allow-root --suppress-tags initial-upload-closes-no-bugs --fail-on error,warning "$package" ||
  fail "lintian isn't content"
