#!/usr/bin/env bash
# Everything that a disk can do to a player's files. Each command that touches a file is worked once for
# each operation on the disk and each way in which that can fail, and once for a kill before and after
# it. Then every file must be its old self or its new one, what was told must be true, and the program
# must come up again with every count that it had.
#   disk_faults.sh BUILD-FOLDER [COMMAND...]
set -u
build=$(readlink -f "$1")
export build work me
me=$(readlink -f "$0")

# What is pressed. The last word of a row is what the counts may become.
commands() {
    cat <<END
first_day;New Game;1 0 0 1
start;New Game;6 2 1 3
new;New Game;6 2 1 3
save;Save Game;
load;Load Saved Game|file:old.gam;
restore;Restore current game;
clear;Scores|Clear;0 0 0 0
add;Options|Add|text:foo;
replace;Options|row:linen|Replace;
delete;Options|row:linen|Delete;
apply;Options|row:linen|Apply;
exit;Exit;
END
}
counts=" 5 2 1 2 "

ways_of() { # OPERATION: the errors by number (2 gone, 5 fault, 13 forbidden, 28 no room), and more
    case $1 in
        open* | rename | mkdir) echo 2 5 13 28 ;;
        fopen* | *stat) echo 2 5 13 ;;
        read) echo 5 short ;;
        write) echo 5 28 short ;;
        fsync | close) echo 5 28 ;;
        *) echo 5 13 ;;
    esac
    echo before after
}

