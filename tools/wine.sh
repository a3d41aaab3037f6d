#!/usr/bin/env bash
# Runs a program for Windows, in a world of its own that leaves the user's alone.
#   wine.sh PROGRAM ARGUMENTS...
set -u
build=$(dirname "$(readlink -f "$0")")/../build
mkdir -p "$build"
export WINEPREFIX=${WINEPREFIX:-$(readlink -f "$build")/wine} WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
# Without these it would ask whether to download what no program here needs.
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=${WINEDLLOVERRIDES:+;$WINEDLLOVERRIDES}"
wine=$(PATH=$PATH:/usr/lib/wine command -v wine64) || wine=$(command -v wine) || {
    echo "There is no Wine here to run ${1:-a program} with." >&2
    exit 127
}
exec "$wine" "$@"
