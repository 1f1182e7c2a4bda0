#!/bin/bash
# Start-up benchmark: time from start to the mapped window of the editor
# against a bare QTableView program showing the same variables, both started
# in turns on a private Xvfb display, in a sandbox (temporary home, settings,
# runtime and system directories; never the real home or /etc), for a small
# and a large session. Prints the medians and the ratio per size.
#
# usage: bench/startup.sh [-n RUNS] [-s "VARIABLES:LINES ..."] [-B] [BUILD_DIR]
#   RUNS       starts of each program per size (default 21)
#   VARIABLES  variables in the environment of both programs
#   LINES      export and other shell lines, half in /etc/profile, half in ~/.bashrc
#   -B         take the programs as built, without building them first
#   BUILD_DIR  build directory (default: build/ in the source tree); it is
#              configured as a Release build when it does not exist yet
set -eu

runs=21
sizes="50:0 2000:50000"
timeout_ms=20000
build=yes
while getopts "n:s:B" option; do
    case $option in
    n) runs=$OPTARG ;;
    s) sizes=$OPTARG ;;
    B) build=no ;;
    *) sed -n '8,14p' "$0" >&2; exit 2 ;;
    esac
done
shift $((OPTIND - 1))
source_dir=$(cd "$(dirname "$0")/.." && pwd)
build_dir=$(realpath -m "${1:-$source_dir/build}")

if [ $build = yes ]; then
    if [ ! -f "$build_dir/CMakeCache.txt" ]; then
        cmake -S "$source_dir" -B "$build_dir" -DCMAKE_BUILD_TYPE=Release >/dev/null
    fi
    cmake --build "$build_dir" --parallel 2 --target orv-admin-env bare_table startup_timer >/dev/null
    build_type=$(sed -n 's/^CMAKE_BUILD_TYPE:[A-Z]*=//p' "$build_dir/CMakeCache.txt")
    [ "$build_type" = Release ] || echo "note: $build_dir is a ${build_type:-plain} build, not Release"
fi
editor=$build_dir/orv-admin-env
bare=$build_dir/bench/bare_table
timer=$build_dir/bench/startup_timer
for program in "$editor" "$bare" "$timer"; do
    [ -x "$program" ] || { echo "missing: $program" >&2; exit 1; }
done

