#!/usr/bin/env bash
# How long zephyl takes from its start to its first window, and how much memory it has then, beside an empty Qt window:
# bench/start-up.sh [ROUNDS]. Both run on an X server without a screen (Xvfb), one after the other, ROUNDS times (20).
set -euo pipefail
cd "$(dirname "$0")/.."
rounds=${1:-20}

packaging/install-packages.sh build window bench start-up >&2
packaging/build.sh bench ZEPHYL_WINDOW=ON -- zephyl empty-window first-window >&2

folder=$(mktemp -d)
mkfifo "$folder/display"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -noreset -nolisten tcp 3>"$folder/display" 2>/dev/null &
server=$!
trap 'kill $server; rm -rf "$folder"' EXIT
read -r number <"$folder/display"
export DISPLAY=:$number QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$folder

# A copy of its own, so that no settings of an earlier run count.
cp build/bench/zephyl "$folder/zephyl"
measure() { build/bench/bench/first-window "$1" >>"$folder/$2"; }

measure build/bench/bench/empty-window warm
measure "$folder/zephyl" warm
for _ in $(seq "$rounds"); do
  measure build/bench/bench/empty-window empty
  measure "$folder/zephyl" full
done

# The median of a column.
median() { sort -n -k "$2" "$folder/$1" | awk -v column="$2" '{ row[NR] = $column } END { print row[int((NR + 1) / 2)] }'; }
printf '%-22s %10s %14s %18s\n' "median of $rounds" "window, ms" "own memory, kB" "resident memory, kB"
for name in empty full; do
  printf '%-22s %10s %14s %18s\n' "$([ $name = empty ] && echo "an empty Qt window" || echo zephyl)" \
    "$(median $name 1)" "$(median $name 2)" "$(median $name 3)"
done
