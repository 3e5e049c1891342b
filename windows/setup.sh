# Sourced by windows/build, windows/test and windows/package: what the Windows
# build needs and takes long to make, each piece made once and kept outside the
# checkout.
# shellcheck shell=bash
: "${root:?the folder of the project, set by the script that sources this}"
# shellcheck source=../cmake/setup.sh
source "$root/cmake/setup.sh"

export PLIX_WINDOWS_CACHE=${PLIX_WINDOWS_CACHE:-$HOME/.cache/plix-windows}
readonly TARGET=i686-w64-mingw32
readonly PLIX_WINDOWS_PACKAGES=(
    g++ g++-mingw-w64-i686-posix make cmake ninja-build perl
    ca-certificates dpkg-dev debootstrap googletest xz-utils
    fonts-dejavu-core fonts-dejavu-extra fonts-noto-cjk fonts-noto-color-emoji)

# make_piece NAME RECIPE: calls the function RECIPE in a scratch folder that it
# fills, and moves that into place last, so that an interrupted run is not
# taken for a finished one. The piece keeps the text of its recipe: when that
# changes, the piece is made anew.
make_piece() {
    local recipe=$2 place=$PLIX_WINDOWS_CACHE/$1
    local scratch=$place.part log=$place.log start=$SECONDS status
    if [[ -e $place/made-by && $(<"$place/made-by") == "$(declare -f "$recipe")" ]]; then
        return 0
    fi
    say "Making $1 in $PLIX_WINDOWS_CACHE"
    rm -rf "$scratch"
    mkdir -p "$scratch"
    # In a condition, set -e would be off inside of the recipe.
    set +e
    (
        set -e
        cd "$scratch"
        "$recipe"
    ) >"$log" 2>&1
    status=$?
    set -e
    if ((status)); then
        tail -n 40 "$log" >&2
        say "Making $1 failed; the whole log is $log"
        return 1
    fi
    declare -f "$recipe" >"$scratch/made-by"
    rm -rf "$place"
    mv "$scratch" "$place"
    say "Made $1 in $((SECONDS - start)) seconds"
}

# The Debian archives that this machine uses, as "URI SUITE COMPONENT" lines,
# in whatever way and from whatever mirror it was told to.
debian_archives() {
    local VERSION_CODENAME
    # shellcheck source=/dev/null
    source /etc/os-release
    apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' |
        sort -u | grep -E " $VERSION_CODENAME(-updates|-security)? "
}

