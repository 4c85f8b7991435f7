#!/usr/bin/env bash
# Builds Robot Companion (release) and starts it in its window.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
"$root/scripts/setup-deps.sh"
build="$root/build"
cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Release -DROBOT_BUILD_TESTS=OFF >/dev/null
cmake --build "$build" -j"$(nproc)" --target robot-companion
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No display found (DISPLAY and WAYLAND_DISPLAY are unset), so the window cannot open here." >&2
    echo "Run it on a desktop, or in a virtual X server:  xvfb-run -s '-screen 0 1280x1024x24' $build/src/robot-companion" >&2
    exit 1
fi
exec "$build/src/robot-companion" "$@"
