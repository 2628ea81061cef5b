#!/usr/bin/env bash
# Joins the pages of the manual into one HTML file that needs nothing beside it: make-help.sh DOCS VERSION OUTPUT.html
#
# The pages come in the order of the table in docs/manual/README.md, then the pages of docs/ that they lead to. Links
# between them become anchors, pictures lie inside. A page that no row of the table names, or a link that leads nowhere,
# stops the build.
set -euo pipefail

here=$(cd "$(dirname "$0")" && pwd)
docs=$1 version=$2 output=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# What stands in the first cell of the table's rows: [Title](page.md).
manual_pages() { sed -n 's/^| \[[^]]*\](\([a-z0-9-]*\)\.md).*/\1/p' "$docs/manual/README.md"; }
# The pages outside of the manual that it leads to, each once, in the order of its pages.
further_pages() {
  local page
  for page in README $(manual_pages); do
    grep -o '](\.\./[a-z0-9-]*\.md' "$docs/manual/$page.md" | sed 's/.*\///; s/\.md$//' || true
  done | awk '!seen[$0]++'
}

for file in "$docs"/manual/*.md; do
  page=$(basename "$file" .md)
  if [ "$page" != README ] && ! manual_pages | grep -qx "$page"; then
    echo "make-help.sh: no row of docs/manual/README.md names $page.md" >&2
    exit 1
  fi
done

manual=$(manual_pages) further=$(further_pages)
included=$(echo manual $manual $further)

# add_page FILE ID: a section of the body and its part of the table of contents.
add_page() {
  cmark-gfm -e table <"$1" |
    awk -v page="$2" -v folder="$(dirname "$1")" -v included=" $included " -v contents="$work/contents" \
      -f "$here/page.awk" >>"$work/body"
}

# What is meant for the writers of pages isn't for readers of the help.
mkdir "$work/manual"
sed '/^## For whoever writes a page/,$d' "$docs/manual/README.md" >"$work/manual/README.md"
add_page "$work/manual/README.md" manual
for page in $manual; do add_page "$docs/manual/$page.md" "$page"; done
for page in $further; do add_page "$docs/$page.md" "$page"; done

{
  cat <<HTML
<!DOCTYPE html>
<html lang="en" xmlns="http://www.w3.org/1999/xhtml">
<head>
<meta charset="utf-8"/>
<meta name="viewport" content="width=device-width, initial-scale=1"/>
<meta name="color-scheme" content="light dark"/>
<title>Zephyl help</title>
<style>
$(cat "$here/style.css")
</style>
</head>
<body>
<nav aria-label="Contents">
<p class="product">Zephyl <span>$version</span></p>
<ul>
HTML
  cat "$work/contents"
  echo '</ul>'
  echo '</nav>'
  echo '<main>'
  cat "$work/body"
  echo '</main>'
  echo '</body>'
  echo '</html>'
} >"$work/help.html"
mv "$work/help.html" "$output"
