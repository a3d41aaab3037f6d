#!/usr/bin/env bash
# Everything that a disk can do to a player's files. Each command that touches a file is worked once for
# each operation on the disk and each way in which that can fail, and once for a kill before and after
# it. Then every file must be its old self or its new one, what was told must be true, and the program
# must come up again with every count that it had.
#   disk_faults.sh BUILD-FOLDER [COMMAND...]
set -u
me=$(readlink -f "$0")
build=$(readlink -f "$1")
export build work
. "${me%/*}/helpers.sh"

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

furnish() { # FOLDER COMMAND: a program as its player left it, with links here and there
    rm -rf "$1" && mkdir -p "$1/real" && ln "$work/tessarine" "$1/tessarine"
    cp "$build/tessarine/all.col" "$1/real/schemes" && ln -s real/schemes "$1/all.col"
    [ "$2" != first_day ] || return 0
    cp "$work/whole/tessarine.cfg" "$work/whole/tempgame.txt" "$work/whole/old.gam" "$1"
    cp "$work/whole/tessarine.sco" "$1/real/scores" && ln -s real/scores "$1/tessarine.sco"
}

other_schemes() { sed '16,28d' "$1"; } # than the one that is replaced, by whatever colours were on show

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
write_files "$work/whole"
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
