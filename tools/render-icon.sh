#!/bin/sh
# Renders the application icon's PNG sizes from its SVG into resources/icons/app/, where
# the build installs them from. Run after changing the SVG and commit the PNG files.
# Needs rsvg-convert (Debian package librsvg2-bin).
set -eu
cd "$(dirname "$0")/../resources/icons/app"
for size in 16 22 24 32 48 64 128 256; do
    rsvg-convert --width=$size --height=$size --output="org.orv.admin_env-$size.png" \
        org.orv.admin_env.svg
done
echo "rendered $(ls org.orv.admin_env-*.png | wc -l) sizes in $(pwd)"
