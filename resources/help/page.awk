# A page of HTML, as cmark-gfm makes it, becomes a section of the help.
#   page: its id; folder: where its file lies; included: all ids, each between blanks; contents: the file that gets its
#   part of the table of contents.

function fail(what) {
  print "page.awk: " page ": " what > "/dev/stderr"
  failed = 1
  exit 1
}

# An id out of a heading, as code hosts make them: "Reading the examples" is reading-the-examples.
function slug(heading) {
  gsub(/<[^>]*>/, "", heading)
  gsub(/&[a-z]+;/, "", heading)
  heading = tolower(heading)
  gsub(/[^a-z0-9 _-]/, "", heading)
  gsub(/ /, "-", heading)
  return heading
}

# Where a link of the page leads within the help.
function anchor(target,    parts, name) {
  if (target ~ /^[a-z]+:/) return target
  if (target ~ /^#/) return "#" page "-" substr(target, 2)
  split(target, parts, "#")
  name = parts[1]
  sub(/.*\//, "", name)
  if (name !~ /\.md$/) fail("a link to " target)
  sub(/\.md$/, "", name)
  if (name == "README") name = "manual"
  if (index(included, " " name " ") == 0) fail("a link to " target ", which isn't in the help")
  return parts[2] == "" ? "#" name : "#" name "-" parts[2]
}

# The picture itself, as text.
function picture(path,    command, data) {
  command = "base64 -w 0 '" folder "/" path "'"
  if ((command | getline data) <= 0) fail("no picture " path)
  close(command)
  return "data:image/png;base64," data
}

# line with each value of an attribute replaced.
function with_links(line,    done, value) {
  done = ""
  while (match(line, /(href|src)="[^"]*"/)) {
    value = substr(line, RSTART, RLENGTH)
    done = done substr(line, 1, RSTART - 1)
    line = substr(line, RSTART + RLENGTH)
    if (value ~ /^href/) done = done "href=\"" anchor(substr(value, 7, length(value) - 7)) "\""
    else done = done "src=\"" picture(substr(value, 6, length(value) - 6)) "\""
  }
  return done line
}

function open_contents(title) {
  print "<li><details><summary><a href=\"#" page "\">" title "</a></summary>" >> contents
  print "<ul>" >> contents
}

BEGIN { print "<section>" }

/^<h1>/ {
  gsub(/<\/?h1>/, "")
  open_contents($0)
  print "<h1 id=\"" page "\">" $0 "</h1>"
  next
}

/^<h[23]>/ {
  level = substr($0, 3, 1)
  gsub(/<\/?h[23]>/, "")
  id = page "-" slug($0)
  if (level == 2) print "<li><a href=\"#" id "\">" $0 "</a></li>" >> contents
  print "<h" level " id=\"" id "\">" $0 "</h" level ">"
  next
}

# An example: what is typed stands out from what is answered.
/^<pre><code class="language-zephyl">/ { in_example = 1 }
in_example {
  head = ""
  if (match($0, /^<pre><code[^>]*>/)) {
    head = "<pre class=\"example\"><code>"
    $0 = substr($0, RLENGTH + 1)
  }
  ended = sub(/<\/code><\/pre>$/, "")
  if ($0 ~ /^(&gt;|\$) /) $0 = "<b>" $0 "</b>"
  else if ($0 ~ /^# /) $0 = "<i>" $0 "</i>"
  print head $0 (ended ? "</code></pre>" : "")
  if (ended) in_example = 0
  next
}

# A wide table scrolls by itself.
/^<table>/ { print "<div class=\"table\">" }
{ print with_links($0) }
/^<\/table>/ { print "</div>" }

END {
  if (failed) exit 1
  print "</section>"
  print "</ul></details></li>" >> contents
}
