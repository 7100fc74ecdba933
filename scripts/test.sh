#!/usr/bin/env bash
# Builds Keystage (installing what it needs) and runs every test.
# Extra arguments go to ctest, e.g. scripts/test.sh -R tst_log
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
ensure_packages
build
# Formatting is part of passing: the same check CI makes.
cmake --build "$BUILD_DIR" --target format-check
cd "$BUILD_DIR"
# No test may wait for input or a display it was not given.
export QT_QPA_PLATFORM=offscreen
exec ctest --output-on-failure --parallel "$(nproc)" --timeout 600 "$@" </dev/null