work=$(mktemp -d "${TMPDIR:-/tmp}/orv-startup-XXXXXX")
xvfb=""
bus=""
cleanup() {
    [ -n "$bus" ] && kill "$bus" 2>/dev/null && wait "$bus" 2>/dev/null
    [ -n "$xvfb" ] && kill "$xvfb" 2>/dev/null && wait "$xvfb" 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT

# Xvfb picks a free display itself and writes its number once it accepts
# connections; -noreset keeps it from resetting between the programs.
Xvfb -displayfd 3 -noreset -nolisten tcp -screen 0 1280x1024x24 \
    3>"$work/display" >"$work/xvfb.log" 2>&1 &
xvfb=$!
for _ in $(seq 100); do
    grep -q . "$work/display" 2>/dev/null && break
    kill -0 "$xvfb" 2>/dev/null || break
    sleep 0.1
done
display=$(head -n 1 "$work/display" 2>/dev/null || true)
if [ -z "$display" ]; then
    echo "Xvfb did not start within 10 s:" >&2
    cat "$work/xvfb.log" >&2
    exit 1
fi

# A desktop session has a D-Bus session bus, which Qt asks at start (the
# menu bar looks for a global menu); without one libdbus would try to launch
# a bus on every start. Ours is private and ends with the benchmark.
bus_address=""
if command -v dbus-daemon >/dev/null; then
    dbus-daemon --session --nofork --nopidfile --address="unix:path=$work/bus" \
        >"$work/bus.log" 2>&1 &
    bus=$!
    for _ in $(seq 100); do
        [ -S "$work/bus" ] && break
        kill -0 "$bus" 2>/dev/null || break
        sleep 0.1
    done
    if [ -S "$work/bus" ]; then
        bus_address="unix:path=$work/bus"
    else
        echo "note: no D-Bus session bus (dbus-daemon did not start within 10 s)"
    fi
else
    echo "note: no D-Bus session bus (dbus-daemon is not installed)"
fi

# A session of VARIABLES variables and LINES start-up lines in directory $1.
# About a third of the lines export a variable of the session, a sixth one
# it does not have, the rest is other shell text.
make_session() {
    local dir=$1 variables=$2 lines=$3
    mkdir -p "$dir/home" "$dir/config" "$dir/data" "$dir/cache" "$dir/tmp" "$dir/runtime" \
        "$dir/root/etc" "$dir/root/tmp"
    chmod 700 "$dir/runtime"
    env_file=$dir/environment
    cat >"$env_file" <<EOF
DISPLAY=:$display
HOME=$dir/home
USER=bench
LOGNAME=bench
SHELL=/bin/bash
PATH=/usr/local/bin:/usr/bin:/bin
LANG=C.UTF-8
XDG_CONFIG_HOME=$dir/config
XDG_DATA_HOME=$dir/data
XDG_CACHE_HOME=$dir/cache
XDG_RUNTIME_DIR=$dir/runtime
TMPDIR=$dir/tmp
ORV_ADMIN_ENV_SYSROOT=$dir/root
EOF
    [ -n "$bus_address" ] && echo "DBUS_SESSION_BUS_ADDRESS=$bus_address" >>"$env_file"
    local base
    base=$(wc -l <"$env_file")
    awk -v n=$((variables - base)) 'BEGIN {
        for (i = 0; i < n; i++)
            printf "BENCH_VARIABLE_%05d=/opt/bench/%d/lib:/usr/lib/x86_64-linux-gnu/bench%d\n", i, i, i % 97
    }' >>"$env_file"
    awk -v lines="$lines" -v variables=$((variables - base)) -v profile="$dir/root/etc/profile" \
        -v bashrc="$dir/home/.bashrc" 'BEGIN {
        printf "" > profile; printf "" > bashrc
        for (i = 0; i < lines; i++) {
            out = i < lines / 2 ? profile : bashrc
            kind = i % 6
            if (kind < 2 && variables > 0)
                printf "export BENCH_VARIABLE_%05d=/opt/bench/%d/lib:$PATH\n", (i * 7) % variables, i > out
            else if (kind == 2)
                printf "export UNSET_IN_SESSION_%d=\"some value %d\"\n", i, i > out
            else if (kind == 3)
                printf "# a comment about line %d of the start-up file\n", i > out
            else if (kind == 4)
                printf "if [ -d \"$HOME/bin\" ]; then PATH=\"$HOME/bin:$PATH\"; fi\n" > out
            else
                printf "alias l%d=\"ls -l --color=auto\"\n", i > out
        }
    }'
}

echo "Start to mapped window on Xvfb :$display, medians of $runs starts each"
# Both programs start with the same application attributes: the ratio is the
# editor's own work, not a difference of settings.
echo "Application attributes of both: $(grep -ho 'Qt::AA_[A-Za-z]*' "$source_dir/bench/bare_table.cpp" | sort -u | tr '\n' ' ')"
editor_attributes=$(grep -ho 'Qt::AA_[A-Za-z]*' "$source_dir/gui/app/main.cpp" | sort -u | tr '\n' ' ')
bare_attributes=$(grep -ho 'Qt::AA_[A-Za-z]*' "$source_dir/bench/bare_table.cpp" | sort -u | tr '\n' ' ')
if [ "$editor_attributes" != "$bare_attributes" ]; then
    echo "the editor sets $editor_attributes but the bare table $bare_attributes: give both the same" >&2
    exit 1
fi
n=0
for size in $sizes; do
    variables=${size%%:*}
    lines=${size##*:}
    n=$((n + 1))
    session=$work/session$n
    make_session "$session" "$variables" "$lines"
    echo "$variables variables, $lines start-up lines:"
    mapfile -t environment <"$session/environment"
    env -i "${environment[@]}" "$timer" "$runs" "$timeout_ms" \
        bare_table "$bare" orv-admin-env "$editor"
done
