#!/bin/bash
# `orv-admin-env-cli set` of one variable into a 5,000-line ~/.bashrc, from
# process start to exit, against `sed -i` making the same one-line change,
# and against the same with the safety the program gives its save (a copy
# first, both synced to the disk), each run RUNS times (default 21) in turns,
# in a sandbox (temporary home, settings, data and system folders). Prints
# the medians and the ratios (goal against plain sed: at most 2).
#
# usage: bench/cli_set.sh [-n RUNS] [BUILD_DIR]
set -eu

runs=21
while getopts "n:" option; do
    case $option in
    n) runs=$OPTARG ;;
    *) sed -n '7p' "$0" >&2; exit 2 ;;
    esac
done
shift $((OPTIND - 1))
source_dir=$(cd "$(dirname "$0")/.." && pwd)
program=$(realpath -m "${1:-$source_dir/build}")/orv-admin-env-cli
[ -x "$program" ] || { echo "missing: $program (build it first)" >&2; exit 1; }

work=$(mktemp -d "${TMPDIR:-/tmp}/orv-cli-set-XXXXXX")
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/home" "$work/root/etc" "$work/runtime"
for copy in editor sed; do
    awk -v out="$work/$copy.bashrc" 'BEGIN {
        for (i = 0; i < 5000; i++) {
            if (i == 2500) print "export FOO=1" > out
            else if (i % 3 == 0) printf "export BENCH_%d=/opt/bench/%d\n", i, i > out
            else if (i % 3 == 1) printf "# a comment about line %d\n", i > out
            else printf "alias l%d=\"ls -l\"\n", i > out
        }
    }'
done

now() { date +%s%N; }
median() { sort -n | awk '{ a[NR] = $1 } END { print a[int((NR + 1) / 2)] }'; }
editor_times=()
sed_times=()
safe_times=()
for ((i = 0; i < runs; i++)); do
    value=$((i % 2 + 2))
    cp "$work/editor.bashrc" "$work/home/.bashrc"
    start=$(now)
    env -i HOME="$work/home" LOGNAME=bench SHELL=/bin/bash PATH=/usr/bin:/bin FOO=1 \
        XDG_CONFIG_HOME="$work/home/.config" XDG_DATA_HOME="$work/home/.local/share" \
        XDG_RUNTIME_DIR="$work/runtime" ORV_ADMIN_ENV_SYSROOT="$work/root" \
        "$program" set FOO "$value" >/dev/null
    editor_times+=($(($(now) - start)))
    cp "$work/sed.bashrc" "$work/sed.work"
    start=$(now)
    sed -i "s/^export FOO=.*/export FOO=$value/" "$work/sed.work"
    sed_times+=($(($(now) - start)))
    cmp -s "$work/home/.bashrc" "$work/sed.work" || { echo "the two wrote other bytes" >&2; exit 1; }
    cp "$work/sed.bashrc" "$work/sed.work"
    start=$(now)
    cp "$work/sed.work" "$work/sed.copy" && sync "$work/sed.copy" &&
        sed -i "s/^export FOO=.*/export FOO=$value/" "$work/sed.work" && sync "$work/sed.work"
    safe_times+=($(($(now) - start)))
done
editor=$(printf '%s\n' "${editor_times[@]}" | median)
sed=$(printf '%s\n' "${sed_times[@]}" | median)
safe=$(printf '%s\n' "${safe_times[@]}" | median)
awk -v e="$editor" -v s="$sed" -v c="$safe" -v n="$runs" 'BEGIN {
    printf "set of one variable into a 5,000-line ~/.bashrc, medians of %d runs:\n", n
    printf "  orv-admin-env-cli                    %6.2f ms\n", e / 1e6
    printf "  sed -i                               %6.2f ms  ratio %.2f (goal: at most 2)\n", s / 1e6, e / s
    printf "  cp, sync, sed -i, sync (same safety) %6.2f ms  ratio %.2f\n", c / 1e6, e / c
}'
