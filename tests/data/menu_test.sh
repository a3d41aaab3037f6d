#!/bin/sh
# The place in the menu: menu_test.sh DATA-FOLDER. A desktop's own launcher starts the program in its
# folder, whatever that folder is called; taking it out leaves everything else as it was.
set -u
# As a desktop does it that knows where the entry lies.
launch='import sys; from gi.repository import Gio; Gio.DesktopAppInfo.new_from_filename(sys.argv[1]).launch()'
/usr/bin/python3 -c "${launch%;*}" 2>/dev/null || { echo "skipped: nothing can launch an entry"; exit 77; }
room=$(mktemp -d) && trap 'rm -rf "$room"' EXIT
failed=0
expect() { # WHAT COMMAND...
    what=$1 && shift
    "$@" || { echo "FAILED: $what"; failed=1; }
}
starts() { # ENTRY
    rm -f "$room/started"
    /usr/bin/python3 -c "$launch" "$1"
    for _ in 1 2 3 4 5 6 7 8 9 10; do [ -s "$room/started" ] || sleep 0.2; done
    [ "$(cat "$room/started")" = "$folder" ]
}
ends_in_a_blank() { grep -q '[[:blank:]]$' "$entry"; } # a blank that some desktops would lose

folder="$room/100% of \$HOME's \"games\" & \`mehr für dich\` = C:\\new\\ "
mkdir -p "$folder" "$room/share/applications"
cp "$1"/menu "$1"/tessarine.desktop "$1"/tessarine.png "$folder"
printf '#!/bin/sh\npwd >"%s/started"\n' "$room" >"$folder/tessarine" && chmod +x "$folder"/*
echo other >"$room/share/applications/other.desktop"
export XDG_DATA_HOME="$room/share"
entry=$XDG_DATA_HOME/applications/tessarine.desktop

expect "it is added" "$folder/menu" add
expect "it is added again" "$folder/menu" add
expect "the menu's entry starts it" starts "$entry"
expect "so does the entry in the folder" starts "$folder/tessarine.desktop"
expect "no value is cut short" eval ! ends_in_a_blank
name=$(sed -n 's/^Icon=//p' "$entry")
expect "the entry's icon is there" [ -s "$XDG_DATA_HOME/icons/hicolor/256x256/apps/$name.png" ]
command -v desktop-file-validate >/dev/null &&
    expect "the entries are valid" desktop-file-validate "$entry" "$folder/tessarine.desktop"
expect "it is taken out" "$folder/menu" remove
expect "taking it out twice is no error" "$folder/menu" remove
expect "the rest stays" [ "$(cd "$room/share" && find . -type f)" = ./applications/other.desktop ]
exit $failed