# fetch_source PACKAGE FOLDER: Debian's source of it, patched, with signatures
# checked. The lists are ours: the machine's own stay as they are.
fetch_source() {
    local sources=$PWD/sources.list lists=$PWD/apt-lists
    debian_archives | sed 's/^/deb-src /' >"$sources"
    mkdir -p "$lists/partial" source.part
    local apt=(apt-get -q -o Dir::Etc::SourceList="$sources" -o Dir::Etc::SourceParts=/dev/null
        -o Dir::State::Lists="$lists" -o APT::Sandbox::User=root)
    "${apt[@]}" update
    (cd source.part && "${apt[@]}" source --only-source "$1")
    mv source.part/*/ "$2"
    # Kept for who wants to know what was built.
    cp source.part/*.dsc .
    rm -r source.part "$lists" "$sources"
}

# The parts of Qt that widgets need. The tablet feature wants a header that is
# not in Debian's source.
make_qt() {
    fetch_source qtbase-opensource-src source
    mkdir build
    (
        cd build
        ../source/configure -opensource -confirm-license -release -shared \
            -prefix "$PWD/../qt" -xplatform win32-g++ \
            -device-option CROSS_COMPILE=i686-w64-mingw32- \
            -no-opengl -nomake examples -nomake tests -no-sql-sqlite -no-sql-odbc -no-dbus \
            -no-feature-concurrent -no-feature-xml -no-feature-printer -no-feature-network \
            -no-feature-tabletevent -no-feature-direct2d \
            -qt-zlib -qt-pcre -qt-libpng -qt-libjpeg -qt-freetype -qt-harfbuzz \
            -no-icu -no-openssl
        make -j"$(nproc)"
        make install
    )
    mkdir licences
    cp source/debian/copyright source/LICENSE.* licences
    rm -r build source
}

make_jsoncpp() {
    fetch_source libjsoncpp source
    cmake -G Ninja -S source -B build -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$root/cmake/toolchains/i686-mingw.cmake" \
        -DCMAKE_INSTALL_PREFIX="$PWD" -DBUILD_SHARED_LIBS=OFF -DBUILD_OBJECT_LIBS=OFF \
        -DJSONCPP_WITH_TESTS=OFF -DJSONCPP_WITH_POST_BUILD_UNITTEST=OFF
    cmake --build build --target install
    mkdir licences
    cp source/LICENSE licences
    rm -r build source
}

make_googletest() {
    cmake -G Ninja -S /usr/src/googletest -B build -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$root/cmake/toolchains/i686-mingw.cmake" \
        -DCMAKE_INSTALL_PREFIX="$PWD" -DBUILD_GMOCK=OFF
    cmake --build build --target install
    rm -r build
}

# What a program of this compiler needs to run; the host and the library share
# it, because strings and lists of the standard library go from one to the other.
make_runtime() {
    local library
    mkdir bin licences
    for library in libgcc_s_dw2-1.dll libstdc++-6.dll libwinpthread-1.dll; do
        $TARGET-strip -o "bin/$library" "$($TARGET-g++-posix -print-file-name="$library")"
    done
    cp /usr/share/doc/gcc-mingw-w64-base/copyright licences/gcc-mingw-w64.copyright
    cp /usr/share/doc/mingw-w64-common/copyright licences/mingw-w64.copyright
}

# The files that cmake/fonts.conf.in names.
make_fonts() {
    cp /usr/share/fonts/truetype/dejavu/DejaVuSans{,-Bold,-Oblique,-BoldOblique}.ttf \
        /usr/share/fonts/opentype/noto/NotoSansCJK-{Regular,Bold}.ttc \
        /usr/share/fonts/truetype/noto/NotoColorEmoji.ttf .
}

# A 32-bit root file system with Wine: adding its architecture to the running
# system would fail wherever two versions of one package differ. Mono and Gecko
# are not wanted, and the prefix is made now because that takes a while.
make_wine() {
    local VERSION_CODENAME archive
    # shellcheck source=/dev/null
    source /etc/os-release
    archive=$(debian_archives | awk '$2 !~ /-/ && $3 == "main" { print $1; exit }')
    debootstrap --arch=i386 --variant=minbase "$VERSION_CODENAME" root "$archive"
    mount_into_wine root
    in_wine root env DEBIAN_FRONTEND=noninteractive apt-get install -qy --no-install-recommends \
        wine wine32 xvfb xauth imagemagick fonts-dejavu-core fonts-noto-cjk
    in_wine root wineboot --init
    # Temporary folders on the drive that shows this file system, so that paths
    # like those of the checkout mean the same wherever a program runs.
    in_wine root wine reg add "HKCU\\Environment" /f /v TEMP /d "Z:\\tmp"
    in_wine root wine reg add "HKCU\\Environment" /f /v TMP /d "Z:\\tmp"
    in_wine root wineserver --wait
    in_wine root apt-get clean
    unmount_from_wine root
    rm -rf root/var/lib/apt/lists/*
}

# mount_into_wine ROOT [FOLDER...]: what a process needs to see in there; the
# folders at the same place as outside.
mount_into_wine() {
    local wine_root=$1 folder
    shift
    # Expanded now: at the exit, the variable is gone.
    # shellcheck disable=SC2064
    trap "unmount_from_wine '$wine_root'" EXIT
    mount -t proc proc "$wine_root/proc"
    mount --bind /dev "$wine_root/dev"
    for folder in "$@"; do
        mkdir -p "$wine_root$folder"
        mount --bind "$folder" "$wine_root$folder"
    done
}

# Ends what runs in there, and takes away everything that is mounted below ROOT,
# the latest first.
unmount_from_wine() {
    local place
    in_wine "$1" wineserver --kill || true
    in_wine "$1" wineserver --wait || true
    awk -v root="$(realpath "$1")/" 'index($2, root) == 1 { print $2 }' /proc/mounts | tac |
        while read -r place; do umount "$place"; done
}

# in_wine ROOT COMMAND...: runs it in there, with the variables that it needs
# and none of ours that it should not see.
in_wine() {
    local pass=() name
    for name in PLIX_FONTS WINEPATH DISPLAY; do
        [[ -z ${!name-} ]] || pass+=("$name=${!name}")
    done
    chroot "$1" env -i HOME=/root LC_ALL=C.UTF-8 WINEDEBUG=-all WINEARCH=win32 \
        WINEDLLOVERRIDES='mscoree,mshtml=' \
        PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
        "${pass[@]}" "${@:2}"
}

# The libraries, the tool and the tests, in build/windows.
build_windows() {
    install_packages "${PLIX_WINDOWS_PACKAGES[@]}"
    make_piece qt make_qt
    make_piece jsoncpp make_jsoncpp
    make_piece googletest make_googletest
    make_piece runtime make_runtime
    make_piece fonts make_fonts
    [[ -e $root/build/cache ]] || install_npm
    # Configures always: where the cache is may have changed.
    (cd "$root" && cmake --preset windows && cmake --build --preset windows) >&2
}

# start_wine [FOLDER...]: makes the Wine root see the folders, at the same place
# as outside, until this script ends.
# A shell that waits keeps the services of Wine running, so that each program
# starts fast.
start_wine() {
    local wine_root=$PLIX_WINDOWS_CACHE/wine/root
    make_piece wine make_wine
    exec {wine_lock}>"$PLIX_WINDOWS_CACHE/wine.lock"
    flock -n "$wine_lock" || say "Waiting for another run to be done with Wine"
    flock "$wine_lock"
    unmount_from_wine "$wine_root"
    mount_into_wine "$wine_root" "$@"
    coproc WINE_SHELL { in_wine "$wine_root" wine cmd 2>/dev/null; }
    # Its greeting: by then everything is up.
    read -r -t 60 _ <&"${WINE_SHELL[0]}" || say "Wine does not answer"
}
