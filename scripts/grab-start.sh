#!/usr/bin/env bash
# Starts the app in a virtual X server, waits for the robot to arrive and saves the window as
# docs/start.png (or the path given).
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
out="${1:-$root/docs/start.png}"
"$root/scripts/setup-deps.sh"
build="$root/build"
cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Release -DROBOT_BUILD_TESTS=OFF >/dev/null
cmake --build "$build" -j"$(nproc)" --target robot-companion >/dev/null
xvfb-run -a -s "-screen 0 1024x768x24" bash -c "
    '$build/src/robot-companion' & app=\$!
    sleep 3
    import -window root '$out'
    kill \$app
"
echo "saved $out"
