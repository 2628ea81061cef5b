#!/usr/bin/env bash
# Draws every dialog that a transcript of tests/scripts opens, as the window shows it, for ordinary and for dense screens, into
# docs/pictures/dialogs: docs/pictures/dialogs.sh [PROGRAM]. Look at them before committing.
set -euo pipefail
cd "$(dirname "$0")/../.."
program=$(realpath "${1:-build/release/tests/dialog_pictures/zephyl-dialog-pictures}")
folder=docs/pictures/dialogs

mkdir -p "$folder"
rm -f "$folder"/*.png
find tests/scripts -name '*.txt' ! -name CMakeLists.txt -print0 | sort -z | xargs -0 "$program" "$folder"
echo "$(ls "$folder" | grep -vc @2x) dialogs in $folder"
