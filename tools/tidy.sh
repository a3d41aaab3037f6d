#!/usr/bin/env bash
# Runs clang-tidy over the project's sources with the flags that the given build folder compiles them
# with, a whole folder at once, so that each header is read once. What has not changed since it was last
# found clean is not looked at again.
#   tools/tidy.sh build/clang [folder ...]
set -u
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1

build=$1
shift
# A folder of its own beside the sources', with the same rules in the same places.
work=build/tidy
rm -rf "$work/rules"
find .clang-tidy ./*/.clang-tidy ./*/*/.clang-tidy -print0 2>/dev/null |
    xargs -0 -I{} install -D {} "$work/rules/{}"

# One line for each source of the project: folder, flags, source.
sources() {
    awk -v root="$PWD/" '
        /^  "command": / {
            sub(/^  "command": "[^ ]+ /, ""); sub(/",$/, "")
            gsub(/ -o [^ ]+ -c [^ ]+/, ""); gsub(/\\"/, "\""); gsub(/\\\\/, "\\")
            flags = $0
        }
        /^  "file": / {
            sub(/^  "file": "/, ""); sub(/",?$/, "")
            if (index($0, root) != 1) next
            file = substr($0, length(root) + 1)
            folder = file; sub(/\/[^\/]*$/, "", folder)
            # Each of these has a main function of its own.
            if (file !~ /^build\// && !seen[file]++)
                print folder ((folder ~ /^(bench|fuzz|tools)/) ? " " file : "") "\t" flags "\t" file
        }' "$build/compile_commands.json" | sort
}

# look GROUP: looks at the sources of one group, unless its stamp says that nothing changed.
look() {
    local place=$work/rules/${1% *} group stamp=$work/${1//[\/ ]/_} unified flags sum
    unified=$place/UnifiedSource-${stamp##*/}.cpp
    group=$(grep -P "^\Q$1\E\t" "$work/sources")
    flags=$(head -n 1 <<<"$group" | cut -f 2)
    mkdir -p "$place"
    # By this name of the file the analyzer knows that what it includes is to be looked into.
    cut -f 3 <<<"$group" | sed "s|.*|#include \"$PWD/&\" // NOLINT|" >"$unified"
    sum=$(eval "clang++ $flags -MM $unified" | tr -d '\\' | tr ' ' '\n' | grep -F "$PWD/" | sort -u |
        xargs cat .clang-tidy ./*/.clang-tidy "$unified" | sha256sum)
    [ "$sum" = "$(cat "$stamp" 2>/dev/null)" ] && return
    echo "   ${1% *} ($(wc -l <"$unified"))"
    if eval "clang-tidy --quiet --header-filter='/(src|tests|fuzz|bench|tools)/' $unified -- $flags" 2>"$stamp.err"; then
        echo "$sum" >"$stamp"
    else
        # What it says beside its findings matters only when it found none, such as a missing header.
        grep -vE '^[0-9]+ warnings? (generated|treated)|^Suppressed |^Use -header-filter' "$stamp.err"
        return 1
    fi
}
export -f look
export build work

sources >"$work/sources"
# The largest groups first, so that no core waits for another at the end.
for folder in "${@:-}"; do
    grep -E "^$folder" "$work/sources"
done | while IFS=$'\t' read -r group _ source; do
    printf '%s\t%s\n' "$(wc -l <"$source")" "$group"
done | awk -F '\t' '{ lines[$2] += $1 } END { for (group in lines) print lines[group] "\t" group }' |
    sort -rn | cut -f 2 | xargs -P "$(nproc)" -I{} bash -c 'look "$1"' look {}
