#!/usr/bin/env bash
# The long monkey run: 100 000 random inputs (pointer moves, presses, releases, drags, keys,
# pasted text) through the real window, offscreen, under AddressSanitizer and
# UndefinedBehaviorSanitizer, with the application's invariants checked after every input.
# Prints what the run covered; a failure prints its seed and how to replay it.
#
#   scripts/monkey-long.sh [--inputs N] [--seed S] [--runs R]
#
# Replay a reported failure with ROBOT_MONKEY_SEED=S ROBOT_MONKEY_INPUTS=N scripts/monkey-long.sh
# (or the same variables on the bounded tst_monkey test).
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
"$root/scripts/setup-deps.sh"
build="${ROBOT_TEST_BUILD_DIR:-$root/build-tests}"
cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Debug -DROBOT_SANITIZE=ON >/dev/null
cmake --build "$build" -j"$(nproc)" --target robot-monkey
export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:intercept_tls_get_addr=0"
export LSAN_OPTIONS="suppressions=$root/scripts/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
exec "$build/tools/robot-monkey" --inputs 100000 "$@"
