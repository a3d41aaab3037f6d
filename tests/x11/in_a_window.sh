#!/usr/bin/env bash
# The program in a real X window, under a window manager, worked with a synthetic mouse.
#   in_a_window.sh CASE FOLDER PLAN OUT
# CASE is the name of one of the functions below; FOLDER holds the program and its data, PLAN is the
# x11_plan program, and OUT gets what a failure leaves to look at.
set -u

here=$(dirname "$(readlink -f "$0")")
test_case=$1
folder=$2
plan=$3
out=$4/$test_case
limit=20 # seconds for anything that the program should do soon
scale=1  # screen pixels to a logical pixel
window=
pid=

say() { printf '%s\n' "$*"; }

fail() {
    say "FAILED: $*"
    [ -z "${DISPLAY:-}" ] || import -silent -window root "$out/failed.png"
    [ -z "$pid" ] || ! program_is_gone || say "the program is gone"
    [ ! -f "$out/failed.png" ] || say "the screen is in $out/failed.png"
    exit 1
}

# soon WHAT COMMAND...: waits until the command holds.
soon() {
    local what=$1 until=$((SECONDS + limit))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$until" ] || fail "not within $limit seconds: $what"
        sleep 0.05
    done
}

# --- the stage ---

started=()

cleanup() {
    local process
    for process in "${started[@]}"; do kill "$process" 2>/dev/null; done
    wait 2>/dev/null
    rm -rf -- "$home"
}

needs() {
    local tool
    for tool in "$@"; do
        command -v "$tool" >/dev/null || { say "skipped: there is no $tool"; exit 77; }
    done
}

# A display of our own with a window manager on it.
open_display() {
    local number
    needs Xvfb openbox xdotool wmctrl xprop xwininfo xwd convert
    mkfifo "$home/number"
    Xvfb -displayfd 5 -screen 0 1280x1400x24 -noreset -nolisten tcp 5<>"$home/number" >"$home/xvfb.log" 2>&1 &
    started+=($!)
    read -r -t "$limit" number <>"$home/number" || fail "the display did not start"
    export DISPLAY=:$number
    openbox >"$home/openbox.log" 2>&1 &
    started+=($!)
    soon "a window manager" wmctrl -m >/dev/null 2>&1
    sleep 0.5 # it says that it is there before it is, and may sleep over a window that comes meanwhile
}

windows_of_program() { xdotool search --onlyvisible --pid "$pid" --name . 2>/dev/null; }

# The window of the program that is not the main one: a message box.
box_is_open() {
    box=$(windows_of_program | grep -vx "${window:-none}" | head -n 1)
    [ -n "$box" ]
}
box_is_gone() { ! windows_of_program | grep -qx "$box"; }
main_window_is_open() {
    window=$(windows_of_program | head -n 1)
    [ -n "$window" ]
}

start_program() {
    (cd "$program" && exec ./tessarine) >"$out/program.log" 2>&1 &
    pid=$!
    started+=("$pid")
}

# Starts the program as on its first day: the notice that there is no configuration yet comes up.
start_first_time() {
    start_program
    answer 1 1
    soon "the first notice goes" box_is_gone
    soon "the main window" main_window_is_open
}

program_is_gone() { ! kill -0 "$pid" 2>/dev/null; }

# --- the hand; positions in logical pixels of the client area ---

press() { # button x y
    xdotool mousemove --window "$window" $(($2 * scale)) $(($3 * scale)) sleep 0.02 click "$1"
}

drag() { # from x, y to x, y
    local middle_x=$((($1 + $3) * scale / 2)) middle_y=$((($2 + $4) * scale / 2))
    xdotool mousemove --window "$window" $(($1 * scale)) $(($2 * scale)) sleep 0.02 mousedown 1 \
        sleep 0.02 mousemove --window "$window" "$middle_x" "$middle_y" \
        sleep 0.02 mousemove --window "$window" $(($3 * scale)) $(($4 * scale)) sleep 0.05 mouseup 1
}

# The client area's width and height of a window.
size_of() {
    xwininfo -id "$1" 2>/dev/null | awk '/^ *Width:/ { w = $2 } /^ *Height:/ { print w, $2 }'
}

