#!/usr/bin/env bash
# Makes what the calculator paints now the golden pictures of tests/pictures, and tells which of them changed. A regular
# expression limits it to the tests that match: tests/renew-pictures.sh [EXPRESSION]. BUILD=build/debug takes another build.
set -euo pipefail
cd "$(dirname "$0")/.."

build=${BUILD:-build/release}
differences=$build/picture-differences
pictures=tests/pictures

rm -rf "$differences"
echo "Running the tests of $build to see what is painted"
ctest --test-dir "$build" -j"$(nproc)" -Q ${1:+-R "$1"} || true

changed=0
for actual in "$differences"/*.actual.png; do
  [ -f "$actual" ] || continue
  name=$(basename "$actual" .actual.png)
  if [ -f "$differences/$name.difference.png" ]; then
    echo "changed: $pictures/$name.png (what changed: $differences/$name.difference.png)"
  elif [ -f "$pictures/$name.png" ]; then
    echo "another size: $pictures/$name.png"
  else
    echo "new: $pictures/$name.png"
  fi
  mkdir -p "$pictures"
  cp "$actual" "$pictures/$name.png"
  changed=$((changed + 1))
done
echo "$changed pictures renewed. Look at each of them before committing."
