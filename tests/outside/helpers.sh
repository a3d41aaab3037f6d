# What the scripts share that work the program from outside. For sourcing, with the build's folder as first
# argument: $work is a folder that goes at the end, as do the processes $started.
build=$(readlink -f "$1")
work=$(mktemp -d) && chmod 755 "$work"
trap 'kill "${started[@]}" 2>/dev/null; chmod -R u+w "$work"; rm -rf -- "$work"' EXIT
started=()
counts=' 5 2 1 2 ' # played, won, drawn and lost of the furnished scores

scores_of() { # FILE: the counts of a line that is scrambled by a key, two digits a letter
    local key=MIRTH text='' i line
    line=$(head -c -2 "$1" | tr ' ' 0)
    for ((i = 0; i < ${#line} / 2; ++i)); do
        printf -v text '%s\\x%x' "$text" $((16#${line:i * 2:2} ^ $(printf %d "'${key:i % 5:1}")))
    done
    printf "$text" | LC_ALL=C grep -aoE '^[^ ]+ [0-9]+ [0-9]+ [0-9]+ [0-9]+ ' | LC_ALL=C sed 's/^[^ ]*//'
}

write_files() { # FOLDER: every file of a player, and settings for comparison
    local line="01JAN2026$counts" key=MIRTH card i
    for card in {49..0}; do printf '%02d\r\n' "$card"; done | tee "$1/old.gam" >"$1/tempgame.txt"
    printf '%s\r\n' ' 7             16777215      0 ' ' 1 ' ' 200 ' ' 51200 ' ' 13107200 ' ' 51400 ' ' 13107400 ' \
        default.col arial >"$work/settings"
    printf '%s\r\n' ' 1             16777215      0 ' ' 1 ' ' 0 ' ' 8388608 ' ' 32768 ' ' 32896 ' ' 128 ' \
        default.col arial >"$work/new_settings"
    (printf 'yesterday\r\n' && cat "$work/settings") >"$1/tessarine.cfg"
    for ((i = 0; i < ${#line}; ++i)); do
        printf '%2X' $(($(printf %d "'${line:i:1}") ^ $(printf %d "'${key:i % 5:1}")))
    done >"$1/tessarine.sco"
    printf '\r\n' >>"$1/tessarine.sco"
}

# play FOLDER HAND [COMMAND...]: what the program does, worked by the hand and started by the command,
# and how it ends. It goes to FOLDER.told and .err.
play() {
    (
        set -o pipefail
        (cd "${from:-$1}" && HAND=$2 exec timeout 30 env HOME="${home-$work}" QT_QPA_PLATFORM="${screen-offscreen}" QT_LOGGING_RULES='*=false' \
            LD_PRELOAD="${preload:-}${hand_library:-$build/tests/outside/liboutside_hand.so}" "${@:3}" "$1/tessarine") 2>"$1.err" | cat >"$1.told"
    )
}

display() { # WIDTHxHEIGHT: a display with nobody on it
    local number
    number=$(mktemp -u "$work/XXXX") && mkfifo "$number"
    Xvfb -displayfd 5 -screen 0 "$1x24" -nolisten tcp -noreset >/dev/null 2>&1 5<>"$number" & started+=($!)
    read -r number <"$number" && export DISPLAY=:$number
}

is_game() { [ "$(tr -d '\r' <"$1" | sort -u | grep -cE '^[0-4][0-9]$')" = 50 ] && [ "$(wc -c <"$1")" = 200 ]; }
