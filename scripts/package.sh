#!/bin/sh
# Builds the Debian package and the portable archive in build/release/packages/ and has the first
# looked through by lintian. Installs what it needs.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh

# shellcheck disable=SC2086 # lists of words
need $build_packages $packaging_packages
configure release
cmake --build --preset release -- --quiet
rm -rf build/release/packages
(cd build/release && cpack >cpack.log) || { cat build/release/cpack.log >&2; exit 1; }
rm -rf build/release/packages/_CPack_Packages
lintian --fail-on error,warning build/release/packages/*.deb
ls build/release/packages
