#!/bin/sh
# Runs every fuzzer for a bounded time on its kept corpus.
#
#     tests/fuzz/run.sh BUILD_FOLDER SECONDS
#
# What it finds new stays in BUILD_FOLDER; an input that crashes or hangs is printed, kept there
# and fails the run.
set -eu
build="$1"
seconds="$2"
here="$(dirname "$0")"

for fuzzer in app profile script sec xml; do
    case "$fuzzer" in
        profile) dictionary=app ;;
        *) dictionary="$fuzzer" ;;
    esac
    found="$build/found-$fuzzer"
    mkdir -p "$found"
    if "$build/fuzz_$fuzzer" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=2048 -max_len=65536 \
        -dict="$here/$dictionary.dict" -artifact_prefix="$build/crash-$fuzzer-" -print_final_stats=1 \
        "$found" "$here/corpus/$fuzzer" >"$build/fuzz-$fuzzer.log" 2>&1; then
        inputs="$(sed -n "s/stat::number_of_executed_units: *//p" "$build/fuzz-$fuzzer.log")"
        echo "fuzz_$fuzzer: $inputs inputs, no finding"
    else
        tail -n 60 "$build/fuzz-$fuzzer.log" >&2
        echo "fuzz_$fuzzer: FOUND an input that fails" >&2
        exit 1
    fi
done
