#!/usr/bin/env bash
# The program in every place where it may be put. In each it is worked through all of its commands, and
# then its files are looked at. Prints a line a place.
#   places.sh BUILD-FOLDER [PLACE...]
set -u
. "$(dirname "$(readlink -f "$0")")/helpers.sh"
shift
mkdir "$work/whole" && write_files "$work/whole"
cp "$build/tests/outside/liboutside_hand.so" "$work" && hand_library=$work/liboutside_hand.so # any user reads it
tour='New Game|Save Game|Restore current game|Scores|Options|row:linen|Apply|Add|text:foo|row:mist|Delete|Exit|'
tour+='About|Load Saved Game|file:old.gam|Help|New Game|Exit'
bare_tour='New Game|Save Game|Restore current game|Scores|Clear|Options|Apply|Exit|Load Saved Game|file:old.gam|New Game|Exit'

# Where everything works and is stored: name, with what it is started, and the date that it writes.
easy_places="no home;env -u HOME -u XDG_RUNTIME_DIR -u XDG_CONFIG_HOME
a file for a home;env HOME=$build/tessarine/all.col
decimal comma;env LC_ALL=de_DE.UTF-8
japanese;env LC_ALL=ja_JP.UTF-8
arabic;env LC_ALL=ar_EG.UTF-8
catalan;env LC_ALL=ca_ES.UTF-8
persian;env LC_ALL=fa_IR.UTF-8
latin 1;env LC_ALL=fr_FR.ISO-8859-1
no such locale;env LC_ALL=xx_YY.UTF-8
before 1970;env FAKETIME_FMT=%Y-%m-%d_%T faketime -m --exclude-monotonic -f 1959-12-24_23:59:50;12-24-1959
after 2038;env FAKETIME_FMT=%Y-%m-%d_%T faketime -m --exclude-monotonic -f 2091-12-24_23:59:50;12-24-2091"

wrong() { faults+=("$*"); }
furnish() { # FOLDER: a program that was played before
    mkdir -p "$1" && cp -r "$build/tessarine/"* "$work/whole"/* "$1" && rm -f "$1"/*.png
}
worked() { # FOLDER [COMMAND...]: does the tour there and notes how it ended
    play "$1" "$tour" "${@:2}" || wrong "ended with code $?"
    ! grep -aE '^(cannot|off the screen)' "$1.told" >"$1.not" || wrong "$(head -n 3 "$1.not")"
}
told() { grep -aq "$2" "$1.told" || wrong "not told: $2"; }
not_told() { ! grep -aq "$2" "$1.told" || wrong "told: $(grep -a "$2" "$1.told" | head -n 1)"; }
nothing_left() { [ -z "$(find "$1" -name '*.part')" ] || wrong "something is left"; }
has() { [ "$(find "$1" -mindepth 1 -maxdepth 1 "${@:3}" | wc -l)" = "$2" ] || wrong "not $2 of ${*:3}"; }
untouched() { # FOLDER: nothing but what was furnished
    local file
    for file in "$work/whole"/*; do cmp "$file" "$1/${file##*/}" || wrong "${file##*/} has changed"; done
    nothing_left "$1"
}
stored() { # FOLDER: all that a tour stores is there and whole
    local file
    for file in tempgame.txt "savedgame;01.gam" old.gam; do is_game "$1/$file" || wrong "$file is no game"; done
    cmp "$1/old.gam" "$work/whole/old.gam" || wrong "a game has changed"
    [ "$(scores_of "$1/tessarine.sco")" = " 7 2 1 4 " ] || wrong "counts: $(scores_of "$1/tessarine.sco")"
    cmp <(tail -n +2 "$1/tessarine.cfg") <(sed 's/default.col/linen.col/' "$work/settings") || wrong "settings: $(cat "$1/tessarine.cfg")"
    cmp <(head -n -14 "$1/all.col") <(sed '/^mist/,+13d' "$build/tessarine/all.col") &&
        [ "$(tail -n 14 "$1/all.col" | head -n 1)" = $'foo.col\r' ] || wrong "the schemes are not stored"
    nothing_left "$1" && not_told "$1" 'could not\|not found\|rror in\|fault'
} 2>/dev/null
forbidden() { # FOLDER: what a folder forbids, it forbids not to root
    local nobody=(env HOME=/nonexistent)
    [ "$(id -u)" != 0 ] || nobody+=(setpriv --reuid 65534 --regid 65534 --clear-groups)
    worked "$1" "${nobody[@]}"
}

