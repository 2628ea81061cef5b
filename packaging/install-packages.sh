#!/usr/bin/env bash
# Installs what is missing of the Debian packages that a purpose needs: install-packages.sh PURPOSE...
# This is the one place that lists packages. As root, or as a user with sudo.
set -euo pipefail

packages_for() {
  case "$1" in
    build) echo cmake ninja-build g++ zlib1g-dev libreadline-dev libfreetype-dev xfonts-base xfonts-terminus ;;
    window) echo qt6-base-dev cmark-gfm ;;
    wayland) echo qt6-wayland ;;
    package) echo dpkg-dev file ;;
    tests) echo libgtest-dev libgsl-dev libboost-math-dev libeigen3-dev libpng-dev giflib-tools $(packages_for package) \
      lintian desktop-file-utils appstream mandoc man-db groff libxml2-utils shared-mime-info libglib2.0-bin ;;
    bench) echo libbenchmark-dev libmuparser-dev libgif-dev libeigen3-dev libgsl-dev libboost-math-dev ;;
    start-up) echo xvfb libxcb1-dev ;;
    fuzz) echo clang libclang-rt-14-dev ;;
    *) echo "install-packages.sh: no packages are listed for '$1'" >&2; exit 1 ;;
  esac
}

missing_packages() {
  local purpose wanted="" installed
  for purpose in "$@"; do wanted+=" $(packages_for "$purpose")"; done
  # shellcheck disable=SC2086  # one word a package
  installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' $wanted 2>/dev/null | sed -n 's/^installed //p' || true)
  for package in $wanted; do
    grep -qx "$package" <<<"$installed" || echo "$package"
  done
}

as_root() {
  if [ "$(id -u)" = 0 ]; then "$@"
  elif command -v sudo >/dev/null; then sudo "$@"
  else
    echo "install-packages.sh: installing needs root or sudo" >&2
    exit 1
  fi
}

apt() { as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=540 "$@"; }

missing=$(missing_packages "$@")
if [ -n "$missing" ]; then
  echo "Installing what is missing:" $missing
  apt update
  # shellcheck disable=SC2086  # one word a package
  apt install -y --no-install-recommends $missing
fi
