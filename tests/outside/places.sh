#!/usr/bin/env bash
# The program in every place where it may be put. In each it is worked through all of its commands, and
# then its files are looked at. Prints a line a place.
#   places.sh BUILD-FOLDER [PLACE...]
set -u
build=$(readlink -f "$1")
. "$(dirname "$(readlink -f "$0")")/helpers.sh"
shift
work=$(mktemp -d)
chmod 755 "$work"
trap 'kill "${started[@]}" 2>/dev/null; chmod -R u+w "$work"; rm -rf -- "$work"' EXIT
started=()
mkdir "$work/whole" && write_files "$work/whole"
cp "$build/tests/outside/liboutside_hand.so" "$work" && hand_library=$work/liboutside_hand.so # any user reads it
tour='New Game|Save Game|Restore current game|Scores|Options|row:linen|Apply|Add|text:foo|row:mist|Delete|Exit|'
tour+='About|Load Saved Game|file:old.gam|Help|New Game|Exit'
bare_tour='New Game|Save Game|Restore current game|Scores|Clear|Options|Apply|Exit|Load Saved Game|file:old.gam|New Game|Exit'
faults=()

wrong() { faults+=("$*"); }
furnish() { # FOLDER: a program that was played before
    mkdir -p "$1" && cp -r "$build/tessarine/"* "$work/whole"/* "$1" && rm -f "$1"/*.png
}
# worked FOLDER [COMMAND...]: does the tour there and notes how it ended.
worked() {
    play "$1" "$tour" "${@:2}" || wrong "ended with code $?"
    ! grep -aE '^(cannot|off the screen)' "$1.told" >"$1.not" || wrong "$(head -n 3 "$1.not")"
    ! grep -aE 'Sanitizer|runtime error' "$1.err" >"$1.not" || wrong "$(head -n 3 "$1.not")"
}
told() { grep -aq "$2" "$1.told" || wrong "not told: $2"; }
not_told() { ! grep -aq "$2" "$1.told" || wrong "told: $(grep -a "$2" "$1.told" | head -n 1)"; }
untouched() { # FOLDER: nothing but what was furnished
    local file
    for file in "$work/whole"/*; do cmp "$file" "$1/${file##*/}" || wrong "${file##*/} has changed"; done
    [ -z "$(find "$1" -name '*.part')" ] || wrong "something is left"
}
stored() { # FOLDER [COUNTS]: all that a tour stores is there and whole
    local file
    for file in tempgame.txt "savedgame;01.gam" old.gam; do is_game "$1/$file" || wrong "$file is no game"; done
    cmp "$1/old.gam" "$work/whole/old.gam" || wrong "a game has changed"
    [ "$(scores_of "${from:-$1}/tessarine.sco")" = "${2:- 7 2 1 4 }" ] || wrong "counts: $(scores_of "${from:-$1}/tessarine.sco")"
    cmp <(tail -n +2 "$1/tessarine.cfg") <(sed 's/default.col/linen.col/' "$work/settings") || wrong "settings: $(cat "$1/tessarine.cfg")"
    cmp <(head -n -14 "$1/all.col") <(sed '/^mist/,+13d' "$build/tessarine/all.col") &&
        [ "$(tail -n 14 "$1/all.col" | head -n 1)" = $'foo.col\r' ] || wrong "the schemes are not stored"
    [ -z "$(find "$1" -name '*.part')" ] || wrong "something is left"
    not_told "$1" 'could not\|not found\|rror in\|fault'
} 2>/dev/null
as_nobody() { # what a folder forbids, it forbids not to root
    if [ "$(id -u)" = 0 ]; then nobody=(setpriv --reuid 65534 --regid 65534 --clear-groups); else nobody=(env); fi
}

