#!/usr/bin/env bash
# Makes the toolkit for the Windows build: Qt as static libraries, cross-compiled from the source package
# of the very Qt that the Linux build uses. Takes half an hour on two cores.
#   build_qt_windows.sh ARCHIVE [SOURCE]
# ARCHIVE is a .tar.xz that unpacks to one folder, qt6-windows. SOURCE is the folder of another source
# of Qt's base; without it the source package of the system is fetched.
set -u
top=$(dirname "$(readlink -f "$0")")/..
source=${2:+$(readlink -f "$2")}
mkdir -p "$(dirname "$1")"
archive=$(readlink -f "$(dirname "$1")")/$(basename "$1")
cd "$top" || exit 1
. tools/shell_helpers.sh
set -o pipefail

work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT

# The system's lists name its binary packages. Those of the source packages are made from them in a place
# of their own: the system's stay as they are, and no administrator is needed.
apt_get() {
    apt-get -qq -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$work/sources" \
        -o Dir::State::Lists="$work/lists" -o APT::Sandbox::User="$(id -un)" "$@"
}
fetch_source() {
    local list
    mkdir -p "$work/sources" "$work/lists/partial"
    for list in /etc/apt/sources.list.d/{debian,ubuntu}.sources; do
        [ ! -f "$list" ] || sed 's/^Types:.*/Types: deb-src/' "$list" >"$work/sources/${list##*/}"
    done
    [ ! -f /etc/apt/sources.list ] ||
        sed -n 's/^deb /deb-src /p' /etc/apt/sources.list >"$work/sources/system.list"
    mkdir "$work/source" && cd "$work" && apt_get update && apt_get source --download-only qt6-base &&
        tar -xf qt6-base_*.orig.tar.xz -C source --strip-components=1
}

# A line now and then; the whole is in the log.
progress() {
    awk '/^\[[0-9]+\/[0-9]+\] / {
        split(substr($1, 2), n, /[\/\]]/)
        part = int(n[1] * 20 / n[2])
        if (part != last) { print "   " n[1] " of " n[2]; fflush() }
        last = part
    }'
}

if [ -z "$source" ]; then
    say "Fetching the source of Qt ..."
    (fetch_source) || fail "The source package of Qt could not be fetched."
    source=$work/source
fi

# What the program has no use for stays out. What a Linux system would bring comes from Qt's own source.
unused=(network sql dbus opengl dynamicgl vulkan concurrent xml printsupport androiddeployqt tabletevent
        style_windowsvista jpeg gif ico
        system_zlib system_png system_freetype system_harfbuzz system_pcre2 system_doubleconversion)
# Nothing in the archive is to remember where it was made.
flags="-ffile-prefix-map=$work=."
options=(-G Ninja -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw.cmake" -DQT_QMAKE_TARGET_MKSPEC=win32-g++
         -DQT_HOST_PATH=/usr
         -DQT_HOST_PATH_CMAKE_DIR="$(pkg-config --variable=libdir Qt6Core)/cmake"
         -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/qt6-windows -DBUILD_SHARED_LIBS=OFF
         -DCMAKE_C_FLAGS="$flags" -DCMAKE_CXX_FLAGS="$flags"
         -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_BENCHMARKS=OFF)
for feature in "${unused[@]}"; do options+=("-DFEATURE_$feature=OFF"); done

log=$work/log
say "Building Qt for Windows; this takes half an hour, and is done once ..."
cmake -S "$source" -B "$work/build" "${options[@]}" >"$log" 2>&1 ||
    { tail -n 40 "$log"; fail "The build of Qt could not be prepared."; }
nice cmake --build "$work/build" 2>&1 | tee "$log" | progress ||
    { grep -B 2 -A 8 -m 3 -E 'error:|FAILED' "$log"; fail "Qt could not be built."; }
DESTDIR=$work/out cmake --install "$work/build" >"$log" 2>&1 ||
    { tail -n 10 "$log"; fail "Qt could not be laid together."; }

# Only what a build against it reads.
cd "$work/out/qt6-windows" || exit 1
rm -rf doc bin modules mkspecs/modules lib/cmake/Qt6BuildInternals lib/cmake/Qt6/qt.toolchain.cmake
find . -name '*.prl' -delete
if ! tar -cJf "$archive.part" -C .. qt6-windows || ! mv "$archive.part" "$archive"; then
    fail "$archive could not be written."
fi
say "Qt for Windows is in $archive."
