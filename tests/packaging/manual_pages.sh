#!/usr/bin/env bash
# Each program has its manual page, without a warning of either of two formatters, with the version at its foot.
. "$(dirname "$0")/common.sh"
install_all
for program in "$work"/root/usr/bin/*; do
  name=$(basename "$program")
  page=$work/root/usr/share/man/man1/$name.1.gz
  gunzip -c "$page" >"$work/$name.1" || fail "$name has no page"
  mandoc -Tlint -Wwarning "$work/$name.1" || fail "$name.1 isn't clean"
  told=$(man --warnings -l "$page" 2>&1 >"$work/$name.txt")
  [ -z "$told" ] || fail "$told"
  version=$("$program" --version)
  grep -q "^Zephyl ${version##* } " "$work/$name.txt" || fail "the foot of $name.1 doesn't have ${version##* }"
  for option in --version --help; do grep -q -- "$option" "$work/$name.txt" || fail "$name.1 lacks $option"; done
done
