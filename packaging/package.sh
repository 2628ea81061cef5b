#!/usr/bin/env bash
# Makes the Debian package from nothing but the source: build/release/zephyl_VERSION-1_ARCHITECTURE.deb.
set -euo pipefail
cd "$(dirname "$0")/.."

packaging/install-packages.sh build window package
packaging/build.sh release ZEPHYL_WINDOW=ON ZEPHYL_TESTS=OFF
(cd build/release && cpack)
