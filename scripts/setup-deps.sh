#!/usr/bin/env bash
# Installs what building, running and testing Robot Companion needs on Debian 12, if missing,
# and the packages named as arguments (what one script alone needs).
set -euo pipefail

PACKAGES=(
    build-essential cmake
    qt6-base-dev qt6-base-dev-tools libgl-dev
    librsvg2-bin imagemagick
    fonts-urw-base35
    tzdata
    xvfb xauth xdotool x11-utils strace
    dbus-daemon at-spi2-core python3-pyatspi weston qt6-wayland
    desktop-file-utils appstream
    "$@"
)

missing=()
for p in "${PACKAGES[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

SUDO=""
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Need root or sudo to install: ${missing[*]}" >&2; exit 1; }
    SUDO=sudo
fi
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
$SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
