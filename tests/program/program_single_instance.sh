#!/bin/bash
# The built program in a real X session (Xvfb with a window manager): a
# second start raises the first and exits with 1; a start after the first was
# killed with SIGKILL becomes the first instance; closing the window ends the
# program with 0. Usage: program_single_instance.sh /path/to/orv-admin-env
set -u
program=$1

if [ -z "${ORV_IN_XVFB:-}" ]; then
    export ORV_IN_XVFB=1
    exec xvfb-run -a -s "-screen 0 1280x800x24" "$0" "$@"
fi

sandbox=$(mktemp -d)
trap 'kill -9 $(jobs -p) 2>/dev/null; wait 2>/dev/null; rm -rf "$sandbox"' EXIT
mkdir -p "$sandbox/home" "$sandbox/config" "$sandbox/tmp" "$sandbox/runtime" "$sandbox/root/etc"
chmod 700 "$sandbox/runtime"
printf 'export EDITOR=vim\n' >"$sandbox/home/.bashrc"

failures=0
check() { # check DESCRIPTION COMMAND...
    if "${@:2}"; then echo "PASS: $1"; else echo "FAIL: $1"; failures=$((failures + 1)); fi
}

editor() { # run in a subshell: it becomes the program, so $! is the program's pid
    exec env -i DISPLAY="$DISPLAY" XAUTHORITY="${XAUTHORITY:-}" HOME="$sandbox/home" \
        ASAN_OPTIONS="${ASAN_OPTIONS:-}" LSAN_OPTIONS="${LSAN_OPTIONS:-}" UBSAN_OPTIONS="${UBSAN_OPTIONS:-}" \
        XDG_CONFIG_HOME="$sandbox/config" XDG_RUNTIME_DIR="$sandbox/runtime" TMPDIR="$sandbox/tmp" \
        ORV_ADMIN_ENV_SYSROOT="$sandbox/root" SHELL=/bin/bash LOGNAME=tester EDITOR=vim \
        PATH=/usr/bin:/bin LANG=C "$program" 2>>"$sandbox/stderr"
}

find_window() { # prints the editor's window id once it is mapped
    timeout 20 xdotool search --sync --onlyvisible --name "^Orv environment variable editor$" | head -n 1
}

is_iconic() {
    xprop -id "$1" WM_STATE | grep -q "window state: Iconic"
}

is_normal() { # the window manager shows it (not iconified) and it has the focus
    xprop -id "$1" WM_STATE | grep -q "window state: Normal" &&
        [ "$(xdotool getactivewindow 2>/dev/null)" = "$1" ]
}

openbox >/dev/null 2>&1 &
sleep 1

# First instance, then minimise it.
editor &
first=$!
window=$(find_window)
check "first instance shows its window" test -n "$window"
xdotool windowminimize --sync "$window"
sleep 0.5
check "window minimised" is_iconic "$window"

# A second start asks the first to come forward and gives up with 1.
(editor) &
second=$!
timeout 6 tail --pid=$second -f /dev/null # the message time-out is 5 s
kill -0 $second 2>/dev/null && kill -9 $second
wait $second
status=$?
check "second start exits with 1 within the time-out (got $status)" test $status -eq 1
sleep 1
check "first window restored and active" is_normal "$window"
check "first instance still runs" kill -0 $first

# A crash must not block the next start.
kill -9 $first
wait $first 2>/dev/null
editor &
next=$!
window=$(find_window)
check "start after SIGKILL becomes the first instance" test -n "$window"
check "it keeps running" kill -0 $next

# Closing the window (no unsaved changes) ends the program with 0.
# The key is sent again while the window manager may not have taken the
# window yet; a sanitizer's leak check at exit takes its time.
for attempt in 1 2 3; do
    xdotool windowactivate --sync "$window" key --clearmodifiers alt+F4 2>/dev/null
    timeout 15 tail --pid=$next -f /dev/null && break
done
kill -0 $next 2>/dev/null && kill -9 $next
wait $next
status=$?
check "closing the window exits with 0 (got $status)" test $status -eq 0

echo "$((8 - failures)) passed, $failures failed"
if [ $failures -gt 0 ] && [ -s "$sandbox/stderr" ]; then
    echo "The editor's error output:"
    cat "$sandbox/stderr"
fi
[ $failures -eq 0 ]
