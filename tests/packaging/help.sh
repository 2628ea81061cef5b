#!/usr/bin/env bash
# The help is well-formed, has every page of the manual, needs nothing beside it, and its links lead somewhere.
. "$(dirname "$0")/common.sh"
help=$build_folder/Zephyl_help.html

xmllint --noout "$help"
for page in "$source_folder"/docs/manual/*.md; do
  id=$(basename "$page" .md)
  if [ "$id" = README ]; then id=manual; fi
  grep -q "<h1 id=\"$id\">" "$help" || fail "the page $id is missing"
  grep -q "<a href=\"#$id\">" "$help" || fail "the page $id isn't in the table of contents"
done
grep -o ' id="[^"]*"' "$help" | sed 's/.* id="\(.*\)"/\1/' | sort >"$work/ids"
[ -z "$(uniq -d "$work/ids")" ] || fail "ids that stand twice: $(uniq -d "$work/ids")"
# Attributes only: examples may have such words, too, with their quotes escaped.
grep -o 'href="[^"]*"' "$help" | sed 's/href="\(.*\)"/\1/' | sort -u >"$work/links"
[ "$(wc -l <"$work/links")" -gt 20 ] || fail "hardly any links"
while read -r link; do
  case $link in
    '#'*) grep -qxF -- "${link#\#}" "$work/ids" || fail "a link to $link leads nowhere" ;;
    *) fail "a link to $link leads out of the help" ;;
  esac
done <"$work/links"
pictures=$(grep -c '<img ' "$help")
[ "$pictures" -gt 5 ] || fail "only $pictures lines with pictures"
! grep -o '<img src="[^"]\{0,22\}' "$help" | grep -v '"data:image/png;base64,' || fail "a picture lies outside"

# A page that isn't in the table, and a link to nothing, stop the making.
cp -r "$source_folder/docs" "$work/docs"
make_help() { "$source_folder/resources/help/make-help.sh" "$work/docs" 0 "$work/help.html" 2>"$work/told"; }
make_help || fail "the help can't be made of a copy: $(cat "$work/told")"
echo '# A page' >"$work/docs/manual/of-no-row.md"
! make_help && grep -q of-no-row "$work/told" || fail "a page without a row goes unnoticed"
rm "$work/docs/manual/of-no-row.md"
echo '[link](no-such-page.md)' >>"$work/docs/manual/lists.md"
! make_help && grep -q no-such-page "$work/told" || fail "a link to nothing goes unnoticed"
