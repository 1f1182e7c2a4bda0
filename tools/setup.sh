#!/bin/sh
# Installs what is missing on a Debian machine, builds, then starts the
# editor ("run") or runs every test ("test").
set -eu

usage() {
    echo "usage: $0 run|test" >&2
    exit 2
}
[ $# -eq 1 ] || usage
mode=$1
case "$mode" in run | test) ;; *) usage ;; esac

cd "$(dirname "$0")/.."

packages="cmake make g++ qtbase5-dev qttools5-dev qttools5-dev-tools qttranslations5-l10n fonts-dejavu-core"
# The icons: Qt's SVG icon engine and Breeze, which has every icon the editor uses.
packages="$packages libqt5svg5 breeze-icon-theme"
if [ "$mode" = test ]; then
    packages="$packages xvfb xauth x11-utils xdotool openbox desktop-file-utils appstream libbenchmark-dev"
    # The Debian package: dpkg-shlibdeps for its dependencies, lintian to check it.
    packages="$packages dpkg-dev lintian"
    # The start-up benchmark: its timer talks to X, and it gives each run a session bus.
    packages="$packages libx11-dev dbus-daemon"
    # The shells and the systemd environment generator whose answers the reach tests ask for.
    packages="$packages zsh fish tcsh systemd"
    # The playbooks of orv-admin-env-cli, run for real by its test.
    packages="$packages ansible-core"
fi

missing=""
for package in $packages; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
        missing="$missing $package"
    fi
done
if [ -n "$missing" ]; then
    echo "Installing:$missing"
    sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends $missing
fi

werror=OFF
[ "${CI:-}" = true ] && werror=ON
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release -DORV_ADMIN_ENV_WERROR=$werror
cmake --build build --parallel "$(nproc)"

if [ "$mode" = run ]; then
    # Without a display the editor says so in one line and exits with 2.
    exec build/orv-admin-env
fi

(cd build && ctest --output-on-failure --timeout 300)

# The same tests once more under AddressSanitizer (leaks included) and
# UndefinedBehaviorSanitizer, in a build folder of their own.
cmake -S . -B build-sanitize -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORV_ADMIN_ENV_WERROR=$werror \
    -DORV_ADMIN_ENV_SANITIZE=ON -DORV_ADMIN_ENV_BUILD_BENCH=OFF
cmake --build build-sanitize --parallel "$(nproc)"
cd build-sanitize
exec ctest --output-on-failure --timeout 300
