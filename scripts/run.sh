#!/usr/bin/env bash
# Builds Keystage (installing what it needs) and starts it. Arguments are
# passed to the program, e.g. scripts/run.sh --runinbk
# Without a keypad on the USB bus the program starts with its virtual keypad,
# so that everything can be tried at once.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
ensure_packages
build
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No graphical session (neither DISPLAY nor WAYLAND_DISPLAY is set)." >&2
    echo "Start Keystage from your desktop, or try it headless: xvfb-run -a scripts/run.sh" >&2
    exit 1
fi

keypad_connected() {
    local vendor
    for vendor in /sys/bus/usb/devices/*/idVendor; do
        [ -r "$vendor" ] && [ "$(cat "$vendor")" = ffff ] && return 0
    done
    return 1
}

arguments=("$@")
if ! keypad_connected && [[ ! " $* " == *" --virtual-keypad "* ]]; then
    echo "No keypad connected: starting with the virtual keypad (--virtual-keypad)."
    arguments+=(--virtual-keypad)
fi
exec "$BUILD_DIR/app/keystage" "${arguments[@]}"
