# shellcheck shell=bash
# Sourced by ./run and ./test: installs packages on a bare Debian 12 and builds a preset.
# Messages go to stderr, because stdout is for the output of the command itself.
: "${root:?the folder of the project, set by the script that sources this}"

readonly PLIX_PACKAGES=(
    g++ cmake ninja-build ca-certificates
    qtbase5-dev libjsoncpp-dev libgtest-dev pkgconf dpkg-dev file
    fonts-dejavu-core fonts-dejavu-extra fonts-noto-cjk fonts-noto-color-emoji)

# What only the benchmarks need.
# shellcheck disable=SC2034 # used by those who source this
readonly PLIX_BENCH_PACKAGES=(
    libbenchmark-dev qtdeclarative5-dev qml-module-qtquick2 qml-module-qtquick-layouts)

# What the page of all documents is made with.
readonly PLIX_DOCS_PACKAGES=(python3 python3-markdown-it)

say() { printf '%s\n' "$*" >&2; }

# Prints those of the named packages that are not installed.
missing_packages() {
    local package
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
            printf '%s\n' "$package"
    done
}

install_packages() {
    local missing
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0
    say "Installing ${missing[*]}"
    {
        apt-get update -q
        DEBIAN_FRONTEND=noninteractive apt-get install -qy --no-install-recommends "${missing[@]}"
    } >&2
}

# npm fetches Yoga. Debian's npm is installed if there is none.
install_npm() {
    command -v npm >/dev/null || install_packages npm
}

# build_preset PRESET TARGET: configures the preset if needed and builds the target.
build_preset() {
    local preset=$1 target=$2 dir=$root/build/$1
    install_packages "${PLIX_PACKAGES[@]}"
    if [[ ! -e $dir/build.ninja ]]; then
        [[ -e $root/build/cache ]] || install_npm
        say "Configuring $preset"
        (cd "$root" && cmake --preset "$preset") >&2
    fi
    # Prints nothing when there is nothing to do.
    cmake --build "$dir" --target "$target" |
        sed -u -e '/Re-checking globbed/d' -e '/no work to do/d' >&2
}

# make_docs_page OUT.html: all documents as one page. Debian's Python has the packages.
make_docs_page() {
    install_packages "${PLIX_DOCS_PACKAGES[@]}"
    /usr/bin/python3 "$root/docs/page/make_page.py" "$1"
}

# use_fixed_surroundings PRESET: with this environment, pictures and layouts are the same
# on every machine.
use_fixed_surroundings() {
    export QT_QPA_PLATFORM=offscreen
    export FONTCONFIG_FILE=$root/build/$1/fonts.conf
    export LC_ALL=C.UTF-8
}
