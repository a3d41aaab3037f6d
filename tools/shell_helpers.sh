# shellcheck shell=bash
# shellcheck disable=SC2034 # the lists are for whoever sources this
# What ./play and ./test have in common: plain words, packages, and the build folder.
# Sourced with the project's folder as the current directory.

# What the program needs to be built and run; the libraries it runs with come along.
play_packages=(cmake ninja-build g++ pkg-config qt6-base-dev libgl-dev qt6-wayland
               libcanberra-dev libcanberra-pulse fonts-liberation)
# What only the tests need.
test_packages=(libgtest-dev libbenchmark-dev clang clang-format clang-tidy libclang-rt-dev
               xvfb openbox xdotool wmctrl x11-utils x11-apps imagemagick
               desktop-file-utils
               python3-gi gir1.2-atspi-2.0 at-spi2-core dbus-daemon weston
               faketime strace i3-wm ratpoison)

# What only the stages checkers and coverage of ./test need.
checker_packages=(valgrind cppcheck gcovr)

say() { printf '%s\n' "$*"; }

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# Those of the named packages that are not installed, one a line. A system without dpkg keeps its own
# books: there the build says what it misses.
missing_packages() {
    command -v dpkg-query >/dev/null || return 0
    local installed package
    # A virtual package (such as a clang of some version) counts when something provides it.
    installed=" $(dpkg-query -W -f='${db:Status-Status} ${Package} ${Provides}\n' 2>/dev/null |
        sed -n 's/^installed //p' | tr ',\n' '  ') "
    for package in "$@"; do
        case $installed in *" $package "*) ;; *) say "$package" ;; esac
    done
}

# Installs what is missing of the named packages, and says so; `installed` then holds their names. With
# nothing missing it costs nothing and needs no network.
ensure_packages() {
    local missing as_root=() log
    installed=
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -eq 0 ] && return
    if ! command -v apt-get >/dev/null; then
        fail "These packages are missing, and there is no apt-get to install them with: ${missing[*]}"
    fi
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            fail "Please have an administrator run: apt-get install ${missing[*]}"
        fi
        as_root=(sudo)
        if [ ! -t 0 ] && ! sudo -n true 2>/dev/null; then
            fail "Please run this first: sudo apt-get install ${missing[*]}"
        fi
    fi
    say "Installing ${missing[*]} ..."
    mkdir -p build
    log=build/install.log
    if ! "${as_root[@]}" apt-get update >"$log" 2>&1; then
        say "The list of packages could not be refreshed; going on with the one at hand."
    fi
    if ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "${missing[@]}" >>"$log" 2>&1; then
        grep -E '^(E|W):' "$log" >&2
        fail "The packages could not be installed. All that apt-get said is in $log."
    fi
    installed=${missing[*]}
}

# Whether the first version is at least the second.
version_at_least() {
    [ "$(printf '%s\n%s\n' "$2" "$1" | sort -V | head -n 1)" = "$2" ]
}

# The newest systems that are too old have these packages, but not in the version needed.
check_versions() {
    local found
    found=$(cmake --version 2>/dev/null | sed -n '1s/[^0-9]*//p')
    version_at_least "${found:-0}" 3.25 ||
        fail "CMake 3.25 or newer is needed (this is ${found:-no version}): Debian 12 or Ubuntu 24.04 have it."
    found=$(pkg-config --modversion Qt6Widgets 2>/dev/null)
    [ -z "$found" ] || version_at_least "$found" 6.4 ||
        fail "Qt 6.4 or newer is needed (this is $found): Debian 12 or Ubuntu 24.04 have it."
}

# configure FOLDER ARGUMENTS-OF-CMAKE...: prepares a build. A folder that was prepared at another place,
# such as one that was moved or copied, is prepared anew; what a player has in it stays.
configure() {
    local folder=$1 fresh=()
    shift
    is_configured "$folder" || fresh=(--fresh)
    mkdir -p build
    cmake "${fresh[@]}" "$@" >build/configure.log 2>&1 || {
        cat build/configure.log >&2
        return 1
    }
}

# Whether a folder was prepared, at this very place.
is_configured() {
    [ -f "$1/build.ninja" ] && grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$1/CMakeCache.txt"
}