easy() { # FOLDER NAME
    local command date
    IFS=';' read -r command date < <(sed -n "s/^$2;//p" <<<"$easy_places")
    # shellcheck disable=SC2086
    furnish "$1" && worked "$1" $command && stored "$1"
    grep -aqE "^${date:-[0-9]{2\}-[0-9]{2\}-[0-9]{4\}} [0-9:]{8}" "$1/tessarine.cfg" || wrong "the date is $(head -n 1 "$1/tessarine.cfg")"
    tail -n +2 "$1/tessarine.cfg" >"$1/old.cfg" && LC_ALL=C play "$1" 'New Game|Exit'
    cmp -s <(tail -n +2 "$1/tessarine.cfg") "$1/old.cfg" && [ "$(scores_of "$1/tessarine.sco")" = " 8 2 1 5 " ] ||
        wrong "another locale reads it otherwise"
}
read_only_folder() {
    furnish "$1" && chmod -R a-w "$1" && forbidden "$1" && untouched "$1"
    told "$1" 'The deal could not be written to file' && told "$1" 'Game could not be saved'
    told "$1" 'options not saved' && told "$1" 'Error in adding Color Scheme'
}
read_only_disk() {
    furnish "$1" || return
    unshare -m true 2>/dev/null || { echo "   no mounts here: left out"; return; }
    # shellcheck disable=SC2016
    worked "$1" unshare -m bash -c 'mount --bind "$0" "$0" && mount -o remount,ro,bind "$0" && cd "$0" && exec "$@"' "$1"
    untouched "$1" && told "$1" 'protected'
}
current_folder_forbidden() {
    furnish "$1" && rm "$1/tessarine.sco" && chmod 777 "$1" && chmod 666 "$1"/*.*
    from=/ forbidden "$1"
    told "$1" '^does Exit' && not_told "$1" 'could not'
    [ ! -e "$1/tessarine.sco" ] && is_game "$1/savedgame;01.gam" || wrong "the wrong files"
}
current_folder_gone() {
    furnish "$1" && mkdir "$1/gone" && worked "$1" bash -c 'cd gone && rmdir ../gone && exec "$0"'
    told "$1" '^does Exit' && is_game "$1/savedgame;01.gam" || wrong "the wrong files"
}
strange_path() {
    local folder="$1/a b'c\"d;e.f/Spaß ☃ 札 \$HOME \`x\` & %20 #1/"$(printf 'x%.0s' {1..200})
    furnish "$folder" && worked "$folder" && stored "$folder"
    told "$folder" "Game saved to file: $(sed 's/[]\[^$.*/]/./g' <<<"$folder")/savedgame;01.gam"
}
deep_path() {
    local folder=$1/$(printf 'd/%.0s' {1..200})end
    furnish "$folder" && worked "$folder" && stored "$folder"
}
folders_for_files() { # settings, deal, scores, schemes, page, sounds: each is a folder
    local file
    furnish "$1" && cd "$1" || return
    for file in tessarine.{cfg,sco,htm} tempgame.txt all.col old.gam _menu.wav; do rm "$file" && mkdir "$file"; done
    mkdir "savedgame;01.gam"
    cd / && tour=${bare_tour/file:old.gam/Cancel} worked "$1" && told "$1" '^does Exit' && has "$1" 8 -type d ! -name menu
}
links_for_files() {
    furnish "$1" && mkdir "$1/real" && cd "$1" || return
    for file in tessarine.{cfg,sco,htm} tempgame.txt all.col _*.wav; do mv "$file" real && ln -s "real/$file" .; done
    ln -s real/first "savedgame;01.gam" # that leads nowhere yet
    cd / && worked "$1" && has "$1" 17 -type l
    mv "$1/savedgame;02.gam" "$1/savedgame;01.gam" 2>/dev/null
    stored "$1"
}
links_in_circles() {
    furnish "$1" && cd "$1" || return
    for file in tessarine.{cfg,sco} tempgame.txt all.col; do rm "$file" && ln -s "$file" "$file"; done
    cd / && tour=$bare_tour worked "$1" && told "$1" '^does Exit' && has "$1" 4 -type l
}
no_display() {
    furnish "$1" && screen='' play "$1" '' env -u DISPLAY -u WAYLAND_DISPLAY && wrong "it ended well"
    [ "$(wc -l <"$1.err")" = 1 ] || wrong "it said: $(cat "$1.err")"
    untouched "$1"
}
display_goes_away() {
    local place hand
    for hand in wait 'Options|wait' 'New Game|Load Saved Game|wait'; do # idle, and in two kinds of box
        place=$1/$hand && furnish "$place" && display 1024x768
        screen=xcb play "$place" "$hand" & started+=($!)
        sleep 1.5 && kill "${started[-2]}"
        wait "${started[-1]}"
        [ $? != 124 ] || wrong "it lives on without a display ($hand)"
        is_game "$place/tempgame.txt" && scores_of "$place/tessarine.sco" >/dev/null || wrong "files are not whole ($hand)"
        play "$place" '' || wrong "it does not come up again ($hand)"
    done
}
all_screens() { # small and large, with cards of all sizes
    local size scale
    for size in 640x480 7680x4320; do
        display "$size"
        for scale in 1 9; do
            furnish "$1" && sed -i "3s/.*/ $scale \r/" "$1/tessarine.cfg" && screen=xcb worked "$1" && told "$1" '^does Exit'
        done
    done
}
two_programs() { # that write the same files at the same time
    local file hand='New Game|New Game|New Game|Options|Add|text:foo|row:foo|Delete|Exit|Save Game|New Game|Exit'
    furnish "$1" && ln -s "$1" "$1.too" # as another folder, with outputs of its own
    for _ in {1..10}; do
        play "$1.too" "$hand" & started+=($!)
        play "$1" "$hand" || wrong "ended with code $?"
        wait "${started[-1]}" || wrong "the other ended with code $?"
        for file in "$1"/*.gam "$1/tempgame.txt"; do is_game "$file" || wrong "$file is no game"; done
        scores_of "$1/tessarine.sco" >/dev/null || wrong "the scores are not whole"
        [ "$(wc -l <"$1/tessarine.cfg")" = 10 ] && [ "$(($(wc -l <"$1/all.col") % 14))" = 0 ] || wrong "settings or schemes are not whole"
        not_told "$1" 'could not' && not_told "$1.too" 'could not'
    done
    nothing_left "$1"
}

places="read_only_folder read_only_disk current_folder_forbidden current_folder_gone strange_path deep_path
folders_for_files links_for_files links_in_circles no_display display_goes_away all_screens two_programs
$(cut -d ';' -f 1 <<<"$easy_places" | tr ' ' _)"
[ $# -gt 0 ] || read -r -d '' -a wanted <<<"$places"
all=0 bad=0
for place in "${@:-${wanted[@]}}"; do
    faults=()
    case $(type -t "$place").$'\n'$easy_places in
        function*) "$place" "$work/$place" ;;
        *$'\n'"${place//_/ };"*) easy "$work/$place" "${place//_/ }" ;;
        *) wrong "there is no such place" ;;
    esac
    ((++all))
    if [ ${#faults[@]} -eq 0 ]; then
        echo "ok     ${place//_/ }"
    else
        ((++bad))
        echo "WRONG  ${place//_/ }" && printf '         %s\n' "${faults[@]:0:4}"
    fi
done
echo "$all places, $bad of them wrong"
[ "$bad" -eq 0 ]
