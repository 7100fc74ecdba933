# Shared by run.sh and test.sh: install missing Debian packages, then
# configure and build incrementally in build/.
set -euo pipefail

ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
BUILD_DIR=${KEYSTAGE_BUILD_DIR:-$ROOT/build}

# Without arguments: every package of scripts/debian-packages.txt.
ensure_packages() {
    local wanted missing=()
    if [ $# -gt 0 ]; then
        wanted="$*"
    else
        wanted=$(grep -v '^[[:space:]]*#' "$ROOT/scripts/debian-packages.txt" | awk 'NF { print $1 }')
    fi
    for package in $wanted; do
        if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
            missing+=("$package")
        fi
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    echo "Installing Debian packages: ${missing[*]}"
    local sudo=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Missing packages and no sudo; as root run: apt-get install ${missing[*]}" >&2
            exit 1
        fi
        sudo=(sudo)
        # Without a terminal (CI) sudo must not wait for a password.
        [ -t 0 ] || sudo+=(-n)
    fi
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# Arguments are extra cmake options for the first configure of $BUILD_DIR.
build() {
    if [ ! -f "$BUILD_DIR/build.ninja" ]; then
        local launcher=()
        # ccache, when installed, makes rebuilds in fresh trees quick; it is optional.
        command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
        cmake -S "$ROOT" -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "${launcher[@]}" "$@"
    fi
    cmake --build "$BUILD_DIR" --parallel "$(nproc)"
}
