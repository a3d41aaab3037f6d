#!/usr/bin/env bash
# Everything that a disk can do to a player's files. Each command that touches a file is worked once for
# each call of the system on a file and each way in which that can fail, and once for a kill before it,
# which is one after the last. Then every file must be its old self or its new one, what was told must be
# true, and the program must come up again with every count that it had.
#   disk_faults.sh BUILD-FOLDER [COMMAND...]
set -u
. "$(dirname "$(readlink -f "$0")")/helpers.sh"
shift

# What is pressed. The last word of a row is what the counts may become.
commands='first_day;New Game;1 0 0 1
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
exit;Exit;'

ways_of() { # CALL BYTES: the errors, or how many bytes there is room for
    case $1 in
        openat | rename) echo ENOENT EIO EACCES ENOSPC ;;
        *stat* | readlink | *access*) echo ENOENT EIO EACCES ;;
        read) echo EIO ;;
        write) echo EIO ENOSPC $(($2 / 2)) ;;
        fsync | close) echo EIO ENOSPC ;;
        *) echo EIO EACCES ;;
    esac
    echo kill
}

furnish() { # FOLDER COMMAND: a program as its player left it, with links here and there
    rm -rf "$1" && mkdir -p "$1/real" && ln "$work/tessarine" "$1/tessarine"
    cp "$build/tessarine/all.col" "$1/real/schemes" && ln -s real/schemes "$1/all.col"
    [ "$2" != first_day ] || return 0
    cp "$work/whole/tessarine.cfg" "$work/whole/tempgame.txt" "$work/whole/old.gam" "$1"
    cp "$work/whole/tessarine.sco" "$1/real/scores" && ln -s real/scores "$1/tessarine.sco"
}

# on_disk FOLDER HAND [OPTIONS...]: plays there, with each call on the files of a player in FOLDER.calls.
# The program's number, which is part of names, is that of the shell which turns into it.
on_disk() {
    # shellcheck disable=SC2016
    play "$1" "${2//file:/file:$1/}" bash -c 'for file in {tessarine.{cfg,sco},tempgame.txt,all.col,newall.cox,old.gam,"savedgame;01.gam",real/{scores,schemes}}{,.$$.part} .; do
            watched+=(-P "$0/$file" -P "$file")
        done
        exec strace -D -y -o "$0.calls" -e trace=%file,%desc "${watched[@]}" "$@"' "$1" "${@:3}"
}

other_schemes() { sed '16,28d' "$1"; } # than the one that is replaced, by whatever colours were on show

faults_of() { # FOLDER COMMAND NEW-COUNTS WAY: what is not as it should be
    local folder=$1 path file now
    for file in tempgame.txt old.gam tessarine.cfg tessarine.sco all.col; do
        [ -e "$folder/$file" ] || [ "$2" = first_day ] || echo "$file is gone"
    done
    for path in "$folder"/* "$folder"/real/*; do
        file=$(basename "$path")
        case $file in
            tessarine | real) ;;
            *.part) [ "$4" = kill ] || echo "$file is left" ;;
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

one() { # COMMAND HAND NEW-COUNTS CALL AT WAY: prints what went wrong
    local folder="$work/$1.$4.$5.$6" hand=$2 fate=() wanted=0 code before
    case $6 in
        kill) fate=(-e "inject=$4:signal=KILL:when=$5") wanted=137 ;;
        E*) fate=(-e "inject=$4:error=$6:when=$5") ;;
        *) hand="room:$6|$hand" && [[ $1 =~ start|first_day ]] || hand="About|$hand" ;; # not yet at the start
    esac
    for _ in {1..3}; do # a list of files looks into them or not, as its time allows
        furnish "$folder" "$1"
        on_disk "$folder" "$hand" "${fate[@]}" 2>/dev/null # no word of the kill
        code=$?
        [ "$6.$code" = kill.0 ] || break
    done
    {
        [ "$code" = "$wanted" ] || echo "it ended with code $code"
        faults_of "$folder" "$1" "$3" "$6"
        [ "$6" = kill ] || [ "$1" = exit ] || grep -q '^done' "$folder.told" || cat "$folder.told"
        before=$(cat "$folder"/real/scores "$folder/tessarine.sco")
        play "$folder" '' && grep -q '^done' "$folder.told" || echo "it does not come up again"
        [ -z "$before" ] || [ "$before" = "$(cat "$folder"/real/scores "$folder/tessarine.sco")" ] || echo "the start changed the counts"
    } >"$folder.wrong" 2>/dev/null
    if [ -s "$folder.wrong" ]; then
        echo "FAILED $1, $4 number $5, $6: $(cat "$folder.wrong") (the call was $(sed -n "/^$4(/p" "$folder.calls" | sed -n "$5p"))"
    fi
    rm -rf "$folder" "$folder".*
    echo "ran $1 $6"
}

mkdir "$work/whole" && cp "$build/tessarine/tessarine" "$work"
write_files "$work/whole"
while IFS=';' read -r -u 4 command hand new; do
    [ $# -eq 0 ] || [[ " $* " == *" $command "* ]] || continue
    folder=$work/$command
    calls=()
    for way in '' "$hand"; do # the calls of the start alone, and all
        furnish "$folder" "$command" && on_disk "$folder" "$way" || echo "FAILED $command without any fault: $(cat "$folder".*)"
        until grep -q '^+++' "$folder.calls"; do sleep 0.01; done
        calls+=("$(grep -c '^[a-z]' "$folder.calls")")
    done
    [[ ! $command =~ start|first_day ]] || calls[0]=0
    while read -r call at bytes; do
        for way in $(ways_of "$call" "$bytes"); do
            [ "$(jobs -r | wc -l)" -lt 2 ] || wait -n
            one "$command" "$hand" "$new" "$call" "$at" "$way" &
        done
    done < <(awk -F '(' -v "start=${calls[0]}" '{ ++n[$1] } NR > start && /^[a-z]/ { size = $0; sub(/.* = /, "", size); print $1, n[$1], size }' "$folder.calls")
done 4<<<"$commands" |
    awk '/^ran / { ++all; kills += $3 == "kill"; next } { print; failed += /^FAILED/ } END {
        printf "in all %d faults and %d kills, %d went wrong\n", all - kills, kills, failed
        exit failed > 0 || all == 0 }'
wait
