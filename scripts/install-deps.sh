#!/bin/sh
# Installs the Debian packages Tagsmith needs to build, test and run, and nothing that is
# already there. Runs apt-get directly as root, through sudo otherwise.
set -eu

# dpkg-dev finds the .deb's dependencies; desktop-file-utils and appstream check the desktop
# entry and the AppStream file. The last line's encoders make the HEIC, AVIF, WebP and JPEG XL
# pictures the tests edit.

packages="g++ make cmake ninja-build perl python3 pkg-config
qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
qt6-webengine-dev qt6-webchannel-dev qt6-image-formats-plugins libgl-dev
xvfb xauth
dpkg-dev desktop-file-utils appstream
libheif-examples webp libjxl-tools"

missing=""
for p in $packages; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
        missing="$missing $p"
    fi
done
# A Node.js from elsewhere may already bring npm; Debian's npm would then only conflict.
if ! command -v npm >/dev/null 2>&1; then
    missing="$missing npm"
fi

[ -z "$missing" ] && exit 0

if [ "$(id -u)" -eq 0 ]; then
    run=""
else
    run="sudo"
fi
echo "Installing:$missing"
export DEBIAN_FRONTEND=noninteractive
$run apt-get update -q
# shellcheck disable=SC2086
$run apt-get install -y -q --no-install-recommends $missing
