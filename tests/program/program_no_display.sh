#!/bin/bash
# The built program without a display: one line on stderr, exit code 2, no abort.
# Usage: program_no_display.sh /path/to/orv-admin-env
set -u
program=$1
expected="cannot open a display: start the editor from a desktop session, or with xvfb-run"

sandbox=$(mktemp -d)
trap 'rm -rf "$sandbox"' EXIT
mkdir -p "$sandbox/home" "$sandbox/runtime" "$sandbox/root/etc"
chmod 700 "$sandbox/runtime"

failures=0
check() { # check DESCRIPTION COMMAND...
    if "${@:2}"; then echo "PASS: $1"; else echo "FAIL: $1"; failures=$((failures + 1)); fi
}

start() { # start [NAME=VALUE...]: runs the editor in a plain session environment
    env -i HOME="$sandbox/home" XDG_CONFIG_HOME="$sandbox/home/.config" \
        XDG_RUNTIME_DIR="$sandbox/runtime" TMPDIR="$sandbox/runtime" \
        ORV_ADMIN_ENV_SYSROOT="$sandbox/root" SHELL=/bin/bash LOGNAME=tester \
        PATH=/usr/bin:/bin LANG=C "$@" "$program" >"$sandbox/out" 2>"$sandbox/err"
}

says_only_the_line() {
    [ "$(cat "$sandbox/err")" = "$expected" ] && [ ! -s "$sandbox/out" ]
}

# A display number whose X socket nobody has opened.
display=900
while [ -e "/tmp/.X11-unix/X$display" ]; do display=$((display + 1)); done

start
status=$?
check "without DISPLAY it exits with 2 (got $status)" test $status -eq 2
check "without DISPLAY it prints only the line (got: $(head -c 300 "$sandbox/err"))" says_only_the_line

start DISPLAY=":$display"
status=$?
check "with a display nobody serves it exits with 2 (got $status)" test $status -eq 2
check "with a display nobody serves it prints only the line" says_only_the_line

start WAYLAND_DISPLAY=wayland-90 QT_QPA_PLATFORM=wayland
status=$?
check "with no Wayland compositor it exits with 2 (got $status)" test $status -eq 2
check "with no Wayland compositor it prints only the line" says_only_the_line

echo "$((6 - failures)) passed, $failures failed"
[ $failures -eq 0 ]
