#!/usr/bin/env bash
# Builds Keystage (installing what it needs) and starts it. Arguments are
# passed to the program, e.g. scripts/run.sh --runinbk
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
ensure_packages
build
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No graphical session (neither DISPLAY nor WAYLAND_DISPLAY is set)." >&2
    echo "Start Keystage from your desktop, or try it headless: xvfb-run -a scripts/run.sh" >&2
    exit 1
fi
exec "$BUILD_DIR/app/keystage" "$@"