scores_of() { # FILE: the counts of a line that is scrambled by a key, two digits a letter
    local key=MIRTH text='' i line
    line=$(head -c -2 "$1" | tr ' ' 0)
    for ((i = 0; i < ${#line} / 2; ++i)); do
        printf -v text '%s\\x%x' "$text" $((16#${line:i * 2:2} ^ $(printf %d "'${key:i % 5:1}")))
    done
    printf "$text" | cut -c 10- | grep -oE '^ [0-9]+ [0-9]+ [0-9]+ [0-9]+ '
}

furnish() { # FOLDER COMMAND: a program as its player left it, with links here and there
    rm -rf "$1" && mkdir -p "$1/real" && ln "$work/tessarine" "$1/tessarine"
    cp "$build/tessarine/all.col" "$1/real/schemes" && ln -s real/schemes "$1/all.col"
    [ "$2" != first_day ] || return 0
    cp "$work/whole/tessarine.cfg" "$work/whole/tempgame.txt" "$work/whole/old.gam" "$1"
    cp "$work/whole/scores" "$1/real/scores" && ln -s real/scores "$1/tessarine.sco"
}

play() { # FOLDER HAND: what the program does, and how it ends
    (cd "$1" && DISK_FOLDER=$1 DISK_LOG=$1.ops HAND=$2 QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='*=false' \
        LD_PRELOAD="$build/tests/outside/liboutside_hand.so" HOME=$work exec ./tessarine) >"$1.told" 2>"$1.err"
}

other_schemes() { sed '16,28d' "$1"; } # than the one that is replaced, by whatever colours were on show
is_game() { [ "$(tr -d '\r' <"$1" | sort -u | grep -cE '^[0-4][0-9]$')" = 50 ] && [ "$(wc -c <"$1")" = 200 ]; }

faults_of() { # FOLDER COMMAND NEW-COUNTS KILLED: what is not as it should be
    local folder=$1 path file now
    for file in tempgame.txt old.gam tessarine.cfg tessarine.sco all.col; do
        [ -e "$folder/$file" ] || [ "$2" = first_day ] || echo "$file is gone"
    done
    for path in "$folder"/* "$folder"/real/*; do
        file=$(basename "$path")
        case $file in
            tessarine | real) ;;
            *.part) [ "$4" = yes ] || echo "$file is left" ;;
            old.gam) cmp "$path" "$work/whole/old.gam" ;;
            tempgame.txt | savedgame*) is_game "$path" || echo "$file is no game" ;;
            tessarine.cfg) # one that can't be read is begun anew
                cmp -s <(tail -n +2 "$path") "$work/new_settings" || cmp <(tail -n +2 "$path") "$work/settings" ;;
            all.col | schemes | newall.cox)
                cmp -s "$path" "$build/tessarine/all.col" || cmp -s "$path" "$work/$2/all.col" ||
                    { [ "$2" = replace ] && cmp <(other_schemes "$path") <(other_schemes "$build/tessarine/all.col"); } ||
                    echo "$file has lost something" ;;
            tessarine.sco | scores)
                now=$(scores_of "$path")
                [[ "$now" == "$counts" || "$now" == " $3 " || ("$2" == first_day && "$now" == " 0 0 0 0 ") ]] ||
                    echo "$file counts$now" ;;
            *) echo "$file is new" ;;
        esac
    done
    [ "$2" = first_day ] || [ -L "$folder/tessarine.sco" ] || echo "the scores are no link any more"
    [ -L "$folder/all.col" ] || echo "the schemes are no link any more"
    sed -n 's/^box .*Game saved to file: \(.*[^ ]\) *$/\1/p' "$folder.told" | while read -r file; do
        cmp "$file" "$folder/tempgame.txt" || echo "what was told is not true"
    done
}

one() { # COMMAND HAND NEW-COUNTS AT FATE OPERATION PATH: prints what went wrong
    local folder="$work/$1.$4.$5" wrong='' code before
    furnish "$folder" "$1"
    { DISK_AT=$4 DISK_FATE=$5 play "$folder" "${2//file:/file:$folder/}"; } 2>/dev/null # no word of the kill
    code=$?
    case $5.$code in
        before.137 | after.137) wrong=$(faults_of "$folder" "$1" "$3" yes) ;;
        *.0) wrong=$(faults_of "$folder" "$1" "$3" no; grep -q '^done' "$folder.told" || [ "$1" = exit ] || cat "$folder.told") ;;
        *) wrong="it ended with code $code" ;;
    esac 2>&1
    before=$(cat "$folder"/real/scores "$folder/tessarine.sco" 2>/dev/null)
    play "$folder" '' && grep -q '^done' "$folder.told" || wrong+=" it does not come up again"
    if [ -n "$before" ]; then
        [ "$before" = "$(cat "$folder"/real/scores "$folder/tessarine.sco" 2>/dev/null)" ] || wrong+=" the start changed the counts"
    fi
    [ -z "$wrong" ] || echo "FAILED $1, operation $4 ($6 ${7#"$folder/"}), $5: $wrong"
    [ -n "$wrong" ] || rm -rf "$folder" "$folder".*
    echo "ran $1"
}

if [ "${2:-}" = one ]; then
    one "${@:3}"
    exit
fi

shift
work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT
mkdir "$work/whole" && cp "$build/tessarine/tessarine" "$work"
for card in {49..0}; do printf '%02d\r\n' "$card"; done >"$work/whole/old.gam"
cp "$work/whole/old.gam" "$work/whole/tempgame.txt"
printf '%s\r\n' ' 7             16777215      0 ' ' 1 ' ' 200 ' ' 51200 ' ' 13107200 ' ' 51400 ' ' 13107400 ' \
    default.col arial >"$work/settings"
printf '%s\r\n' ' 1             16777215      0 ' ' 1 ' ' 0 ' ' 8388608 ' ' 32768 ' ' 32896 ' ' 128 ' \
    default.col arial >"$work/new_settings"
(printf 'yesterday\r\n' && cat "$work/settings") >"$work/whole/tessarine.cfg"
line="01JAN2026${counts}" key=MIRTH
for ((i = 0; i < ${#line}; ++i)); do
    printf '%2X' $(($(printf %d "'${line:i:1}") ^ $(printf %d "'${key:i % 5:1}")))
done >"$work/whole/scores"
printf '\r\n' >>"$work/whole/scores"

started=0 # operations of the start, which the rows behind "start" leave out
while IFS=';' read -r -u 4 command hand new; do
    folder=$work/$command
    furnish "$folder" "$command"
    play "$folder" "${hand//file:/file:$folder/}" || echo "FAILED $command without any fault: $(cat "$folder".*)"
    cp "$folder.ops" "$work/ops"
    [ "$command" != start ] || started=$(awk '/tempgame/ && $2 == "rename" { print $1 + 3; exit }' "$work/ops")
    [ $# -eq 0 ] || [[ " $* " == *" $command "* ]] || continue
    while read -r at operation path; do
        if [ "$at" -gt "$started" ] || [ "$command" = start ]; then
            for way in $(ways_of "$operation"); do
                printf '%s\0' one "$command" "$hand" "$new" "$at" "$way" "$operation" "$path"
            done
        fi
    done <"$work/ops"
done 4< <(commands) | nice xargs -0 -r -n 8 -P 2 "$me" "$build" |
    awk '/^ran / { ++runs[$2]; ++all; next } { print; failed += /^FAILED/ } END {
        for (command in runs) printf "%s %d, ", command, runs[command]
        printf "in all %d times a fault or a kill, %d went wrong\n", all, failed
        exit failed > 0 || all == 0 }'
