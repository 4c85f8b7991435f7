#!/usr/bin/env bash
# Builds Robot Companion with AddressSanitizer and UndefinedBehaviorSanitizer and runs every test
# headless; ends with a pass/fail summary.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
"$root/scripts/setup-deps.sh"
build="${ROBOT_TEST_BUILD_DIR:-$root/build-tests}"
cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Debug -DROBOT_SANITIZE=ON >/dev/null
cmake --build "$build" -j"$(nproc)"
export QT_QPA_PLATFORM=offscreen
set +e
ctest --test-dir "$build" --output-on-failure -j"$(nproc)" "$@"
status=$?
set -e
if [ $status -eq 0 ]; then echo "TESTS PASSED"; else echo "TESTS FAILED"; fi
exit $status
