#!/usr/bin/env bash
# Builds the benchmarks (release, no sanitizers) and runs them headless, printing the tables that
# docs/performance.md quotes: start-up and memory against an empty window, and the animation and
# drawing costs against hand-painted floors. Every figure is a median over repeated runs.
#
#   scripts/bench.sh [--runs N] [--callgrind]
#
# --runs N      processes per executable for start-up (default 21; memory uses half as many)
# --callgrind   also count instructions per sample with valgrind's callgrind, which repeat to a
#               fraction of a percent where times on a shared machine do not (needs valgrind)
#
# The build goes to build-bench/ (or $ROBOT_BENCH_BUILD_DIR); nothing here is part of the tests.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${ROBOT_BENCH_BUILD_DIR:-$root/build-bench}"
runs=21
callgrind=0
while [ $# -gt 0 ]; do
    case "$1" in
    --runs) runs="$2"; shift 2 ;;
    --callgrind) callgrind=1; shift ;;
    *) echo "usage: $0 [--runs N] [--callgrind]" >&2; exit 2 ;;
    esac
done

"$root/scripts/setup-deps.sh"
if [ $callgrind -eq 1 ] && ! command -v valgrind >/dev/null; then
    echo "--callgrind needs valgrind (Debian package valgrind)" >&2
    exit 1
fi

cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Release -DROBOT_SANITIZE=OFF -DROBOT_BUILD_TESTS=OFF >/dev/null
cmake --build "$build" -j"$(nproc)" --target bench
export QT_QPA_PLATFORM=offscreen
bench="$build/bench"

echo "## Machine"
echo
echo "- CPU: $(grep -m1 'model name' /proc/cpuinfo | cut -d: -f2- | sed 's/^ //'), $(nproc) cores"
echo "- Memory: $(awk '/MemTotal/ {printf "%.1f GiB", $2 / 1048576}' /proc/meminfo)"
echo "- System: $(. /etc/os-release && echo "$PRETTY_NAME"), kernel $(uname -r)"
echo "- Qt: $(qtpaths6 --qt-version 2>/dev/null || echo unknown), platform plugin: offscreen"
echo "- Load when starting: $(cut -d' ' -f1-3 /proc/loadavg)"
echo

echo "## Start-up and memory"
echo
"$bench/bench_startup" --runs "$runs" 2>/dev/null
echo
echo "## Ticks and drawing"
echo
ticks_table="$("$bench/bench_ticks" 2>/dev/null)"
echo "$ticks_table"
echo
echo "## The user's own work"
echo
"$bench/bench_session" 2>/dev/null

[ $callgrind -eq 1 ] || exit 0

# Instructions per sample: callgrind counts only inside the named Bench* functions (the measured
# calls; warm-ups go round them), so the total of a function divided by its calls is one sample.
out="$(mktemp -d)"
trap 'rm -rf "$out"' EXIT
inclusive() { # file function -> inclusive instruction count of that function
    callgrind_annotate --inclusive=yes --threshold=100 "$1" 2>/dev/null |
        awk -v f="$2(" 'index($0, f) && index($0, ":" f) { gsub(",", "", $1); print $1; exit }'
}
summary() { awk '/^summary:/ { print $2 }' "$1"; }
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", (b > 0 ? a / b : 0) }'; }
per() { awk -v a="$1" -v n="$2" 'BEGIN { printf "%.0f", (n > 0 ? a / n : 0) }'; }

echo
echo "## Instructions per sample (callgrind)"
echo
echo "| Measure | Floor | Application | Ratio |"
echo "|---|---|---|---|"
for exe in empty app; do
    valgrind --tool=callgrind --callgrind-out-file="$out/first.$exe" --toggle-collect='BenchFirstFrame*' \
        "$bench/bench_window_$exe" first-frame >/dev/null 2>&1
done
f="$(summary "$out/first.empty")"
a="$(summary "$out/first.app")"
echo "| First frame in process | $f | $a | $(ratio "$a" "$f") |"

row() { # label --only bench-function floor-function samples [executable]
    valgrind --tool=callgrind --callgrind-out-file="$out/$2" --toggle-collect="$3*" --toggle-collect="$4*" \
        "$bench/${6:-bench_ticks}" --only "$2" --samples "$5" >"$out/$2.txt" 2>/dev/null
    local n a f
    n="$(awk -F'|' 'NR > 4 && $3 ~ /[0-9]/ { gsub(" ", "", $3); print $3; exit }' "$out/$2.txt")"
    a="$(per "$(inclusive "$out/$2" "$3")" "$n")"
    f="$(per "$(inclusive "$out/$2" "$4")" "$n")"
    echo "| $1 (per sample, $n samples) | $f | $a | $(ratio "$a" "$f") |"
}
row "Robot slide frame" robot BenchRobotTick BenchRobotFloorTick 100
row "Timeline scroll tick, 512 items" timeline BenchTimelineTick BenchTimelineFloorTick 46
row "Path drawing, 512 pieces" path BenchPathBatch BenchPathFloorBatch 3
# The window shown scaled as on a 1024 x 600 screen, against the same window at 1:1.
row "Robot slide frame, scaled to 0.78 (floor: 1:1)" scaled-robot BenchScaledRobotTick BenchRobotTick 100
row "Timeline scroll tick, scaled to 0.78 (floor: 1:1)" scaled-timeline BenchScaledTimelineTick BenchTimelineTick 46
row "One-page timeline scroll, 512 items (floor: 24 items)" scroll BenchScrollMany BenchScrollFew 6 bench_session
row "Pointer move after a long session (floor: the same window fresh)" hover BenchMoveLong BenchMoveFresh 100 bench_session
