# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2154
# Functions for the scripts beside it. $root is the root of the tree.
. "$root/packaging/linux/setup.sh"

# The order of lists must not depend on who builds.
export LC_ALL=C.UTF-8

host=x86_64-w64-mingw32
build_folder=$root/build-windows
dist_folder=$root/dist/windows

fonts=/usr/share/fonts/truetype/open-sans

# begin_wine <prefix> <home>: makes a Wine of its own with the fonts of the program, for what runs next on $DISPLAY. It runs until
# "wineserver -k"; the process that keeps it up joins $helpers.
begin_wine() {
    export WINEPREFIX=$1 WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=' HOME=$2
    unset HALVANE_PC HALVANE_PC_STATE HALVANE_DISKS QT_FONT_DPI
    quietly "Wine makes no folder of its own." timeout 120 wineboot --init
    # The services of the first start in a new folder block each other; those of a second start work.
    wineserver -k
    wineserver -w
    # The services end with the last program, so this one runs all the time: it waits for a line that never comes.
    mkfifo "$HOME/line"
    wine cmd <>"$HOME/line" >/dev/null 2>&1 &
    helpers+=($!)
    cp "$fonts"/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
    # The screen has no window manager. If Wine expected one, it would wait two seconds for each window.
    quietly "Wine keeps no settings." wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f
}

# choose_product <brand>: sets $data to the data file of the brand, and $dist_folder to where its program is gathered.
choose_product() {
    data=$root/packaging/product/$1.json
    [ -f "$data" ] || fail "There is no brand $1 in packaging/product."
    [ "$1" = velmora ] || dist_folder=$root/dist/windows-$1
}

# value <name>: of the brand's data file
value() {
    jq -er ".$1" "$data"
}

# Lets files that the variables of packaging/windows/sign name be found from any folder. A key may also be one of a token.
resolve_signing() {
    local name
    for name in HALVANE_SIGN_CERTIFICATE HALVANE_SIGN_KEY HALVANE_SIGN_MODULE HALVANE_SIGN_PASSWORD; do
        [ ! -f "${!name:-}" ] || export "$name=$(readlink -f "${!name}")"
    done
}

# told_by <program> <name>: prints what the resource of a program for Windows says, such as its FileVersion.
told_by() {
    python3 - "$@" <<'CODE'
import re, sys
key = (sys.argv[2] + "\0").encode("utf-16-le")
found = re.search(re.escape(key) + rb"(?:\0\0)?((?:[^\0]\0)+)", open(sys.argv[1], "rb").read())
print(found[1].decode("utf-16-le") if found else "")
CODE
}

# fetch_source <package> <folder>: unpacks Debian's source of a package below the folder and sets $source_tree to its path.
fetch_source() {
    local package=$1 folder=$2 uri release
    local -a apt
    mkdir -p "$folder/lists/partial"
    # The mirror of this machine has sources, too, even if it is not set up for them.
    read -r uri release < <(apt-get indextargets --format '$(REPO_URI) $(CODENAME) $(COMPONENT)' \
        'Created-By: Packages' | awk '$3 == "main" && $2 !~ /-/ { print $1, $2; exit }') ||
        fail "No list of Debian packages is set up."
    printf 'deb-src %s %s main\n' "$uri" "$release" >"$folder/sources.list"
    apt=(-o Dir::Etc::sourcelist="$folder/sources.list" -o Dir::Etc::sourceparts=-
        -o Dir::State::lists="$folder/lists" -o Dir::Cache::srcpkgcache= -o Dir::Cache::pkgcache=
        -o APT::Sandbox::User=root)
    quietly "The list of source packages could not be read." apt-get "${apt[@]}" update
    (cd "$folder" && quietly "The source of $package could not be fetched." apt-get "${apt[@]}" source "$package") ||
        exit 1
    source_tree=$(find "$folder" -mindepth 1 -maxdepth 1 -type d -name "*-*" -newer "$folder/sources.list" | head -n 1)
    [ -d "$source_tree" ] || fail "The source of $package did not unpack."
}

# Sets $qt_folder to the Qt for Windows: the one unpacked last time, else the archive beside the tree, else one made now.
provide_qt() {
    local ready
    qt_folder=$build_folder/qt
    [ ! -f "$qt_folder/lib/cmake/Qt5Charts/Qt5ChartsConfig.cmake" ] || return 0
    for ready in "$root"/../shared/windows-sdk/qt-5.15*-mingw64.tar.xz; do
        [ -f "$ready" ] || continue
        rm -rf "$qt_folder" "$qt_folder.part"
        mkdir -p "$qt_folder.part"
        quietly "$ready could not be unpacked." tar -xJf "$ready" -C "$qt_folder.part" --strip-components=1
        mv "$qt_folder.part" "$qt_folder"
        return 0
    done
    "$root/packaging/windows/build-sdk" "$qt_folder"
}

# Prints the version of the program.
product_version() {
    sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' "$root/CMakeLists.txt"
}

# Prints the time of the commit: what is built for a release has no other time in it. An unpacked source has it in its files.
source_date() {
    printf '%s\n' "${SOURCE_DATE_EPOCH:-$(git -C "$root" -c safe.directory='*' log -1 --format=%ct 2>/dev/null ||
        stat -c %Y "$root/CMakeLists.txt")}"
}
