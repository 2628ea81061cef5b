#!/usr/bin/env bash
# Files of the two kinds are known by their names once the types are installed.
. "$(dirname "$0")/common.sh"
install_all
mime=$work/root/usr/share/mime
xmllint --noout "$mime/packages/zephyl.xml"
export XDG_DATA_HOME=$work/none XDG_DATA_DIRS=$work/root/usr/share:/usr/share
update-mime-database "$mime" >"$work/told" 2>&1 || fail "$(cat "$work/told")"
[ ! -s "$work/told" ] || fail "$(cat "$work/told")"

printf 'V: 2.7A\r\nS: \r\n' >"$work/monday.state"
printf 'N: One\r\nV: 2.7A\r\nI: 12\r\n' >"$work/One.prgm"
type_of() { gio info -a standard::content-type "$1" | sed -n 's/.*content-type: //p'; }
[ "$(type_of "$work/monday.state")" = application/x-zephyl-state ] || fail "a state is $(type_of "$work/monday.state")"
[ "$(type_of "$work/One.prgm")" = application/x-zephyl-program ] || fail "a program is $(type_of "$work/One.prgm")"
