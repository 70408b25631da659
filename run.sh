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
[ -x build/release/tessaly ] || echo "Building Tessaly; the first time takes some minutes."
cmake --build --preset release --target tessaly tour -- --quiet

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec build/release/tessaly
fi
echo "There is no display here, so Tessaly takes the tour off-screen."
rm -rf build/tour
mkdir -p build/tour
# Qt's off-screen platform has no size hints to pass on, and says so for every window.
QT_LOGGING_RULES="default.warning=false" QT_QPA_PLATFORM=offscreen build/release/tour build/tour
echo "What it saw is in build/tour/:"
ls build/tour