# Whether a message box is open and shows so many buttons. They stand in a row of 59 by 23.3 pixels
# each, centred on the outer width, their middle 24.7 above the lower edge; the row begins with a
# white line and ends with a black one.
box_shows_buttons() {
    local count=$1 width height left format='' dx seen
    box_is_open || return
    read -r width height < <(size_of "$box")
    row_left=$(((width + 8 * scale - count * 59 * scale) / 2))
    row_middle=$((height - 25 * scale))
    for ((dx = -2 * scale; dx <= 2 * scale; ++dx)); do
        left=$((row_left + dx))
        format+="L%[hex:p{$left,$row_middle}] R%[hex:p{$((left + count * 59 * scale - scale)),$row_middle}] "
    done
    seen=$(xwd -silent -id "$box" 2>/dev/null |
        convert xwd:- -depth 8 -type TrueColor -format "$format" info: 2>/dev/null)
    [[ $seen == *LFFFFFF* && $seen == *R000000* ]]
}

# Presses the n-th of so many buttons of the message box that must come up.
answer() { # n of
    soon "a message box with $2 buttons" box_shows_buttons "$2"
    xdotool mousemove --window "$box" $((row_left + (2 * $1 - 1) * 59 * scale / 2)) "$row_middle" \
        sleep 0.02 click 1
}

# --- what shows ---

# The window's size and the colours at the given places, as the plan writes them.
look() {
    local places=("${@:3}") format='' place
    for place in "${places[@]}"; do
        format+="${place%=*}=%[hex:p{$((${place%%,*} * scale + scale / 2)),"
        place=${place#*,}
        format+="$((${place%=*} * scale + scale / 2))}] "
    done
    read -r width height < <(size_of "$window")
    seen="$((width / scale)) $((height / scale)) $(xwd -silent -id "$window" |
        convert xwd:- -depth 8 -type TrueColor -format "$format" info:)"
}

shows() {
    look "$@"
    [ "${seen% }" = "$*" ]
}

see() {
    local until=$((SECONDS + limit)) expected
    until shows "$@"; do
        if [ "$SECONDS" -ge "$until" ]; then
            for expected in "$@"; do
                case " $seen " in *" $expected "*) ;; *) say "   expected $expected" ;; esac
            done
            say "   seen $seen"
            fail "the window does not show what it should"
        fi
        sleep 0.03
    done
    sleep 0.03 # what is on the screen may be a step ahead of the program's readiness
}

# --- the cases ---

# A whole game on a deal made for it, from start to win.
game() {
    local step words gestures=0
    open_display
    "$plan" "$folder" "$out" || fail "there is no plan"
    start_program
    while read -r step words; do
        # shellcheck disable=SC2086 # the words of a step are its arguments
        case $step in
        say)
            say "   $words"
            if [ "$words" = "the deal is restored" ]; then
                soon "the main window" main_window_is_open
                soon "the start is over" [ -s "$program/tempgame.txt" ]
                cp "$out/tempgame.txt" "$program/tempgame.txt"
            fi
            ;;
        click) press $words ;;
        drag) drag $words ;;
        resize) xdotool windowsize "$window" $((${words% *} * scale)) $((${words#* } * scale)) ;;
        answer)
            [ "$words" != "1 1" ] || [ -z "$window" ] || scores_before=$(score_counts)
            answer $words
            ;;
        see) see $words ;;
        *) fail "the plan says $step" ;;
        esac
        case $step in click | drag) gestures=$((gestures + 1)) ;; esac
    done <"$out/steps"
    say "   $gestures gestures"
    [ "$scores_before" = "0 0 0 0" ] || fail "before the last message the scores were $scores_before"
    soon "one game is counted as won" counts_are "1 1 0 0"
    cmp -s "$out/tempgame.txt" "$program/tempgame.txt" && fail "there is no next deal"
    close_window
}

# Everything on a screen of twice as many pixels.
game_at_200_percent() {
    scale=2
    export QT_SCALE_FACTOR=2
    game
}

# Played, won, drawn and lost over all runs, from the scores file.
score_counts() { "$plan" score "$program/tessarine.sco" 2>/dev/null | cut -d ' ' -f 2-5; }
counts_are() { [ "$(score_counts)" = "$1" ]; }

close_window() {
    wmctrl -i -c "$window"
    soon "the program ends when its window is closed" program_is_gone
    wait "$pid"
    local code=$?
    [ "$code" -eq 0 ] || fail "the program ended with code $code"
}

