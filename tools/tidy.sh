#!/usr/bin/env bash
# Runs clang-tidy over the project's sources, as the given build folder compiles them. A source that
# has not changed since it was last found clean, nor any header it includes, is not looked at again.
#   tools/tidy.sh build/clang [source ...]
set -u
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1

build=$1
shift
stamps=build/tidy
mkdir -p "$stamps"

# The project's files that each object of the build was made from, one line an object, source first.
inputs() {
    ninja -C "$build" -t deps | awk -v root="$PWD/" '
        /^[^ ].*: #deps/ { if (line) print line; line = ""; next }
        index($1, root) == 1 {
            file = substr($1, length(root) + 1)
            if (file !~ /^build\//) line = line file " "
        }
        END { if (line) print line }' | grep -E "^[^ ]+\.cpp " | sort -u
}

# look SOURCE INPUTS...: looks at one source unless its stamp says that nothing changed.
look() {
    local source=$1 stamp=$stamps/${1//\//__} sum
    [ -f "$source" ] || return 0
    sum=$(cat .clang-tidy ./*/.clang-tidy "$@" | sha256sum)
    [ "$sum" = "$(cat "$stamp" 2>/dev/null)" ] && return
    echo "   $source"
    if clang-tidy --quiet -p "$build" "$source" 2>"$stamp.err"; then
        echo "$sum" >"$stamp"
    else
        # What it says beside its findings matters only when it found none, such as a missing header.
        grep -vE '^[0-9]+ warnings? (generated|treated)|^Suppressed |^Use -header-filter' "$stamp.err"
        return 1
    fi
}
export -f look
export build stamps

# The sources asked for, or all.
wanted() {
    if [ $# -eq 0 ]; then
        cat
    else
        awk -v names="$*" 'BEGIN { n = split(names, name, " "); for (i = 1; i <= n; ++i) want[name[i]] }
                           $1 in want'
    fi
}

# shellcheck disable=SC2016 # the words of a line are the arguments
inputs | wanted "$@" | xargs -P "$(nproc)" -I{} bash -c 'look $1' look {}
