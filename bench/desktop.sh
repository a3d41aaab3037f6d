#!/usr/bin/env bash
# Runs the benchmarks of the desktop on a screen of their own. Build the preset "release" first, and for
# Windows run ./windows.
#   bench/desktop.sh [RUNS-OF-THE-START]
#   bench/desktop.sh --windows [RUNS-OF-THE-START]    the start and the slide of the Windows build under Wine
set -u
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
top=$PWD
built=$top/build/release
measured=$built run=() suffix=
if [ "${1:-}" = --windows ]; then
    shift
    measured=$top/build/windows run=("$top/tools/wine.sh") suffix=.exe
fi
runs=${1:-15}
if [ ! -x "$built/bench/start_bench" ] || [ ! -e "$measured/bench/slide_time$suffix" ]; then
    echo "There are no benchmarks yet: cmake --preset release && cmake --build --preset release --target benches" >&2
    [ -z "$suffix" ] || echo "and for Windows ./windows && cmake --build --preset windows --target benches" >&2
    exit 1
fi

work=$(mktemp -d)
exec 3>"$work/display"
Xvfb -displayfd 3 -screen 0 4000x2400x24 -nolisten tcp >/dev/null 2>&1 &
server=$!
trap 'kill $server; rm -rf "$work"' EXIT
until [ -s "$work/display" ]; do sleep 0.1; done
DISPLAY=:$(cat "$work/display")
export DISPLAY

# A folder as a player has it, with the settings of an earlier run, sound off.
cp -r "$measured/tessarine" "$work/run"
cd "$work/run" || exit 1
printf '\r\n 1 16777215 0 \r\n 1 \r\n 0 \r\n 8388608 \r\n 32768 \r\n 32896 \r\n 128 \r\ndefault.col\r\narial\r\n' \
    >tessarine.cfg

echo "Start: the table against an empty window, $runs runs of each"
"$built/bench/start_bench" "$runs" "${run[*]} $measured/bench/first_picture_table$suffix $work/run" \
    "${run[*]} $measured/bench/first_picture_empty$suffix"
"${run[@]}" "$measured/bench/slide_time$suffix"
[ -z "$suffix" ] || exit 0
echo
"$built/bench/desktop_bench"
