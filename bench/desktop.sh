#!/usr/bin/env bash
# Runs the benchmarks of the desktop on a screen of their own. Build the preset "release" first.
#   bench/desktop.sh [RUNS-OF-THE-START]
set -u
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
built=$PWD/build/release
runs=${1:-15}
[ -x "$built/bench/start_bench" ] || {
    echo "There are no benchmarks yet: cmake --preset release && cmake --build --preset release" >&2
    exit 1
}

work=$(mktemp -d)
exec 3>"$work/display"
Xvfb -displayfd 3 -screen 0 4000x2400x24 -nolisten tcp >/dev/null 2>&1 &
server=$!
trap 'kill $server; rm -rf "$work"' EXIT
until [ -s "$work/display" ]; do sleep 0.1; done
DISPLAY=:$(cat "$work/display")
export DISPLAY

# A folder as a player has it, with the settings of an earlier run, sound off.
cp -r "$built/tessarine" "$work/run"
cd "$work/run" || exit 1
printf '\r\n 1 16777215 0 \r\n 1 \r\n 0 \r\n 8388608 \r\n 32768 \r\n 32896 \r\n 128 \r\ndefault.col\r\narial\r\n' \
    >tessarine.cfg

echo "Start: the table against an empty window, $runs runs of each"
"$built/bench/start_bench" "$runs" "$built/bench/first_picture_table $work/run" \
    "$built/bench/first_picture_empty"
echo
"$built/bench/desktop_bench"
