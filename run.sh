#!/bin/sh
# Builds Tessaly and starts it, with the sample cluster offered. Installs what the build needs.
# Where there is no display it takes the tour instead: the program drives itself off-screen and
# leaves pictures and files in build/tour/.
set -eu
cd "$(dirname "$0")"
. scripts/packages.sh

# shellcheck disable=SC2086 # a list of words
need $build_packages
configure release
cmake --build --preset release --target tessaly tour -- --quiet

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec build/release/tessaly
fi
echo "There is no display here, so Tessaly takes the tour off-screen."
rm -rf build/tour
mkdir -p build/tour
QT_QPA_PLATFORM=offscreen build/release/tour build/tour
echo "What it saw is in build/tour/:"
ls build/tour
