#!/usr/bin/env bash
# Draws the pictures of this folder anew with zephyl-script: docs/pictures/draw.sh [PROGRAM]. Look at them before committing.
set -euo pipefail
cd "$(dirname "$0")/../.."
program=$(realpath "${1:-build/release/zephyl-script}")
folder=$PWD/docs/pictures
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

# Each time a calculator that has never been used.
draw() { rm -f startup.txt && "$program" >/dev/null; }

# The Setup tab is key 48 where there are digit keys.
skin() { printf 'key 48\npress "Display Color/Skin"\nchoose Skin "%s"\npress OK\npress OK\n' "$1"; }
# menu TAB ROW: the tab of the menu is key 47 in COMP, 16 under a plot, 4 over a table.
menu() { printf 'key %s\nchoose #0 "%s"\npress OK\n' "$1" "$2"; }
sample() { menu "$1" "Plot Samples"; printf 'choose #0 "%s"\npress OK\nidle 3\n' "$2"; }
png() { printf 'png %s/%s.png\n' "$folder" "$1"; }
comp() { printf 'eval 2->angleMode\neval 2+sin(30)*sqRt 2\n'; png "comp_$1"; }

{ comp colorful
  menu 47 "STATS Mode"; printf 'eval 12.5\nkey 26\neval 17\nkey 26\neval 14.5\nkey 26\nkey 11\nkey 42\n'; png stats
} | draw
{ sample 47 Function; png plot; } | draw
{ printf 'eval randMatrix(7,5)->[A]\n'; menu 47 "MATRIX Mode"; png matrix; } | draw

{ skin Dark; comp dark
  printf 'eval 4->baseType\n'; menu 47 "BASE-n Mode"; printf 'eval 255*16+A\n'; png base
} | draw
{ skin Dark; sample 47 "3D Cartesian"; png plot3d; } | draw
{ skin Dark; printf 'eval Seq(sqRt A,A,1,20)->{A}\n'; menu 47 "LIST Mode"; png list; } | draw

{ skin Light; comp light; menu 47 "Periodic Table"; png periodic; } | draw
{ skin Light; sample 47 Polar; png polar; } | draw
{ skin Light
  printf 'key 44\nchoose "Program Type" "Built-in Program"\nchoose #0 "Quadratic Equation"\npress OK\n'; png program
} | draw
{ skin Light; printf 'key 1\nkey 24\nchar Hello'; printf '\n'; png text; } | draw
