# shellcheck shell=bash
# What every command of ./dev shares: installing packages, configuring and building.

root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")

die() {
    echo "dev: $*" >&2
    exit 1
}

# What one checkout has compiled serves the others; headers compiled ahead are known by their contents ("Precompiled
# headers" in the manual of ccache).
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros

# A bare system runs in the C locale, where programs take file names for ASCII.
[[ $(locale charmap 2>/dev/null) == UTF-8 ]] || export LC_ALL=C.UTF-8

# install_packages PURPOSE...: what tools/packages.txt names for these purposes and the system does not have yet.
install_packages() {
    local purpose wanted=() missing=()
    for purpose; do
        read -r -d '' -a names < <(sed -n "s/^$purpose: //p" "$root/tools/packages.txt") || true
        wanted+=("${names[@]}")
    done
    if ! command -v apt-get >/dev/null; then
        echo "dev: no apt-get here; expecting what these Debian packages hold: ${wanted[*]}" >&2
        return
    fi
    mapfile -t missing < <(comm -13 \
        <(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null | sed -n 's/^installed //p' | sort -u) \
        <(printf '%s\n' "${wanted[@]}" | sort -u))
    ((${#missing[@]})) || return 0

    local as_root=()
    if ((EUID != 0)); then
        command -v sudo >/dev/null || die "as root, run: apt-get install --no-install-recommends ${missing[*]}"
        as_root=(sudo)
    fi
    echo "dev: installing ${missing[*]}"
    "${as_root[@]}" apt-get -q -o DPkg::Lock::Timeout=300 update
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -y -o DPkg::Lock::Timeout=300 install --no-install-recommends "${missing[@]}"
}

# configure PRESET [CMAKE-OPTION...]: once; afterwards the build itself sees changed CMake files.
configure() {
    local preset=$1 made=$root/build/$1/build.ninja
    shift
    [[ $made -nt $root/CMakePresets.json && $# -eq 0 ]] || (cd "$root" && cmake --preset "$preset" "$@")
}

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    cmake --build "$root/build/$preset" ${1:+--target "$@"}
}

# All C++ sources, ended by NUL.
find_sources() {
    find "$root"/{bench,resources,src,tests,tools/shots} \( -name '*.cpp' -o -name '*.h' -o -name '*.mm' \) -print0
}
