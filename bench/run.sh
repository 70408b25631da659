#!/bin/sh
# Runs every benchmark beside its peers and rewrites docs/benchmarks.md with what they print.
# Takes some minutes and 4 GB of memory; leave the machine alone meanwhile.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh

# shellcheck disable=SC2086 # lists of words
need $build_packages $test_packages $bench_packages
configure bench
cmake --build --preset bench -- --quiet

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
report="$work/benchmarks.md"
export QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES="default.warning=false"

section() { # TITLE TEXT COMMAND ...
    title="$1"
    text="$2"
    shift 2
    echo "$title" >&2
    printf '\n## %s\n\n%s\n\n```\n' "$title" "$text" >>"$report"
    (cd "$work" && "$@") >>"$report"
    printf '```\n' >>"$report"
}

programs="$PWD/build/bench"
cat >"$report" <<END
# Benchmarks

What \`bench/run.sh\` printed last. Ratios are within one run on one machine, with both sides doing
the same work, so they can be compared with those of another machine; single times can not.

- $(sed -n 's/^model name[^:]*: *//p' /proc/cpuinfo | head -n 1), $(nproc) processors, $(sed -n 's/^MemTotal: *\([0-9]*\) kB/\1/p' /proc/meminfo | awk '{ printf "%.0f GB", $1 / 1048576 }') of memory
- $(. /etc/os-release && echo "$PRETTY_NAME"), $(g++ --version | head -n 1), Qt $(qmake6 -query QT_VERSION 2>/dev/null || dpkg-query -W -f '${Version}' qt6-base-dev), $(python3 --version)
END

"$programs/tessaly-generate" --dimension Entity --members 1000000 --edges 1200000 --languages 2 \
    --seed 1 "$work/million.app" >&2

section "Opening an application" \
    "1,000,000 members in 1,200,000 edges, descriptions in two languages; beside a bare pass that finds line and field ends in the same bytes and converts them to UTF-16, each line as a whole or each field by itself, and beside a Python script that reads them into dictionaries. All is processor time of one thread. The goals: at most 4 bare passes, at least 10 times faster than the script, at most 2.5 times the file in memory." \
    "$programs/open_application" million.app
section "Opening a security file" \
    "5,000 users and 2,000 classes with 1,000,000 records of access, beside the same bare pass over its bytes. The goal: at most 4." \
    "$programs/open_security"
section "A dynamic member list" \
    "A list whose script loops over 100,000 entities and asks two attributes of each, beside the same loops in CPython over dictionaries. The goal: at least 3 times faster." \
    "$programs/member_list"
section "Building and showing an extract" \
    "Building beside copying the finished text once, piece by piece, from ready strings, and the time from the click on \"Run Extract\" to the text on the screen beside building. The goals: at most 3 and at most 2, linear in the rows." \
    "$programs/extract_build"
section "Showing a long text" \
    "The text of 1,200,000 rows in the program's own text box and in Qt's." \
    "$programs/show_text"
section "Saving a long text" \
    "The same text written with one call and with the program's safe writing, each made to reach the disk. The goal: at most 2." \
    "$programs/save_text"
section "The member tree" \
    "Building and using the metadata viewer's tree of accounts, whose parents have 8 or 50 children on average: beside a pass that only makes the node texts, and beside a tree of one item object a node whose parents are found by searching backwards. The goals: at most 2 such passes; at least 5 times faster than the items at 10,000 nodes and 20 times at 100,000; time a node growing by at most a half; at most 64 bytes a node over its text, counted here as two bytes a character, though most texts are kept in one; Expand All in half of the build. Both trees read the same texts from the client, most of the time that ours takes; \"alone\" compares what either takes beyond that. Where parents are narrow the backward search ends soon and the texts weigh more: there the goal of 20 is not reached." \
    "$programs/viewer_tree"
section "The workbook of a tree" \
    "Exporting the tree of 500,000 accounts with all their attributes, from the open tree to the workbook on the disk; beside a bare loop that hands the same cells, ready and in order, to libxlsxwriter, and beside Python's XlsxWriter in its constant-memory mode, the reading of the cells left out. The goals: at most 1.3 of the bare loop, at least 4 times faster than Python, and less than 64 MB of memory beside the tree." \
    "$programs/export_tree" "$PWD/bench/write_cells.py"
section "The analyses" \
    "The application information's searches beside the same searches comparing every pair, and its other readings; 32,767 entries are the most that a search, a list or an answer may have. The goals: linear in what is read, and at 32,000 entries at least 50 times faster than pair by pair." \
    "$programs/appinfo_analyses"
section "The application information window" \
    "From the user's act to everything painted. The goals: opening takes the same whatever the size of the application, and nothing about a list of 30,000 entries takes a pause that one could notice, which is 100 ms." \
    "$programs/appinfo_window"
section "The member list builder" \
    "Opening it and picking every member at once, to everything painted; beside item widgets with one object a row, whose tree finds parents by searching backwards." \
    "$programs/build_list"

mv "$report" docs/benchmarks.md
