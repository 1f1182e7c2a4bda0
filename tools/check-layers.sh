#!/bin/sh
# Checks that every include of the program's own headers goes down the
# layers, never up or sideways:
#   core/      core/ only
#   cli/       core/ and cli/
#   platform/  its own headers only
#   gui/       core/, platform/ and gui/; inside gui by sub-folder, a folder
#              sees itself and those before it in:
#              model, dialogs, window, then lookup or history, then reach,
#              then app
# tests/ and bench/ may include anything. Prints each include that breaks
# the rule and exits with 1 if there is one.
set -eu
cd "$(dirname "$0")/.."

# The rank of a gui sub-folder; lookup and history share one and may not
# include each other.
gui_rank() {
    case $1 in
    model) echo 1 ;;
    dialogs) echo 2 ;;
    window) echo 3 ;;
    lookup | history) echo 4 ;;
    reach) echo 5 ;;
    app) echo 6 ;;
    *) echo 9 ;;
    esac
}

allowed() { # file target
    layer=${1%%/*}
    target_layer=${2%%/*}
    case $2 in
    ui_*.h | *.moc) return 0 ;;
    esac
    case $layer in
    core) [ "$target_layer" = core ] ;;
    cli) [ "$target_layer" = core ] || [ "$target_layer" = cli ] ;;
    platform) [ "$2" = "${2#*/}" ] ;;
    gui)
        case $target_layer in
        core | platform) return 0 ;;
        gui) ;;
        *) return 1 ;;
        esac
        from=$(echo "$1" | cut -d/ -f2)
        to=$(echo "$2" | cut -d/ -f2)
        [ "$from" = "$to" ] || [ "$(gui_rank "$to")" -lt "$(gui_rank "$from")" ]
        ;;
    *) return 0 ;;
    esac
}

sources() {
    if git rev-parse --is-inside-work-tree >/dev/null 2>&1; then
        git ls-files -co --exclude-standard -- core cli gui platform
    else
        find core cli gui platform -type f
    fi
}

problems=$(
    sources | grep -E '\.(h|cpp)$' |
        while read -r file; do
            grep -n '^[[:space:]]*#[[:space:]]*include[[:space:]]*"' "$file" |
                sed 's/^\([0-9]*\):[^"]*"\([^"]*\)".*/\1 \2/' |
                while read -r line target; do
                    allowed "$file" "$target" ||
                        echo "$file:$line: includes \"$target\" against the layers"
                done
        done
)
[ -z "$problems" ] && exit 0
echo "$problems"
exit 1
