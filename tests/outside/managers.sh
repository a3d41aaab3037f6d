#!/usr/bin/env bash
# The program's window under window managers of all kinds: one that floats, one that tiles, one that
# refuses every request, none; and between screens of different scales. Each on a display of its own, all
# at the same time. Prints a line each.
#   managers.sh BUILD-FOLDER [KIND...]
set -u
. "$(dirname "$(readlink -f "$0")")/helpers.sh"
shift

size() { echo "xdotool windowsize \$W $1 $2"; }
there_and_back() {
    size 264 514
    for i in {1..100}; do size $((300 + i * 7 % 500)) $((500 + i % 30)); size 264 514; done
}
storm() { # a hundred sizes without a pause
    printf 'xdotool '
    for _ in {1..100}; do printf 'windowsize $W %d %d ' $((RANDOM % 1200 + 1)) $((RANDOM % 1000 + 1)); done
}
states() {
    for state in maximized_vert,maximized_horz maximized_horz maximized_vert fullscreen; do
        printf '%s\n' "wmctrl -i -r \$W -b add,$state" "$(storm)" "wmctrl -i -r \$W -b remove,$state"
    done
    printf '%s\n' 'xdotool windowminimize $W sleep 0.2' "$(storm)" 'xdotool windowmap $W' \
        "$(storm) windowminimize \$W sleep 0.2" 'xdotool windowmap $W'
}
# managed WINDOW-MANAGER...: a display with that on it, and what comes over its window.
managed() {
    display 1280x1024
    if [ $# -gt 0 ]; then "$@" >"$work/$1.said" 2>&1 & started+=($!); sleep 1.5; fi
    QT_QPA_PLATFORM=xcb "$build/tests/outside/window_storm" "$work/$kind.files" < <(there_and_back; storm; echo; states; storm; echo)
}

floats() { managed openbox; }
tiles() { printf 'font pango:monospace 8\n' >"$work/i3" && managed i3 -c "$work/i3"; }
refuses() { managed ratpoison; }
none() { managed; }
scales() { # the factor changes while the program runs
    cat >"$work/screens" <<END
{"screens": [{"name": "a", "x": 0, "y": 0, "width": 1200, "height": 900, "dpr": 1},
             {"name": "b", "x": 1200, "y": 0, "width": 2400, "height": 1800, "dpr": 2},
             {"name": "c", "x": 3600, "y": 0, "width": 1800, "height": 1350, "dpr": 1.5}]}
END
    QT_QPA_PLATFORM=offscreen:configfile=$work/screens QT_LOGGING_RULES='*=false' \
        "$build/tests/outside/window_storm" "$work/$kind.files" < <(for _ in {1..50}; do printf 'screen %d\n' 1 2 0; done)
}

[ $# -gt 0 ] || set -- floats tiles refuses none scales
for kind in "$@"; do
    mkdir "$work/$kind.files" && write_files "$work/$kind.files" && cp "$build/tessarine/all.col" "$work/$kind.files"
    # Its own shell ends what it started.
    (trap 'kill "${started[@]}" 2>/dev/null' EXIT && "$kind" && touch "$work/$kind.good") >"$work/$kind" 2>&1 &
done
wait
for kind in "$@"; do
    if [ -e "$work/$kind.good" ]; then echo "ok     $kind $(grep 'commands,' "$work/$kind")"; else echo "WRONG  $kind" && cat "$work/$kind"; fi
done
[ "$(find "$work" -name '*.good' | wc -l)" = $# ]
