# What every check begins with: its two folders, a folder of its own that goes with it, and what it fails with.
set -euo pipefail
export LC_ALL=C.UTF-8
source_folder=$1 build_folder=$2
here=$source_folder/tests/packaging
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
  echo "$(basename "$0"): $*" >&2
  exit 1
}

# Installs into $work/root as a package would, below /usr.
install_all() {
  DESTDIR=$work/root cmake --install "$build_folder" --prefix /usr >"$work/install.log" || fail "$(cat "$work/install.log")"
}

# same WHAT EXPECTED FOUND
same() { diff -u "$2" "$3" || fail "$1 differ"; }
