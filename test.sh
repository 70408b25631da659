#!/bin/sh
# Runs every check of the project: formatting, the tests, the tests under sanitizers, and the
# fuzzers for a bounded time. Installs what it needs.
set -eu
cd "$(dirname "$0")"
. scripts/packages.sh

fuzz_seconds="${TESSALY_FUZZ_SECONDS:-20}"

# shellcheck disable=SC2086 # lists of words
need $build_packages $test_packages

echo "== Formatting"
find src tests bench samples \( -name '*.h' -o -name '*.cpp' \) -print0 |
    xargs -0 clang-format --dry-run -Werror

for preset in dev asan; do
    echo "== Tests ($preset)"
    configure "$preset"
    cmake --build --preset "$preset" -- --quiet
    ctest --preset "$preset" -j "$(nproc)"
done

echo "== Fuzzers, $fuzz_seconds seconds each"
configure fuzz
cmake --build --preset fuzz --target fuzzers -- --quiet
tests/fuzz/run.sh build/fuzz "$fuzz_seconds"

echo "All checks passed."
