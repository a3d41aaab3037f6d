#!/usr/bin/env bash
# Runs a program for Windows, in a world of its own that leaves the user's alone.
#   wine.sh PROGRAM ARGUMENTS...
set -u
build=$(dirname "$(readlink -f "$0")")/../build
mkdir -p "$build"
WINEPREFIX=${WINEPREFIX:-$(readlink -f "$build")/wine}
# What it would otherwise ask to download, or lay into the menu of the user.
export WINEPREFIX WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe='
export LC_ALL=C.UTF-8 # names on the disk are UTF-8
wine=$(PATH=$PATH:/usr/lib/wine command -v wine64) || wine=$(command -v wine) || {
    echo "There is no Wine here to run ${1:-a program} with." >&2
    exit 127
}
# The system's settings for the toolkit stay with the system, unless they come by this name.
[ -z "${QT_SCALE_FACTOR:-}" ] || export WINEQT_SCALE_FACTOR=$QT_SCALE_FACTOR
[ -z "${QT_QPA_FONTDIR:-}" ] || export WINEQT_QPA_FONTDIR=$QT_QPA_FONTDIR

# A world is made once: a Windows 10 with fonts in place of those that every Windows has.
make_world() {
    local fonts='HKCU\Software\Wine\Fonts\Replacements'
    rm -rf -- "$WINEPREFIX"
    "$wine" wineboot -i && "$wine" winecfg -v win10 &&
        "$wine" reg add "$fonts" /v Arial /d 'Liberation Sans' /f &&
        "$wine" reg add "$fonts" /v 'Courier New' /d 'Liberation Mono' /f &&
        touch "$WINEPREFIX/made"
}
if [ ! -e "$WINEPREFIX/made" ]; then
    (
        flock 9
        [ -e "$WINEPREFIX/made" ] || make_world >"$WINEPREFIX.log" 2>&1
    ) 9>"$WINEPREFIX.lock" || { echo "Wine could not be set up; see $WINEPREFIX.log" >&2; exit 127; }
fi
# The desktop that the first window brings with it would hold on to the caller's pipe.
exec "$wine" "$@" 2>>"$WINEPREFIX.log"
