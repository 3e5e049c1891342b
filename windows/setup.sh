# shellcheck shell=bash
# Sourced by windows/build, windows/test and windows/package: makes the parts that the
# Windows build needs and that take long to make. Each is made once and kept outside the
# checkout.
: "${root:?the folder of the project, set by the script that sources this}"
# shellcheck source=../cmake/setup.sh
source "$root/cmake/setup.sh"

export PLIX_WINDOWS_CACHE=${PLIX_WINDOWS_CACHE:-$HOME/.cache/plix-windows}
readonly TARGET=i686-w64-mingw32
readonly PLIX_WINDOWS_PACKAGES=(
    g++ g++-mingw-w64-i686-posix make cmake ninja-build perl
    ca-certificates dpkg-dev debootstrap googletest xz-utils
    fonts-dejavu-core fonts-dejavu-extra fonts-noto-cjk fonts-noto-color-emoji)

# make_part NAME RECIPE: calls the function RECIPE in a scratch folder, which it
# fills. The folder is moved to its place when it is complete, so an interrupted
# run is not mistaken for a finished one. The part contains the text of its recipe.
# When the recipe changes, the part is made again.
make_part() {
    local recipe=$2 place=$PLIX_WINDOWS_CACHE/$1
    local scratch=$place.part log=$place.log start=$SECONDS status
    if [[ -e $place/made-by && $(<"$place/made-by") == "$(declare -f "$recipe")" ]]; then
        return 0
    fi
    say "Making $1 in $PLIX_WINDOWS_CACHE"
    rm -rf "$scratch"
    mkdir -p "$scratch"
    # Not in a condition: set -e would be off inside the recipe.
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

# The Debian archives that this machine is configured to use, as lines of
# "URI SUITE COMPONENT".
debian_archives() {
    local VERSION_CODENAME
    # shellcheck source=/dev/null
    source /etc/os-release
    apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' |
        sort -u | grep -E " $VERSION_CODENAME(-updates|-security)? "
}

# fetch_source PACKAGE FOLDER: fetches Debian's patched source of the package and checks
# its signatures. Uses package lists of its own; those of the machine do not change.
fetch_source() {
    local sources=$PWD/sources.list lists=$PWD/apt-lists
    debian_archives | sed 's/^/deb-src /' >"$sources"
    mkdir -p "$lists/partial" source.part
    local apt=(apt-get -q -o Dir::Etc::SourceList="$sources" -o Dir::Etc::SourceParts=/dev/null
        -o Dir::State::Lists="$lists" -o APT::Sandbox::User=root)
    "${apt[@]}" update
    (cd source.part && "${apt[@]}" source --only-source "$1")
    mv source.part/*/ "$2"
    # Kept to tell which version was built.
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

# The run-time DLLs of the compiler. The host and the library must use the same ones,
# because they exchange strings and lists of the standard library.
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

# A 32-bit root file system with Wine. Adding the i386 architecture to the running
# system would fail if the versions of a package differ between architectures. Mono and
# Gecko are not needed. The Wine prefix is made here because that takes a while.
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
    # Temporary folders are on the drive of this file system, so that their paths mean the
    # same in programs of both systems.
    in_wine root wine reg add "HKCU\\Environment" /f /v TEMP /d "Z:\\tmp"
    in_wine root wine reg add "HKCU\\Environment" /f /v TMP /d "Z:\\tmp"
    in_wine root wineserver --wait
    in_wine root apt-get clean
    unmount_from_wine root
    rm -rf root/var/lib/apt/lists/*
}

# mount_into_wine ROOT [FOLDER...]: mounts what a process in ROOT needs, and the folders
# at the same paths as outside.
mount_into_wine() {
    local wine_root=$1 folder
    shift
    # Expanded now, because the variable does not exist any more at the exit.
    # shellcheck disable=SC2064
    trap "unmount_from_wine '$wine_root'" EXIT
    mount -t proc proc "$wine_root/proc"
    mount --bind /dev "$wine_root/dev"
    for folder in "$@"; do
        mkdir -p "$wine_root$folder"
        mount --bind "$folder" "$wine_root$folder"
    done
}

# unmount_from_wine ROOT: ends Wine and unmounts everything below ROOT,
# the latest first.
unmount_from_wine() {
    local place
    end_wine_services "$1"
    awk -v root="$(realpath "$1")/" 'index($2, root) == 1 { print $2 }' /proc/mounts | tac |
        while read -r place; do umount "$place"; done
}

# end_wine_services ROOT: ends the processes of Wine. Those that were started without a
# display would not use one.
end_wine_services() {
    in_wine "$1" wineserver --kill || true
    in_wine "$1" wineserver --wait || true
}

# in_wine ROOT COMMAND...: runs the command in ROOT, with the environment variables that
# it needs and none of the others.
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

# build_windows [TARGET...]: the targets, or else the libraries, the tool and the tests, in
# build/windows.
build_windows() {
    local target=("${@:-all}")
    install_packages "${PLIX_WINDOWS_PACKAGES[@]}"
    make_part qt make_qt
    make_part jsoncpp make_jsoncpp
    make_part googletest make_googletest
    make_part runtime make_runtime
    make_part fonts make_fonts
    [[ -e $root/build/cache ]] || install_npm
    # Always configures, because the path of the cache may have changed.
    (
        cd "$root"
        cmake --preset windows
        cmake --build --preset windows --target "${target[@]}"
    ) >&2
}

# start_wine [FOLDER...]: mounts the folders into the Wine root, at the same paths as
# outside, until this script ends. A waiting shell keeps the services of Wine running, so
# that each program starts fast.
start_wine() {
    local wine_root=$PLIX_WINDOWS_CACHE/wine/root
    make_part wine make_wine
    exec {wine_lock}>"$PLIX_WINDOWS_CACHE/wine.lock"
    flock -n "$wine_lock" || say "Waiting for another run that uses Wine"
    flock "$wine_lock"
    unmount_from_wine "$wine_root"
    mount_into_wine "$wine_root" "$@"
    coproc WINE_SHELL { in_wine "$wine_root" wine cmd 2>/dev/null; }
    # Everything runs when the shell prints its first line.
    read -r -t 60 _ <&"${WINE_SHELL[0]}" || say "Wine does not answer"
}