window() {
    local title before
    open_display
    start_first_time
    title=$(xdotool getwindowname "$window")
    [ "$title" = "Tessarine" ] || fail "the window's title is '$title'"
    soon "the window has the table's width" size_is 264 514
    soon "the window stands in the middle of the screen" is_in_the_middle_of "$window" 0 0 1280 1400
    read -r -a before < <(outer_of "$window")
    press 1 $((2 + 8 * 24 + 12)) 14
    soon "a question" box_shows_buttons 2
    soon "it stands in the middle of the window" is_in_the_middle_of "$box" "${before[@]}"
    answer 2 2
    soon "the question goes" box_is_gone
    # The hand takes the right edge, and the corner stays where it is.
    xdotool mousemove $((before[0] + before[2] - 1)) 700 sleep 0.1 mousedown 1 sleep 0.1 \
        mousemove_relative 30 0 sleep 0.1 mousemove_relative 30 0 sleep 0.5 mouseup 1
    soon "the hand makes it wider" is_wider_than 300
    [[ $(outer_of "$window") == "${before[0]} ${before[1]} "* ]] || fail "the window jumps"
    close_window
    start_program
    soon "the main window" main_window_is_open
    soon "the window has the table's width" size_is 264 514
    # A quarter wider: 4,080 twips to 5,100, and the window snaps to the 5,031 of the table.
    xdotool windowsize "$window" 332 514
    soon "the window snaps to the table" size_is 327 514
    # The height alone changes nothing else.
    xdotool windowsize "$window" 327 450
    soon "the window takes the height" size_is 327 450
    sleep 0.5
    size_is 327 450 || fail "the window does not stay as it was left: $(size_of "$window")"
    close_window
}
# Left, top, width and height of a window with its frame.
outer_of() {
    local left right top bottom
    read -r left right top bottom < <(xprop -id "$1" _NET_FRAME_EXTENTS | sed 's/.*= //; s/,//g')
    xwininfo -id "$1" | awk -v l="$left" -v r="$right" -v t="$top" -v b="$bottom" '
        /Absolute upper-left X/ { x = $4 } /Absolute upper-left Y/ { y = $4 }
        /^ *Width/ { w = $2 } /^ *Height/ { print x - l, y - t, w + l + r, $2 + t + b }'
}
is_in_the_middle_of() { # window left top width height
    local x y width height
    read -r x y width height < <(outer_of "$1")
    x=$((2 * (x - $2) + width - $4)) y=$((2 * (y - $3) + height - $5))
    [ ${x#-} -le 1 ] && [ ${y#-} -le 1 ] # half a pixel
}
is_wider_than() { [ "$(size_of "$window" | cut -d ' ' -f 1)" -gt "$1" ]; }
size_is() { [ "$(size_of "$window")" = "$1 $2" ]; }

# Nothing happens, and so nothing is done.
idle() {
    local before after
    open_display
    start_first_time
    sleep 1.5
    before=$(ticks)
    sleep 3
    after=$(ticks)
    say "   $((after - before)) hundredths of a second of work in 3 seconds"
    [ $((after - before)) -le 1 ] || fail "the program works while nothing happens"
    close_window
}
# The processor time that the program has used.
ticks() { awk '{ print $14 + $15 }' "/proc/$pid/stat"; }

# Without a display, or with one that isn't there, one sentence says so.
no_display() {
    one_sentence env -u DISPLAY "$program/tessarine"
    one_sentence env DISPLAY=:98765 "$program/tessarine"
    one_sentence env -u DISPLAY "$here/../../play"
}
one_sentence() {
    local said code
    said=$(cd "$program" && timeout 10 "$@" 2>&1)
    code=$?
    say "   $said"
    if [ "$code" -eq 0 ] || [ "$code" -ge 124 ]; then fail "it ended with code $code"; fi
    [ "$(wc -l <<<"$said")" -eq 1 ] || fail "it should say one sentence"
}

[ "$(type -t "$test_case")" = function ] || fail "there is no case $test_case"
unset QT_QPA_PLATFORM WAYLAND_DISPLAY QT_SCALE_FACTOR DISPLAY
rm -rf -- "$out"
mkdir -p "$out"
home=$(mktemp -d)
trap cleanup EXIT
# As a player has it on the first day, and no other player's settings.
program=$home/tessarine
cp -r "$folder" "$program" && rm -f "$program"/tessarine.cfg "$program"/*.sco "$program"/tempgame.txt
export HOME=$home XDG_CONFIG_HOME=$home XDG_RUNTIME_DIR=$home
"$test_case"
