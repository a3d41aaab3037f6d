#!/usr/bin/env bash
# The program's window under window managers of all kinds: one that floats, one that tiles, one that
# refuses every request, none; and between screens of different scales. The storm plays there, sizes,
# states and screens among its gestures. Each on a display of its own, all at the same time.
#   managers.sh BUILD-FOLDER [KIND...]
set -u
. "$(dirname "$(readlink -f "$0")")/helpers.sh"
shift
gestures=10000

# managed WINDOW-MANAGER...: a display with that on it, and the storm.
managed() {
    display 1280x1024
    if [ $# -gt 0 ]; then "$@" >"$work/$1.said" 2>&1 & started+=($!); sleep 1.5; fi
    TWIN=no QT_QPA_PLATFORM=xcb "$build/fuzz/desktop_storm" $gestures 1
}
floats() { managed openbox; }
tiles() { printf 'font pango:monospace 8\n' >"$work/i3" && managed i3 -c "$work/i3"; }
refuses() { REFUSES=yes managed ratpoison; }
none() { managed; }
scales() { # the factor changes while the program runs
    cat >"$work/screens" <<END
{"screens": [{"name": "a", "x": 0, "y": 0, "width": 1200, "height": 900, "dpr": 1},
             {"name": "b", "x": 1200, "y": 0, "width": 2400, "height": 1800, "dpr": 2},
             {"name": "c", "x": 3600, "y": 0, "width": 1800, "height": 1350, "dpr": 1.5}]}
END
    TWIN=no QT_QPA_PLATFORM=offscreen:configfile=$work/screens "$build/fuzz/desktop_storm" $gestures 1
}

[ $# -gt 0 ] || set -- floats tiles refuses none scales
for kind in "$@"; do
    # Its own shell ends what it started.
    (trap 'kill "${started[@]}" 2>/dev/null' EXIT && "$kind" && touch "$work/$kind.good") >"$work/$kind" 2>&1 &
done
wait
for kind in "$@"; do
    if [ -e "$work/$kind.good" ]; then echo "ok     $kind: $(tail -n 1 "$work/$kind")"; else echo "WRONG  $kind" && tail -n 30 "$work/$kind"; fi
done
[ "$(find "$work" -name '*.good' | wc -l)" = $# ]
