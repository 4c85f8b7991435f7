#!/usr/bin/env bash
# Builds the Debian package from a release build, checks it with lintian, installs it with
# apt-get, starts the installed /usr/bin/robot-companion in a virtual X server for a few
# seconds, checks that it is still running and shows its window, then stops it and removes the
# package again (--keep leaves it installed). Needs root or sudo for apt-get.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${ROBOT_PACKAGE_BUILD_DIR:-$root/build-package}"
keep=0
[ "${1:-}" = "--keep" ] && keep=1

SUDO=""
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Need root or sudo to install the package" >&2; exit 1; }
    SUDO=sudo
fi

"$root/scripts/setup-deps.sh" lintian
# Built with the flags Debian builds its packages with, all hardening on (bindnow as well);
# without -g, whose debug information the package strips anyway.
flags() { DEB_BUILD_MAINT_OPTIONS=hardening=+all DEB_CXXFLAGS_MAINT_STRIP=-g dpkg-buildflags --get "$1"; }
cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Release -DROBOT_BUILD_TESTS=OFF -DROBOT_SANITIZE=OFF \
    -DCMAKE_CXX_FLAGS="$(flags CPPFLAGS) $(flags CXXFLAGS)" -DCMAKE_EXE_LINKER_FLAGS="$(flags LDFLAGS)" >/dev/null
cmake --build "$build" -j"$(nproc)"
rm -f "$build"/robot-companion_*.deb
(cd "$build" && cpack -G DEB >/dev/null)
deb="$(ls "$build"/robot-companion_*.deb)"
echo "== $deb"
dpkg-deb --field "$deb" Package Version Architecture Depends Recommends
dpkg-deb --contents "$deb" | awk '{print $NF}'

# An error or a warning fails the test (a missing copyright file, changelog or manual page among
# them: an image that leaves /usr/share/doc and /usr/share/man out on install would not show
# those below); notes are printed for a reader. Two notes are expected and left as they are:
# spelling-error-in-binary "TaGE" and "iIf", byte runs inside the pictures compiled into the
# binary, not words; overrides naming those runs would go stale with every change to the art.
echo "== lintian"
lintian --display-info --pedantic --fail-on error,warning "$deb"

echo "== installing"
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get install -y -qq "$deb" >/dev/null
cleanup() {
    if [ $keep -eq 0 ]; then
        echo "== removing the package"
        $SUDO apt-get remove -y -qq robot-companion >/dev/null
    fi
}
trap cleanup EXIT

for f in /usr/bin/robot-companion \
         /usr/share/applications/org.robotcompanion.robotcompanion.desktop \
         /usr/share/metainfo/org.robotcompanion.robotcompanion.metainfo.xml \
         /usr/share/icons/hicolor/48x48/apps/org.robotcompanion.robotcompanion.png; do
    [ -e "$f" ] || { echo "FAILED: $f is not installed" >&2; exit 1; }
done

echo "== starting /usr/bin/robot-companion under Xvfb"
shot="$build/installed-app.png"
rm -f "$shot"
# Inside the virtual X server: start the app, give it a few seconds, check that it still runs
# and has mapped its window, take a screenshot, stop it.
xvfb-run -a -s "-screen 0 1024x768x24 -nolisten tcp" bash -c '
    /usr/bin/robot-companion 2>"$1.log" &
    pid=$!
    window=""
    for i in $(seq 1 30); do
        sleep 1
        kill -0 $pid 2>/dev/null || { echo "FAILED: the app ended after ${i} s:"; cat "$1.log"; exit 1; }
        window=$(xdotool search --onlyvisible --pid $pid 2>/dev/null | head -1 || true)
        [ -n "$window" ] && [ $i -ge 5 ] && break
    done
    [ -n "$window" ] || { echo "FAILED: no window after 30 s"; kill $pid; exit 1; }
    echo "running (pid $pid) with window \"$(xdotool getwindowname $window)\""
    import -silent -window root "$1"
    kill $pid
    wait $pid 2>/dev/null || true
' _ "$shot"

# The window must show the artwork, not an empty black or grey screen.
colours=$(convert-im6.q16 "$shot" -colors 64 -unique-colors -format "%w" info:)
echo "screenshot $shot: $colours colours"
[ "$colours" -ge 16 ] || { echo "FAILED: the window looks empty" >&2; exit 1; }
echo "PACKAGE TEST PASSED"
