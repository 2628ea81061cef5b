#!/usr/bin/env bash
# Configures a preset where that hasn't been done, and builds: build.sh PRESET OPTION=ON|OFF... -- TARGET...
# An option that is ON stays on: what ./run leaves out, ./test adds, and not the other way round.
set -euo pipefail
cd "$(dirname "$0")/.."

preset=$1
shift
cache=build/$preset/CMakeCache.txt
options=()
must_configure=no
[ -f "build/$preset/build.ninja" ] || must_configure=yes

while [ $# -gt 0 ] && [ "$1" != -- ]; do
  name=${1%%=*} value=${1#*=}
  was=$(sed -n "s/^$name:[A-Z]*=//p" "$cache" 2>/dev/null || true)
  if [ "$was" = ON ]; then value=ON; fi
  if [ "$was" != "$value" ]; then must_configure=yes; fi
  options+=("-D$name=$value")
  shift
done
if [ $# -gt 0 ]; then shift; fi

if [ $must_configure = yes ]; then
  echo "Configuring build/$preset"
  cmake --preset "$preset" "${options[@]}"
fi
echo "Building in build/$preset"
cmake --build --preset "$preset" ${1:+--target "$@"}