read_only_folder() {
    furnish "$1" && chmod -R a-w "$1" && as_nobody && home=/nonexistent worked "$1" "${nobody[@]}"
    untouched "$1"
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
    furnish "$1" && rm "$1/tessarine.sco" && chmod 777 "$1" && chmod 666 "$1"/*.* && as_nobody
    from=/ worked "$1" "${nobody[@]}"
    told "$1" '^does Exit' && not_told "$1" 'could not'
    [ ! -e "$1/tessarine.sco" ] && is_game "$1/savedgame;01.gam" || wrong "the wrong files"
}
current_folder_gone() {
    furnish "$1" && mkdir "$1/gone"
    worked "$1" bash -c 'cd gone && rmdir ../gone && exec "$0"'
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
    cd / && tour=${bare_tour/file:old.gam/Cancel} worked "$1" && told "$1" '^does Exit'
    [ "$(find "$1" -mindepth 1 -type d ! -name menu | wc -l)" = 8 ] || wrong "a folder has gone"
}
home_is_a_file() { touch "$work/home" && furnish "$1" && home=$work/home worked "$1" && stored "$1"; }
links_for_files() {
    furnish "$1" && mkdir "$1/real" && cd "$1" || return
    for file in tessarine.{cfg,sco,htm} tempgame.txt all.col _*.wav; do mv "$file" real && ln -s "real/$file" .; done
    ln -s real/first "savedgame;01.gam" # that leads nowhere yet
    cd / && worked "$1"
    [ "$(find "$1" -maxdepth 1 -type l | wc -l)" = 17 ] || wrong "a link has gone"
    mv "$1/savedgame;02.gam" "$1/savedgame;01.gam" 2>/dev/null
    stored "$1"
}
links_in_circles() {
    furnish "$1" && cd "$1" || return
    for file in tessarine.{cfg,sco} tempgame.txt all.col; do rm "$file" && ln -s "$file" "$file"; done
    cd / && tour=$bare_tour worked "$1" && told "$1" '^does Exit'
    [ "$(find "$1" -maxdepth 1 -type l | wc -l)" = 4 ] || wrong "a link has gone"
}
no_home() { furnish "$1" && worked "$1" env -u HOME -u XDG_RUNTIME_DIR -u XDG_CONFIG_HOME && stored "$1"; }
in_locale() { # FOLDER NAME: everything is stored as anywhere, and read again
    locale -a | tr -d - | grep -qix "$(tr -d - <<<"$2")" || echo "   $2 is not installed: the toolkit alone knows it"
    furnish "$1" && worked "$1" env LC_ALL="$2" && stored "$1"
    grep -aqE '^[0-9]{2}-[0-9]{2}-[0-9]{4} [0-9:]{8}' "$1/tessarine.cfg" || wrong "a date: $(head -n 1 "$1/tessarine.cfg")"
    cp "$1/tessarine.cfg" "$1/old.cfg"
    LC_ALL=C play "$1" 'New Game|Exit' && cmp -s <(tail -n +2 "$1/tessarine.cfg") <(tail -n +2 "$1/old.cfg") || wrong "another locale reads it otherwise"
    [ "$(scores_of "$1/tessarine.sco")" = " 8 2 1 5 " ] || wrong "another locale counts otherwise"
}
decimal_comma() { in_locale "$1" de_DE.UTF-8; }
japanese() { in_locale "$1" ja_JP.UTF-8; }
arabic() { in_locale "$1" ar_EG.UTF-8; }
catalan() { in_locale "$1" ca_ES.UTF-8; }
persian() { in_locale "$1" fa_IR.UTF-8; }
latin_1() { in_locale "$1" fr_FR.ISO-8859-1; }
no_such_locale() { in_locale "$1" xx_YY.UTF-8; }
at_time() { # FOLDER DATE YEAR
    furnish "$1" && preload="$(find /usr/lib -name libfaketimeMT.so.1):" worked "$1" env FAKETIME="$2" FAKETIME_DONT_FAKE_MONOTONIC=1
    stored "$1"
    grep -aqE "^12-24-$3 " "$1/tessarine.cfg" || wrong "the date is $(head -n 1 "$1/tessarine.cfg")"
}
before_1970() { at_time "$1" '1959-12-24 23:59:50' 1959; }
after_2038() { at_time "$1" '2091-12-24 23:59:50' 2091; }
no_display() {
    furnish "$1" && screen='' play "$1" '' env -u DISPLAY -u WAYLAND_DISPLAY && wrong "it ended well"
    [ "$(wc -l <"$1.err")" = 1 ] || wrong "it said: $(cat "$1.err")"
    untouched "$1"
}
display() { # WIDTHxHEIGHT: a display with nobody on it
    local number
    exec 5<>"$work/number"
    Xvfb -displayfd 5 -screen 0 "$1x24" -nolisten tcp -noreset >/dev/null 2>&1 5>"$work/number" & started+=($!)
    until number=$(cat "$work/number") && [ -n "$number" ]; do sleep 0.05; done
    : >"$work/number" && export DISPLAY=:$number
}
display_goes_away() {
    local before place=$1 hand
    for hand in wait 'Options|wait' 'New Game|Load Saved Game|wait'; do # idle, and in two kinds of box
        rm -rf "$place" && furnish "$place" && display 1024x768
        screen=xcb play "$place" "$hand" & started+=($!)
        before=$!
        sleep 1.5 && kill "${started[-2]}"
        for _ in {1..50}; do kill -0 "$before" 2>/dev/null || break; sleep 0.1; done
        ! kill -0 "$before" 2>/dev/null || wrong "it lives on without a display ($hand)"
        is_game "$place/tempgame.txt" && scores_of "$place/tessarine.sco" >/dev/null || wrong "files are not whole ($hand)"
        play "$place" '' || wrong "it does not come up again ($hand)"
    done
}
on_screen() { # FOLDER SIZE SCALE
    furnish "$1" && display "$2" && sed -i "3s/.*/ $3 \r/" "$1/tessarine.cfg" && screen=xcb worked "$1"
    told "$1" '^does Exit'
}
screen_640_480() { on_screen "$1" 640x480 1; }
screen_640_480_and_huge_cards() { on_screen "$1" 640x480 9; }
screen_7680_4320() { on_screen "$1" 7680x4320 1; }
screen_7680_4320_and_huge_cards() { on_screen "$1" 7680x4320 9; }
two_programs() { # that write the same files at the same time
    local i
    furnish "$1" && local hand='New Game|New Game|New Game|Options|Add|text:foo|row:foo|Delete|Exit|Save Game|New Game|Exit'
    for i in {1..10}; do
        ln -sfn "$1" "$1.$i" # as another folder, with outputs of its own
        play "$1.$i" "$hand" & started+=($!)
        play "$1" "$hand" || wrong "ended with code $?"
        wait "${started[-1]}" || wrong "the other ended with code $?"
        for file in "$1"/*.gam "$1/tempgame.txt"; do is_game "$file" || wrong "$file is no game"; done
        scores_of "$1/tessarine.sco" >/dev/null || wrong "the scores are not whole"
        [ "$(wc -l <"$1/tessarine.cfg")" = 10 ] && [ "$(($(wc -l <"$1/all.col") % 14))" = 0 ] || wrong "settings or schemes are not whole"
        not_told "$1" 'could not' && not_told "$1.$i" 'could not'
    done
    [ -z "$(find "$1" -name '*.part')" ] || wrong "something is left"
}

places='read_only_folder read_only_disk current_folder_forbidden current_folder_gone strange_path deep_path
folders_for_files home_is_a_file links_for_files links_in_circles no_home decimal_comma japanese
arabic catalan persian latin_1 no_such_locale before_1970 after_2038 no_display display_goes_away screen_640_480
screen_640_480_and_huge_cards screen_7680_4320 screen_7680_4320_and_huge_cards two_programs'
[ $# -gt 0 ] || read -r -d '' -a wanted <<<"$places"
all=0 bad=0
for place in "${@:-${wanted[@]}}"; do
    faults=()
    "$place" "$work/$place"
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
