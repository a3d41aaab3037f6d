#!/usr/bin/env bash
# The program in a real X window, under a window manager, worked with a synthetic mouse.
#   in_a_window.sh CASE FOLDER OUT      CASE is one of the functions below the deal; FOLDER holds the
# program and its data; OUT, always the last argument, gets what a failure leaves to look at.
# TESSARINE_RUNNER names what starts the program for Windows, where FOLDER holds that.
set -u
here=$(dirname "$(readlink -f "$0")")
. "$here/../outside/helpers.sh" "$2"
test_case=$1 out=${!#}/$1
limit=20 # seconds for anything that the program should do soon
scale=1  # screen pixels to a logical pixel
window='' pid='' box='' runner=(${TESSARINE_RUNNER:+"$TESSARINE_RUNNER"})

fail() {
    printf '%s\n' "FAILED: $1" "${@:2}" "${box:+the last box was: $(xdotool getwindowname "$box" 2>&1)}"
    [ -z "${DISPLAY:-}" ] || import -silent -window root "$out/failed.png"
    exit 1
}
soon() { # WHAT COMMAND...: waits until the command holds
    local until=$((SECONDS + limit))
    until "${@:2}"; do
        [ "$SECONDS" -lt "$until" ] || fail "not within $limit seconds: $1"
        sleep 0.05
    done
}

open_display() { # a display of our own with a window manager on it
    type Xvfb xdotool xwininfo xwd convert import >/dev/null || exit 77 # skipped
    display 1280x1400
    manage_windows
}
manage_windows() {
    type openbox wmctrl >/dev/null || exit 77
    openbox >"$work/openbox" 2>&1 & started+=($!)
    soon "a window manager" wmctrl -m >/dev/null 2>&1
    sleep 0.5 # it says that it is there before it is, and may sleep over a window that comes meanwhile
}

windows_of_program() { xdotool search --onlyvisible --pid "$pid" --name . 2>/dev/null; }
main_window_is_open() { window=$(windows_of_program | head -n 1) && [ -n "$window" ]; }
box_is_open() { box=$(windows_of_program | grep -vx "${window:-none}" | head -n 1) && [ -n "$box" ]; }
program_is_gone() { ! kill -0 "$pid" 2>/dev/null; }
start_program() {
    (cd "$program" && exec "${runner[@]}" ./tessarine${TESSARINE_RUNNER:+.exe}) >"$out/program.log" 2>&1 & pid=$! && started+=("$pid")
    [ -f "$program/tessarine.cfg" ] || answer 1 1 # on the first day a notice says so
    soon "the main window" main_window_is_open
}
ends_well() { soon "the program ends" program_is_gone && { wait "$pid" || fail "it ended with code $?"; }; }
close_window() { wmctrl -i -c "$window" && ends_well; }

# The hand; positions in logical pixels of the client area.
to() { echo "mousemove --window $1 $2 $3"; } # window, and screen pixels in it
press() { # x y button times
    xdotool $(to "$window" $(($1 * scale)) $(($2 * scale))) sleep 0.02 click --repeat "$4" --delay 60 "$3"
}
command_button() { press $((14 + 24 * $1)) 14 1 1; } # counted from the left, from 0
drag() { # from x, y to x, y
    xdotool $(to "$window" $(($1 * scale)) $(($2 * scale))) sleep 0.02 mousedown 1 sleep 0.02 \
        $(to "$window" $((($1 + $3) * scale / 2)) $((($2 + $4) * scale / 2))) sleep 0.02 \
        $(to "$window" $(($3 * scale)) $(($4 * scale))) sleep 0.05 mouseup 1
}

# The client area's width and height of a window, and its colours at the places of a format.
size_of() { xwininfo -id "$1" 2>/dev/null | awk '/^ *Width:/ { w = $2 } /^ *Height:/ { print w, $2 }'; }
pixels_of() { xwd -silent -id "$1" | convert xwd:- -depth 8 -type TrueColor -format "$2" info:; } 2>/dev/null

# Whether a message box is open and shows so many buttons. They stand in a row of 59 by 23.3 pixels
# each, centred on the outer width; the row begins with a white line and ends with a black one.
box_shows_buttons() {
    local width height x format='' seen
    box_is_open || return
    read -r width height < <(size_of "$box")
    row_left=$(((width + 8 * scale - $1 * 59 * scale) / 2)) row_middle=$((height - 25 * scale))
    for ((x = row_left - 2 * scale; x <= row_left + 2 * scale; ++x)); do
        format+="L%[hex:p{$x,$row_middle}] R%[hex:p{$((x + $1 * 59 * scale - scale)),$row_middle}] "
    done
    seen=$(pixels_of "$box" "$format") && [[ $seen == *LFFFFFF* && $seen == *R000000* ]]
}
box_has_changed() { ! box_shows_buttons "$1"; }
answer() { # n of: presses the n-th of so many buttons of the message box that must come up
    soon "a message box with $2 buttons" box_shows_buttons "$2"
    xdotool $(to "$box" $((row_left + (2 * $1 - 1) * 59 * scale / 2)) "$row_middle") sleep 0.02 click 1
    soon "the message box takes its answer" box_has_changed "$2"
}

# What the table shows, a letter for a suit's colour and "." for the colour of bases and backs:
# 0 to 7 the columns from the top, a back a "." and a base "...", s the stock, p the piles.
declare -A table=()
declare -A letter=([C80000]=S [00C800]=H [0000C8]=D [C8C800]=C [C800C8]=O [99AD9B]=. [BCD0BE]=_)
rows=24 # strips of 125 twips in a column; a face is three of them high
places() { # all strips, the stock and the piles, as a format for their colours
    awk -v rows="$rows" -v scale="$scale" '
        function place(x, y) { printf "%%[hex:p{%d,%d}] ", x * scale / 15, y * scale / 15 }
        BEGIN { for (i = 0; i < 8 * rows; ++i) place(130 + int(i / rows) * 480, 1212 + i % rows * 125)
                split("130 1722 2164 2606 3048 3490", top); for (i = 1; i <= 6; ++i) place(top[i], 612) }'
}
see() { # STACK=CARDS... what changes on the table; then it must show all of it
    local word key expected seen='' colour until=$((SECONDS + limit))
    for word in "$@"; do table[${word%=*}]=${word#*=}; done
    expected=$(for key in {0..7}; do echo "${table[$key]}"; done |
        awk '{ gsub(/[A-Z]/, "&&&"); printf "%-'"$rows"'s", $0 }' | tr ' ' _)${table[s]}${table[p]}
    while [ "$seen" != "$expected" ]; do
        if [ "$SECONDS" -ge "$until" ] || program_is_gone || { [ -n "$seen" ] && box_is_open; }; then
            fail "after '${step[*]}' the table's columns show and should show" "$(diff -y -t -W $((3 * rows)) \
                <(fold -w "$rows" <<<"$seen") <(fold -w "$rows" <<<"$expected"))"
        fi
        seen=
        for colour in $(pixels_of "$window" "$format"); do seen+=${letter[$colour]:-?}; done
    done
    by_ear
    sleep "$([ $# -gt 0 ] && echo 0.15 || echo 0.5)" # a card may still slide, and the program takes no press
}

by_ear() { :; } # what a listener must have been told by then, where there is one

counts_are() { [ "$(scores_of "$program/tessarine.sco")" = " $1 " ]; } # played, won, drawn and lost of all runs
is_new_deal() { [ "$(wc -c <"$deal")" -eq 200 ] && ! cmp -s "$deal" "$out/last_deal"; } 2>/dev/null

# A deal that a hand wins, and the hand's moves, each with what it changes on the table.
cards=(14 9 35 38 12 7 44 45 32 25 4 26 17 22 36 27 28 23 29 10 31 46 16 21 43 3 47 48 2 19 8 15 1 11 49 33 20 30
39 40 18 6 0 42 5 34 41 37 24 13)
steps='true 0 0 0 0 0=... 1=H 2=.C 3=..S 4=...D 5=....C 6=.....C 7=......O s=H p=.....;drag 18 49 18 89 0=H s=C
press 230 14 1 1 0=... s=H;press 82 97 3 1 2=S 5=....CC;press 18 49 3 1 1=HH s=C;press 18 49 3 1 5=....CCC s=S
press 18 49 3 1 s=O p=S....;press 18 49 3 1 s=D p=SO...;press 18 49 3 1 s=H p=SOD..;press 52 49 1 1 s=S
press 18 49 3 1 s=H;press 52 49 1 1 s=S;press 18 49 3 1 s=C;press 52 49 1 1 s=O;press 18 49 3 1 s=S;press 38 49 1 1 s=O
press 18 49 3 1 s=C;press 52 49 1 1;press 18 49 3 1 s=H p=SODC.;press 210 131 3 1 6=....H
press 210 122 3 1 6=...D p=SODCH;press 18 49 3 1;press 52 49 1 2 s=D;press 18 49 3 1 4=...DD s=S
press 18 49 3 1 3=..SS s=C;press 18 49 3 1 5=....CCCC s=S;press 18 49 3 1 2=SS s=C;drag 114 106 82 139 2=SSSS 3=.H
press 114 97 3 1 3=C;press 50 114 3 1 1=...;press 18 49 3 1 3=CC;drag 178 122 114 139 3=CCCCCC 5=...D
press 52 49 1 2 s=H;press 18 49 3 1 s=S;press 18 49 3 1 2=SSSSS s=O;drag 146 114 18 89 0=DD 4=..C
press 146 106 3 1 4=.O;press 114 214 3 1 3=...;press 38 49 1 1 s=C;press 18 49 3 1 s=.;press 146 97 3 1 1=O 4=O
press 146 89 3 1 1=OO 4=...;press 242 139 3 1 3=O 7=.....O;press 242 131 3 1 3=OO 7=....S;press 242 122 3 1 7=...O
press 242 114 3 1 7=..D;press 50 114 3 1 1=...;press 242 106 3 1 7=.H;press 178 114 3 1 5=..H;press 242 97 3 1 7=O
press 178 106 3 1 5=.D;press 242 89 3 1 7=...;press 114 114 3 1 3=...;drag 18 89 178 122 0=... 5=.DDD
press 52 49 1 1 s=H;press 18 49 3 1 s=.;press 52 49 1 1 s=O;press 18 49 3 1 s=H;press 18 49 3 1 s=.
press 210 114 3 1 0=D 6=..D;press 210 106 3 1 6=.D;press 178 147 3 1 5=S;press 178 89 3 1 5=...;press 82 189 3 1 2=...
press 210 97 3 1 0=DD 6=D;press 210 89 3 1 6=...;press 18 114 3 1 win'

game() {
    local step deal=$program/tempgame.txt format
    open_display
    format=$(places)
    write_files "$program" && rm "$deal"
    start_program
    soon "the first deal" is_new_deal
    printf '%02d\r\n' "${cards[@]}" | tee "$out/last_deal" >"$deal"
    command_button 5 && answer 1 2 && answer 1 1
    while read -r -a step; do
        "${step[@]:0:5}"
        [ "${step[5]:-}" = win ] || see "${step[@]:5}"
    done < <(tr ';' '\n' <<<"$steps")
    soon "the message of the win" box_shows_buttons 1
    counts_are "5 2 1 2" || fail "the win is counted before its message is answered"
    answer 1 1
    soon "the next deal" is_new_deal
    soon "one game is counted as won" counts_are "6 3 1 2"
    cp "$deal" "$out/last_deal"
    command_button 4 && answer 2 2
    if is_new_deal || ! counts_are "6 3 1 2"; then fail "No to a new game deals one"; fi
    command_button 4 && answer 1 2
    soon "a new game" is_new_deal
    soon "one game is counted as lost" counts_are "7 3 1 3"
    command_button 1 && answer 1 1
    cmp "$deal" "$program/savedgame;01.gam" || fail "another deal is saved"
    command_button 8 && answer 1 2
    ends_well
    cmp <(sed -E '1s/^([0-9]{2}-){2}[0-9]{4} ([0-9]{2}:){2}[0-9]{2}\r$/now\r/' "$program/tessarine.cfg") \
        <(printf 'now\r\n' && cat "$work/settings") || fail "the configuration is not written as it was read"
}

# The same under the reference compositor of Wayland, nested in the display: it gets the mouse, and says
# itself what stands where. It puts windows at random places.
wayland() { # CASE...
    type weston weston-debug >/dev/null || exit 77
    manage_windows() {
        printf '[shell]\n%s\n' panel-position=none locking=false startup-animation=none close-animation=none \
            animation=none background-color=0xff102030 >"$work/weston.ini"
        weston --debug --backend=x11-backend.so --use-pixman --scale="$scale" --width=$((1280 / scale)) \
            --height=$((1400 / scale)) --idle-time=0 -S nested -c "$work/weston.ini" >"$out/weston.log" 2>&1 & started+=($!)
        export WAYLAND_DISPLAY=nested XDG_SESSION_TYPE=wayland
        runner=(env -u DISPLAY)
        soon "the compositor" eval "weston-debug scene-graph 2>/dev/null | grep -q background"
        xdotool mousemove 1 1 mousemove 1279 1399 mousemove 0 0 sleep 0.1 # it counts the pointer's steps from here
    }
    # Of every window, front-most first: its number, and place and size of its client area. That is the
    # part told to be opaque; a window that comes up again tells none, and has the toolkit's frame.
    toplevels() {
        weston-debug scene-graph | awk -v "pid=PID $pid," '/^\tView/ { number = "" }
            /role xdg_toplevel/ && index($0, pid) { sub(/.*surface ID /, ""); number = $0 + 0 }
            !number { next }
            /position:/ { gsub(/[^0-9]+/, " "); split($0, p, " "); p[1] += 3; p[2] += 30; p[3] -= 3; p[4] -= 3 }
            /[[]opaque:/ { gsub(/[^0-9]+/, " "); split($0, p, " ") }
            /outputs:/ { print number, p[1], p[2], p[3] - p[1], p[4] - p[2] }'
    }
    place_of() { toplevels | awk -v "number=$1" -v "scale=$scale" '$1 == number { print $2 * scale, $3 * scale, $4 * scale, $5 * scale }'; }
    windows_of_program() { toplevels | cut -d ' ' -f 1; }
    to() { place_of "$1" | awk -v x="$2" -v y="$3" '{ print "mousemove", $1 + x, $2 + y }'; }
    size_of() { place_of "$1" | cut -d ' ' -f 3-; }
    pixels_of() {
        local area
        area=$(place_of "$1" | awk '{ print $3 "x" $4 "+" $1 "+" $2 }')
        xdotool mousemove 1279 1399 # the pointer is part of the picture
        xwd -silent -root | convert xwd:- -crop "$area" +repage -depth 8 -type TrueColor -format "$2" info:
    }
    "$@"
}
wayland_game() { wayland game; }
wayland_game_at_200_percent() { scale=2 && wayland game; }
wayland_windows() { wayland windows_with_frames; }
wayland_windows_at_200_percent() { scale=2 && wayland windows_with_frames; }

# The frame that the toolkit draws itself: 30 pixels at the top, 3 elsewhere, and its buttons at the right.
frame_button() { # WINDOW, and how far from its right edge
    xdotool $(to "$1" $(($(size_of "$1" | cut -d ' ' -f 1) - $2 * scale)) $((-16 * scale))) sleep 0.1 click 1
}
window_has_width() { [[ $(($(size_of "$window" | cut -d ' ' -f 1) / scale)) =~ ^$1$ ]]; }
column_base_reaches() { [ "$(pixels_of "$window" "%[hex:p{$(($1 * scale)),$(($2 * scale))}]")" = 99AD9B ]; }
windows_with_frames() {
    local button wide=$((1280 / scale - 6))
    open_display && start_program
    soon "the window has the table's width" window_has_width 264
    frame_button "$window" 37
    soon "the window is maximised" window_has_width "$wide"
    soon "the table is as wide" column_base_reaches $((wide / 10)) $((wide * 3 / 11))
    frame_button "$window" 37
    soon "the window has its size back" window_has_width 264
    soon "the table is as it was" column_base_reaches 30 95
    xdotool $(to "$window" $((265 * scale)) $((200 * scale))) sleep 0.1 mousedown 1 sleep 0.1 \
        mousemove_relative -- $((30 * scale)) 0 sleep 0.1 mousemove_relative -- $((30 * scale)) 0 sleep 0.5 mouseup 1
    soon "the hand makes it wider" window_has_width 3..
    for button in 0 3 6 7; do # the file dialog, options, about, help
        command_button "$button"
        soon "a window for button $button" box_is_open
        sleep 0.5
        frame_button "$box" 14
        soon "its frame closes it" no_box_is_open
    done
    command_button 8 && soon "a question" box_shows_buttons 2
    frame_button "$box" 14 && sleep 0.5
    box_shows_buttons 2 || fail "a question closes without an answer"
    answer 2 2
    frame_button "$window" 14
    ends_well
}
no_box_is_open() { ! box_is_open; }

game_at_200_percent() { scale=2 && export QT_SCALE_FACTOR=2 && game; } # on a screen of twice as many pixels

game_by_ear() { # a reader on a bus of its own presses the buttons, and knows the table from hearing
    local said=$out/heard name
    local row=('Load Saved Game' 'Save Game' Scores Options 'New Game' 'Restore current game' About Help Exit Undo)
    local ok=('' Ok) yes_or_no=('' Yes No)
    dbus-daemon --session --nofork --print-address >"$work/bus" 2>"$out/bus.log" & started+=($!)
    soon "a bus" test -s "$work/bus"
    DBUS_SESSION_BUS_ADDRESS=$(<"$work/bus") && export DBUS_SESSION_BUS_ADDRESS
    "$here/reader.py" listen "$said" "${cards[@]}" 2>"$out/reader.log" & started+=($!)
    soon "a listener" test -s "$said"
    by_ear() { soon "the listener knows it: $(<"$said")" table_is_known; }
    table_is_known() { [ "$(<"$said")" = "known$(for key in {0..7} s p; do printf ' %s=%s' "$key" "${table[$key]}"; done)" ]; }
    reader_presses() { "$here/reader.py" press "$1" 2>>"$out/reader.log" || fail "the reader can't press $1"; }
    command_button() { reader_presses "${row[$1]}"; }
    answer() {
        soon "a message box with $2 buttons" box_shows_buttons "$2"
        if [ "$2" -eq 1 ]; then reader_presses "${ok[$1]}"; else reader_presses "${yes_or_no[$1]}"; fi
        soon "the message box takes its answer" box_has_changed "$2"
    }
    game
    cmp "$said.boxes" <(printf '%s\n' 'Restore current game?' 'Game restored' 'Its all done!' 'Abandon current game?' \
        'Abandon current game?' "Game saved to file: $program/savedgame;01.gam" 'Exit?') || fail "other boxes were heard"
    start_program
    for name in Options 'Colour 2, suit H' Exit Scores Clear No Close About OK Help Back Exit; do
        reader_presses "$name"
    done
    close_window
}

window() {
    local before
    open_display && start_program
    [ "$(xdotool getwindowname "$window")" = "Tessarine" ] || fail "the window has another title"
    soon "the window has the table's width" size_is "264 514"
    soon "the window stands in the middle of the screen" is_in_the_middle_of "$window" 0 0 1280 1400
    read -r -a before < <(outer_of "$window")
    command_button 8 && soon "a question" box_shows_buttons 2
    soon "it stands in the middle of the window" is_in_the_middle_of "$box" "${before[@]}"
    answer 2 2
    xdotool mousemove $((before[0] + before[2] - 1)) 700 sleep 0.1 mousedown 1 sleep 0.1 \
        mousemove_relative 30 0 sleep 0.1 mousemove_relative 30 0 sleep 0.5 mouseup 1 # the right edge
    soon "the hand makes it wider" size_is "3.. .*"
    [[ $(outer_of "$window") == "${before[0]} ${before[1]} "* ]] || fail "the window jumps"
    close_window
    start_program
    soon "the window has the table's width" size_is "264 514"
    xdotool windowsize "$window" 332 514 # from 4,080 twips to 5,100, a quarter wider; the table takes 5,031
    soon "the window snaps to the table" size_is "327 514"
    xdotool windowsize "$window" 327 450 sleep 1
    size_is "327 450" || fail "the window does not take a height alone: $(size_of "$window")"
    close_window
}
size_is() { [[ $(size_of "$window") =~ ^$1$ ]]; }
outer_of() { # left, top, width and height of a window with its frame
    xwininfo -id "$(xwininfo -children -id "$1" | awk '/Parent window id/ { print $4 }')" |
        awk '/Absolute/ { print $4 } /^ *(Width|Height):/ { print $2 }' | xargs
}
is_in_the_middle_of() { # window left top width height; to half a pixel
    local x y width height slack=${TESSARINE_RUNNER:+64} # Wine takes the frame for another than it has
    read -r x y width height < <(outer_of "$1")
    (((2 * (x - $2) + width - $4) ** 2 <= 1 && (2 * (y - $3) + height - $5) ** 2 <= ${slack:-1}))
}

idle() { # nothing happens, and so nothing is done
    open_display && start_program && sleep 1.5
    soon "three seconds without work" rests
    close_window
}
rests() { # a hundredth of a second is what the clock may add
    local before
    before=$(ticks) && sleep 3 && (($(ticks) - before <= 1))
}
ticks() { awk '{ print $14 + $15 }' "/proc/$pid/stat"; } # the processor time that the program has used

no_display() { # without a display, or with one that isn't there, one sentence says so
    local command said code
    for command in ./tessarine "DISPLAY=:98765 ./tessarine" "$here/../../play"; do
        said=$(cd "$program" && timeout 10 bash -c "$command" 2>&1)
        code=$?
        if [ "$code" -eq 0 ] || [ "$code" -ge 124 ] || [ "$(wc -l <<<"$said")" -ne 1 ]; then
            fail "$command ended with code $code and said: $said"
        fi
    done
}

[ "$(type -t "$test_case")" = function ] || fail "there is no case $test_case"
unset QT_QPA_PLATFORM WAYLAND_DISPLAY QT_SCALE_FACTOR DISPLAY
rm -rf -- "$out" && mkdir -p "$out"
program="$work/Пасьянс für ひとり" # as a player has it on the first day, and no other player's settings
cp -r "$2" "$program" && rm -f "$program"/tessarine.cfg "$program"/*.sco "$program"/tempgame.txt
export HOME=$work XDG_CONFIG_HOME=$work XDG_RUNTIME_DIR=$work
"$test_case"
