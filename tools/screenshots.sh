#!/bin/bash
# Takes the editor's screenshots for the README and the AppStream metadata: the main
# window, Reach, the variable editor, Preferences, the preview of a save and Restore, as a user
# "alex" sees them on a desktop without its own icon theme (so the Breeze fallback shows,
# as the package recommends).
#
# Usage: tools/screenshots.sh [--dark] PROGRAM [OUTDIR]
#   PROGRAM  the built editor, e.g. build/orv-admin-env
#   OUTDIR   where the PNG files go (default: docs/screenshots of this repository)
#   --dark   a dark colour scheme instead (files named *-dark.png), to check the icons
#
# Nothing of the real machine is shown or touched: the script runs itself in private
# mount and network namespaces with empty /home, /tmp and /run, a made-up home and
# /etc/profile, its own X server on :0 and a plain session environment.
# Needs (Debian): xvfb openbox xdotool imagemagick util-linux breeze-icon-theme libqt5svg5.
set -eu

dark=0
if [ "${1:-}" = --dark ]; then
    dark=1
    shift
fi
if [ $# -lt 1 ] || [ $# -gt 2 ]; then
    echo "usage: $0 [--dark] PROGRAM [OUTDIR]" >&2
    exit 2
fi
repo=$(cd "$(dirname "$0")/.." && pwd)
program=$(realpath "$1")
outdir=$(realpath -m "${2:-$repo/docs/screenshots}")

if [ -z "${ORV_SCREENSHOT_NAMESPACE:-}" ]; then
    for path in "$program" "$outdir"; do
        case "$path" in /tmp/* | /home/* | /run/*)
            echo "$path: /tmp, /home and /run are replaced while the screenshots are taken" >&2
            exit 2
            ;;
        esac
    done
    for tool in Xvfb openbox xdotool import unshare; do
        command -v $tool >/dev/null || { echo "$tool is missing" >&2; exit 2; }
    done
    export ORV_SCREENSHOT_NAMESPACE=1
    args=("$program" "$outdir")
    [ $dark -eq 1 ] && args=(--dark "${args[@]}")
    mapping=""
    [ "$(id -u)" -eq 0 ] || mapping="--map-root-user"
    exec unshare $mapping --mount --net --propagation private "$0" "${args[@]}"
fi

# From here on we are inside the namespaces.
for dir in /tmp /home /run; do
    mount -t tmpfs -o mode=0755 tmpfs $dir
done
chmod 1777 /tmp
stage=/run/orv-screenshots
mkdir -p $stage /home/alex/.config/Orv /home/alex/go /run/user/1000
chmod 700 /run/user/1000

cat >/home/alex/.bashrc <<'EOF'
# ~/.bashrc: executed by bash(1) for non-login shells.

# If not running interactively, don't do anything
case $- in
    *i*) ;;
      *) return;;
esac

HISTCONTROL=ignoreboth
HISTSIZE=1000
shopt -s checkwinsize

export EDITOR=vim
export GOPATH=/home/alex/go
export JAVA_HOME=/usr/lib/jvm/java-17-openjdk-amd64
export LESS=-R

alias ll='ls -l'
EOF
cat >/home/alex/.profile <<'EOF'
# ~/.profile: executed by the command interpreter for login shells.
if [ -n "$BASH_VERSION" ] && [ -f "$HOME/.bashrc" ]; then
    . "$HOME/.bashrc"
fi

# set PATH so it includes user's private bin if it exists
# export PATH="$HOME/bin:$PATH"
export PATH="$HOME/.local/bin:$PATH"
export MANPATH="$HOME/.local/share/man:"
export PYTHONPATH="$HOME/lib/python"
EOF
cat >$stage/profile <<'EOF'
# /etc/profile: system-wide .profile file for the Bourne shell (sh(1))
# and Bourne compatible shells (bash(1), ksh(1), ash(1), ...).

if [ "$(id -u)" -eq 0 ]; then
  PATH="/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin"
else
  PATH="/usr/local/bin:/usr/bin:/bin:/usr/local/games:/usr/games"
fi
export PATH
export LESSCHARSET=utf-8
EOF
mount --bind $stage/profile /etc/profile

# The user has told Preferences to scan ~/.profile as well, and has made the window
# wider (16:9) and the Value and Origin columns wide enough for their paths.
cat >/home/alex/.config/Orv/orv-admin-env.conf <<'EOF'
[MainWindow]
size=@Size(1120 630)

[configFiles]
bash=/home/alex/.bashrc, /home/alex/.profile

[tableView]
cVariableWidth=190
cValueWidth=280
cOriginWidth=170
EOF

session=(
    HOME=/home/alex USER=alex LOGNAME=alex SHELL=/bin/bash
    LANG=en_US.UTF-8 LANGUAGE=en_US:en
    PATH=/home/alex/.local/bin:/usr/local/bin:/usr/bin:/bin:/usr/local/games:/usr/games
    DISPLAY=:0 XDG_RUNTIME_DIR=/run/user/1000 XDG_SESSION_TYPE=x11 XDG_SESSION_CLASS=user
    XDG_CURRENT_DESKTOP=Orv DESKTOP_SESSION=orv
    XDG_DATA_DIRS=/usr/local/share:/usr/share XDG_CONFIG_DIRS=/etc/xdg
    EDITOR=vim GOPATH=/home/alex/go JAVA_HOME=/usr/lib/jvm/java-17-openjdk-amd64
    LESS=-R LESSCHARSET=utf-8 MAIL=/var/mail/alex
)
suffix=""
if [ $dark -eq 1 ]; then
    suffix="-dark"
    # Qt's own KDE support reads the colours from kdeglobals; no KDE needs to be installed.
    session+=(XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5 KDE_FULL_SESSION=true)
    cat >/home/alex/.config/kdeglobals <<'EOF'
[General]
ColorScheme=BreezeDark

[Icons]
Theme=hicolor

[Colors:Window]
BackgroundNormal=49,54,59
BackgroundAlternate=44,49,54
ForegroundNormal=239,240,241
ForegroundInactive=189,195,199

[Colors:View]
BackgroundNormal=35,38,41
BackgroundAlternate=45,48,51
ForegroundNormal=239,240,241
ForegroundInactive=189,195,199

[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=239,240,241
ForegroundInactive=189,195,199

[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252

[Colors:Tooltip]
BackgroundNormal=49,54,59
ForegroundNormal=239,240,241
EOF
fi

as_alex() { # runs a command in the session's environment
    env -i "${session[@]}" "$@"
}

pids=()
stop_all() { # the editor first, the X server last
    for ((i = ${#pids[@]} - 1; i >= 0; i--)); do
        kill "${pids[i]}" 2>/dev/null
        wait "${pids[i]}" 2>/dev/null
    done
}
trap stop_all EXIT

Xvfb :0 -screen 0 1280x800x24 -nolisten tcp -noreset >/dev/null 2>&1 &
pids+=($!)
for _ in $(seq 50); do
    [ -S /tmp/.X11-unix/X0 ] && break
    sleep 0.1
done
as_alex openbox >/dev/null 2>&1 &
pids+=($!)
sleep 1

export DISPLAY=:0
find_window() { # NAME: prints the id of the visible window of that title
    timeout 20 xdotool search --sync --onlyvisible --name "^$1\$" | head -n 1
}
shoot() { # WINDOW FILE
    sleep 1 # let it paint
    import -window "$1" "$stage/$2"
    echo "took $2"
}

(cd /home/alex && exec env -i "${session[@]}" "$program" 2>$stage/editor.log) &
pids+=($!)
main=$(find_window "Orv environment variable editor")
[ -n "$main" ] || { echo "the editor's window did not appear" >&2; exit 1; }
xdotool windowactivate --sync "$main"
# Select the EDITOR row, the third one.
xdotool key --clearmodifiers Down Down Down Up
shoot "$main" "main-window$suffix.png"

# Where EDITOR takes effect: its rows are worked out by the shells and the
# systemd generator within a few seconds.
xdotool key --clearmodifiers ctrl+r
reach=$(find_window "Where EDITOR takes effect")
[ -n "$reach" ] || { echo "Reach did not open" >&2; exit 1; }
sleep 4
xdotool key --clearmodifiers alt+g # Make it reach graphical programs
shoot "$reach" "reach$suffix.png"
xdotool windowactivate --sync "$reach" key --clearmodifiers Escape
sleep 0.5

# Edit -> Preferences... (the last item of the Edit menu).
xdotool key --clearmodifiers alt+e Up Return
preferences=$(find_window "Preferences")
[ -n "$preferences" ] || { echo "Preferences did not open" >&2; exit 1; }
# Pick ~/.profile, the second file of the user list.
xdotool mousemove --window "$preferences" 100 245 click 1
shoot "$preferences" "preferences$suffix.png"
xdotool key --clearmodifiers Escape
sleep 0.5

# A new variable in the editor dialog.
xdotool windowactivate --sync "$main" key --clearmodifiers Insert
editor=$(find_window "Create new variable")
[ -n "$editor" ] || { echo "the variable editor did not open" >&2; exit 1; }
xdotool windowactivate --sync "$editor"
sleep 0.5
# Click into each field: name, value, description.
xdotool mousemove --window "$editor" 240 23 click 1
xdotool type --delay 20 "MAVEN_OPTS"
xdotool mousemove --window "$editor" 240 100 click 1
xdotool type --delay 20 -- "-Xmx2g -Dfile.encoding=UTF-8"
xdotool mousemove --window "$editor" 240 230 click 1
xdotool type --delay 20 "Options of the JVM that runs Maven"
shoot "$editor" "variable-editor$suffix.png"
xdotool key --clearmodifiers Escape
sleep 0.5

# PATH gets one more folder, edited in its cell: P finds the row, Right moves to the
# value, F2 edits it; PATH is critical, so the editor asks first.
xdotool windowactivate --sync "$main" key --clearmodifiers p Right F2 End
xdotool type --delay 20 ":/home/alex/go/bin"
xdotool key --clearmodifiers Return
confirm=$(find_window "Request of confirmation")
[ -n "$confirm" ] || { echo "changing PATH did not ask" >&2; exit 1; }
xdotool windowactivate --sync "$confirm" key --clearmodifiers alt+y
sleep 0.5

# What the save will do, then Save from there and Restore... to take it back.
xdotool windowactivate --sync "$main" key --clearmodifiers ctrl+shift+s
preview=$(find_window "Preview changes")
[ -n "$preview" ] || { echo "the preview did not open" >&2; exit 1; }
shoot "$preview" "preview$suffix.png"
xdotool key --clearmodifiers alt+s
saved=$(find_window "Changes were saved")
[ -n "$saved" ] || { echo "the save did not report" >&2; exit 1; }
xdotool windowactivate --sync "$saved" key --clearmodifiers Return
sleep 0.5
xdotool windowactivate --sync "$main" key --clearmodifiers alt+t r
restore=$(find_window "Restore an earlier version")
[ -n "$restore" ] || { echo "Restore did not open" >&2; exit 1; }
shoot "$restore" "restore$suffix.png"
xdotool key --clearmodifiers Escape

mkdir -p "$outdir"
cp $stage/*.png "$outdir"/
echo "screenshots in $outdir"
