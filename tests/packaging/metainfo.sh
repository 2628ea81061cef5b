#!/usr/bin/env bash
# What software centres show is valid and is about this release.
. "$(dirname "$0")/common.sh"
install_all
appstreamcli validate --no-net "$work/root"/usr/share/metainfo/*.xml || fail "not valid"
version=$("$work/root/usr/bin/zephyl" --version)
grep -q "<release version=\"${version#zephyl }\"" "$work/root"/usr/share/metainfo/*.xml || fail "it isn't about $version"
