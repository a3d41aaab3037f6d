#!/usr/bin/env bash
# Everything that a disk can do to a player's files. Each command that touches a file is worked once for
# each call of the system on a file and each way in which that can fail, and once for a kill before it,
# which is one after the last. Then every file must be its old self or its new one, what was told must be
# true, and the program must come up again with every count that it had.
#   disk_faults.sh BUILD-FOLDER [COMMAND...]
set -u
. "$(dirname "$(readlink -f "$0")")/helpers.sh"
shift

# What is pressed.
commands='first_day;New Game
start;New Game
new;New Game
save;Save Game
load;Load Saved Game|file:old.gam
restore;Restore current game
clear;Scores|Clear
add;Options|Add|text:foo
replace;Options|row:linen|Replace
delete;Options|row:linen|Delete
apply;Options|row:linen|Apply
exit;Exit'

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

# same FILE OTHER: as far as they hold no date and no chance.
same() {
    [ -e "$1" ] || { [ ! -e "$2" ]; return; }
    [ -e "$2" ] && [ "$(readlink "$1")" = "$(readlink "$2")" ] && case $1 in
        *old.gam | *.col | *schemes | *.cox) cmp -s "$1" "$2" || { [[ $1 == */replace.* ]] && cmp -s <(other_schemes "$1") <(other_schemes "$2"); } ;;
        *.gam | *.txt) is_game "$1" ;;
        *.sco | *scores) [ "$(scores_of "$1")" = "$(scores_of "$2")" ] ;;
        *.cfg) cmp -s <(tail -n +2 "$1") <(tail -n +2 "$2") || cmp -s <(tail -n +2 "$1") "$work/new_settings" ;; # begun anew
        *) true ;;
    esac
}
other_schemes() { sed '16,28d' "$1"; } # than the one that is replaced, by whatever colours were on show

faults_of() { # FOLDER COMMAND WAY: what is not as it was before, after the start or after the whole command
    local file version versions=("$work/$2".{before,start,all})
    find "$1" "${versions[@]}" ! -type d -printf '%P\n' | sort -u | while read -r file; do
        for version in "${versions[@]}"; do
            ! same "$1/$file" "$version/$file" || continue 2
        done
        [[ $3 == kill && $file == *.part ]] || echo "$file is neither old nor new: $(head -c 100 "$1/$file")"
    done
    sed -n 's/^box .*Game saved to file: \(.*[^ ]\) *$/\1/p' "$1.told" | while read -r file; do
        cmp "$file" "$1/tempgame.txt" || echo "what was told is not true"
    done
    awk '/^openat.*part/ { lost = 0 } /^(write|fsync|close).*part.*INJECTED/ { lost = 1 }
        /^rename/ && lost { print "it goes by what the disk did not take" }' "$1.calls"
}

one() { # COMMAND HAND CALL AT WAY: prints what went wrong
    local folder="$work/$1.$3.$4.$5" hand=$2 fate=() wanted=0 code before
    case $5 in
        kill) fate=(-e "inject=$3:signal=KILL:when=$4") wanted=137 ;;
        E*) fate=(-e "inject=$3:error=$5:when=$4") ;;
        *) hand="room:$5|$hand" && [[ $1 =~ start|first_day ]] || hand="About|$hand" ;; # not yet at the start
    esac
    for _ in {1..3}; do # a list of files looks into them or not, as its time allows
        furnish "$folder" "$1"
        on_disk "$folder" "$hand" "${fate[@]}"
        code=$?
        [ "$5.$code" = kill.0 ] || break
    done 2>/dev/null # no word of the kill
    {
        [ "$code" = "$wanted" ] || echo "it ended with code $code"
        faults_of "$folder" "$1" "$5"
        [ "$5" = kill ] || [ "$1" = exit ] || grep -q '^done' "$folder.told" || cat "$folder.told"
        before=$(cat "$folder"/real/scores "$folder/tessarine.sco")
        play "$folder" '' && grep -q '^done' "$folder.told" || echo "it does not come up again"
        [ -z "$before" ] || [ "$before" = "$(cat "$folder"/real/scores "$folder/tessarine.sco")" ] || echo "the start changed the counts"
    } >"$folder.wrong" 2>/dev/null
    if [ -s "$folder.wrong" ]; then
        echo "FAILED $1, $3 number $4, $5: $(cat "$folder.wrong") (the call was $(sed -n "/^$3(/p" "$folder.calls" | sed -n "$4p"))"
    fi
    rm -rf "$folder" "$folder".*
    echo "ran $1 $5"
}

mkdir "$work/whole" && cp "$build/tessarine/tessarine" "$work"
write_files "$work/whole"
while IFS=';' read -r -u 4 command hand; do
    [ $# -eq 0 ] || [[ " $* " == *" $command "* ]] || continue
    furnish "$work/$command.before" "$command"
    for part in start all; do # the calls of the start alone, and with the command
        folder=$work/$command.$part
        furnish "$folder" "$command" && on_disk "$folder" "$([ "$part" = start ] || echo "$hand")" || echo "FAILED $command without any fault: $(cat "$folder".*)"
        until grep -q '^+++' "$folder.calls"; do sleep 0.01; done
    done
    [[ $command =~ start|first_day ]] && first=0 || first=$(grep -c '^[a-z]' "$work/$command.start.calls")
    while read -r call at bytes; do
        for way in $(ways_of "$call" "$bytes"); do
            [ "$(jobs -r | wc -l)" -lt 2 ] || wait -n
            one "$command" "$hand" "$call" "$at" "$way" &
        done
    done < <(awk -F '(' -v "first=$first" '{ ++n[$1] } NR > first && /^[a-z]/ { sub(/.* = /, "", $NF); print $1, n[$1], $NF }' "$work/$command.all.calls")
done 4<<<"$commands" |
    awk '/^ran / { ++all; kills += $3 == "kill"; next } { print; failed += /^FAILED/ } END {
        printf "in all %d faults and %d kills, %d went wrong\n", all - kills, kills, failed
        exit failed > 0 || all == 0 }'
wait
