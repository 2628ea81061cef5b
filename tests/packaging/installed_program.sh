#!/usr/bin/env bash
# An installed program keeps the user's data in the user's data folder, and nothing beside itself.
. "$(dirname "$0")/common.sh"
install_all
mkdir "$work/home"
export HOME=$work/home XDG_DATA_HOME='' QT_QPA_PLATFORM=offscreen
(cd "$work/root" && find . | sort) >"$work/before"

[ "$(echo '2+2' | "$work/root/usr/bin/zephyl-console")" = 4 ] || fail "2+2 isn't 4"
[ -f "$work/home/.local/share/zephyl/startup.txt" ] || fail "the console keeps no settings"
rm -r "$work/home/.local"

# The window writes its settings when it ends, which a program that is told to stop doesn't reach: so it is asked for the
# user's programs, which a file that it opens is one of.
printf 'N: One\r\nV: 2.7A\r\nI: 12\r\n' >"$work/One.prgm"
"$work/root/usr/bin/zephyl" "$work/One.prgm" &
window=$!
for _ in $(seq 600); do
  if [ -f "$work/home/.local/share/zephyl/programs/One.prgm" ]; then break; fi
  sleep 0.1
done
kill $window
wait $window || true
cmp "$work/One.prgm" "$work/home/.local/share/zephyl/programs/One.prgm" || fail "the window keeps no programs"

(cd "$work/root" && find . | sort) >"$work/after"
same "the installed files before and after" "$work/before" "$work/after"
