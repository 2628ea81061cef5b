#!/usr/bin/env bash
# The desktop entry is valid, and names a program, an icon and file types that are installed.
. "$(dirname "$0")/common.sh"
install_all
entry=$work/root/usr/share/applications/zephyl.desktop
told=$(desktop-file-validate "$entry")
[ -z "$told" ] || fail "$told"
value() { sed -n "s/^$1=//p" "$entry"; }
program=$(value Exec)
[ -x "$work/root/usr/bin/${program%% *}" ] || fail "no program $program"
[ -f "$work/root/usr/share/icons/hicolor/48x48/apps/$(value Icon).png" ] || fail "no icon $(value Icon)"
for type in $(value MimeType | tr ';' ' '); do
  grep -q "type=\"$type\"" "$work/root/usr/share/mime/packages/zephyl.xml" || fail "no type $type"
done
