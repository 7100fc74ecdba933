#!/usr/bin/env bash
# Builds the Debian package from this tree and checks it with lintian:
#   scripts/package.sh
# The package and its companions (.buildinfo, .changes, -dbgsym) land in
# build-package/ (KEYSTAGE_PACKAGE_DIR); the build runs in a copy of the
# tree there, so the source tree and build/ are left alone. Any lintian error
# or warning fails the script; debian/keystage.lintian-overrides says which
# tags are overridden and why.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

OUT_DIR=${KEYSTAGE_PACKAGE_DIR:-$ROOT/build-package}
ensure_packages
# Packaging tools; not needed by the build or the tests.
ensure_packages debhelper dpkg-dev lintian

version=$(dpkg-parsechangelog -l "$ROOT/debian/changelog" -S Version)
project_version=$(sed -n 's/^project(Keystage VERSION \([^ ]*\) .*/\1/p' "$ROOT/CMakeLists.txt")
if [ "$version" != "$project_version" ]; then
    echo "debian/changelog is at $version but the project at $project_version: add a changelog entry (dch -v $project_version)." >&2
    exit 1
fi

# A clean copy of the sources: no build trees, no git metadata.
rm -rf "$OUT_DIR"
mkdir -p "$OUT_DIR/keystage-$version"
tar -C "$ROOT" --exclude=./.git --exclude='./build' --exclude='./build-*' --exclude=./.cache -cf - . |
    tar -C "$OUT_DIR/keystage-$version" -xf -

# ccache, when installed, makes a second package build quick.
if command -v ccache >/dev/null && [ -z "${CMAKE_CXX_COMPILER_LAUNCHER:-}" ]; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache
fi
export DEB_BUILD_OPTIONS=${DEB_BUILD_OPTIONS:-parallel=$(nproc)}
(cd "$OUT_DIR/keystage-$version" && dpkg-buildpackage -b -us -uc)

arch=$(dpkg-architecture -qDEB_HOST_ARCH)
changes="$OUT_DIR/keystage_${version}_${arch}.changes"
echo "Checking $changes with lintian"
lintian --fail-on error,warning --display-info "$changes"
echo
echo "Built $OUT_DIR/keystage_${version}_${arch}.deb; install it with"
echo "    sudo apt install $OUT_DIR/keystage_${version}_${arch}.deb"
