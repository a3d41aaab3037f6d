#!/usr/bin/env bash
# The program's window under window managers of all kinds: one that floats, one that tiles, one that
# refuses every request, none; and between screens of different scales. Prints a line each.
#   managers.sh BUILD-FOLDER [KIND...]
set -u
build=$(readlink -f "$1")
shift
work=$(mktemp -d)
started=()
trap 'kill "${started[@]}" 2>/dev/null; rm -rf -- "$work"' EXIT

size() { echo "xdotool windowsize \$W $1 $2"; }
there_and_back() { # TIMES
    size 264 514 && echo remember
    for ((i = 0; i < $1; ++i)); do size $((300 + i * 7 % 500)) $((500 + i % 30)); size 264 514; done
}
storm() { # a hundred sizes without a pause
    printf 'xdotool '
    for ((i = 0; i < 100; ++i)); do printf 'windowsize $W %d %d ' $((RANDOM % 1200 + 1)) $((RANDOM % 1000 + 1)); done
    echo
}
states() {
    for state in maximized_vert,maximized_horz maximized_horz maximized_vert fullscreen; do
        echo "wmctrl -i -r \$W -b add,$state" && storm && echo "wmctrl -i -r \$W -b remove,$state"
    done
    echo 'xdotool windowminimize $W sleep 0.2' && storm && echo 'xdotool windowmap $W' && storm
    echo "$(storm) windowminimize \$W sleep 0.2" && echo 'xdotool windowmap $W'
}
on_display() { # COMMANDS WINDOW-MANAGER...
    local number
    : >"$work/number"
    Xvfb -displayfd 5 -screen 0 1280x1024x24 -nolisten tcp -noreset >/dev/null 2>&1 5>"$work/number" & started+=($!)
    until number=$(cat "$work/number") && [ -n "$number" ]; do sleep 0.05; done
    export DISPLAY=:$number
    if [ $# -gt 1 ]; then "${@:2}" >"$work/manager" 2>&1 & started+=($!); sleep 1.5; fi
    QT_QPA_PLATFORM=xcb "$build/tests/outside/window_storm" < <($1)
}
all() { there_and_back 100; storm; states; storm; }

floats() { on_display all openbox; }
tiles() { printf 'font pango:monospace 8\n' >"$work/i3" && on_display all i3 -c "$work/i3"; }
refuses() { on_display all ratpoison; }
none() { on_display all; }
scales() { # the factor changes while the program runs
    cat >"$work/screens" <<END
{"screens": [{"name": "a", "x": 0, "y": 0, "width": 1200, "height": 900, "dpr": 1},
             {"name": "b", "x": 1200, "y": 0, "width": 2400, "height": 1800, "dpr": 2},
             {"name": "c", "x": 3600, "y": 0, "width": 1800, "height": 1350, "dpr": 1.5}]}
END
    for i in {1..50}; do printf 'screen %d\n' 1 2 0; [ "$i" != 1 ] || echo remember; done |
        (cat; echo 'as remembered') |
        QT_QPA_PLATFORM=offscreen:configfile=$work/screens QT_LOGGING_RULES='*=false' "$build/tests/outside/window_storm"
}

bad=0
for kind in "${@:-floats tiles refuses none scales}"; do
    for kind in $kind; do
        if "$kind" >"$work/out" 2>&1; then echo "ok     $kind $(tail -n 1 "$work/out")"; else ((++bad)); echo "WRONG  $kind" && cat "$work/out"; fi
    done
done
[ "$bad" = 0 ]
