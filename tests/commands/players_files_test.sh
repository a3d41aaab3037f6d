#!/usr/bin/env bash
# What a player and the program wrote outlives ./play, ./test and plain builds, also in a folder that was
# moved and got newer files: players_files_test.sh PROJECT-FOLDER. The commands and the laying of the
# data are the real ones, in a project where a script stands for the program.
set -eu
room=$(mktemp -d) && trap 'rm -rf "$room"' EXIT
export QT_QPA_PLATFORM=offscreen
mkdir "$room/old" "$room/mine" && cd "$room/old"
cp -r "$1"/{play,test,tools,data,cmake,CMakePresets.json} .
sed -i '/install(TARGETS/d' cmake/Package.cmake
cat >CMakeLists.txt <<'END'
cmake_minimum_required(VERSION 3.25)
project(InMiniature VERSION 1.0 LANGUAGES NONE)
list(APPEND CMAKE_MODULE_PATH ${CMAKE_SOURCE_DIR}/cmake)
set(Qt6_DIR /nowhere CACHE PATH "")
file(CONFIGURE OUTPUT tessarine/tessarine CONTENT "#!/bin/sh\n")
file(CHMOD ${CMAKE_BINARY_DIR}/tessarine/tessarine PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
add_custom_target(tessarine)
add_custom_target(sounds)
add_subdirectory(data)
include(Package)
END

run() { "$@" >"$room/said" 2>&1 || { cat "$room/said"; echo "FAILED: $*"; exit 1; }; }
after() { # COMMAND... run, the player's files are what they were.
    run "$@"
    local file
    for file in "$room"/mine/*; do
        cmp "$file" "$folder/${file##*/}" || { echo "FAILED: after $*"; exit 1; }
    done
}

folder=build/release/tessarine
run ./play
cmp data/all.col "$folder/all.col"
for name in all.col newall.cox tessarine.cfg tempgame.txt 'savedgame;01.gam' tessarine.sco notes; do
    echo "the player's $name" | tee "$room/mine/$name" >"$folder/$name"
done
after ./play
cp -r "$room/old" "$room/copy" && mv "$room/old" "$room/new" && cd "$room/new"
echo "newer schemes" >data/all.col
echo "a newer page" >data/tessarine.htm
after ./play
cmp data/tessarine.htm "$folder/tessarine.htm"
cd "$room/copy"
after ./test build
after cmake --build build/release --clean-first
# A build of earlier days, which made the schemes' file itself.
for path in "$PWD/" ''; do printf '1\t2\t3\t%stessarine/all.col\t4\n' "$path" >>build/release/.ninja_log; done
after cmake --preset release
after cmake --build build/release

folder=build/release/tessarine-1.0
run cmake --install build/release
cmp data/all.col "$folder/all.col"
cp -r "$room"/mine/* "$folder"
after cmake --install build/release
