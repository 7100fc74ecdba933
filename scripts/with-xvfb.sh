#!/usr/bin/env bash
# Runs a command against a private Xvfb server, optionally with the openbox
# window manager, and tears both down afterwards.
#   with-xvfb.sh [--wm] -- command [args...]
set -euo pipefail

wm=0
while [ $# -gt 0 ]; do
    case "$1" in
        --wm) wm=1; shift ;;
        --) shift; break ;;
        *) break ;;
    esac
done
[ $# -gt 0 ] || { echo "usage: with-xvfb.sh [--wm] -- command [args...]" >&2; exit 2; }

workdir=$(mktemp -d)
pids=()
cleanup() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
    for pid in "${pids[@]}"; do wait "$pid" 2>/dev/null || true; done
    rm -rf "$workdir"
}
trap cleanup EXIT

# -displayfd lets the server pick a free display number and tell us which.
mkfifo "$workdir/displayfd"
Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp -noreset 3>"$workdir/displayfd" >"$workdir/xvfb.log" 2>&1 &
pids+=($!)
if ! read -r -t 60 display <"$workdir/displayfd"; then
    echo "with-xvfb.sh: Xvfb did not start" >&2
    cat "$workdir/xvfb.log" >&2
    exit 1
fi
export DISPLAY=":$display"
unset WAYLAND_DISPLAY

if [ "$wm" = 1 ]; then
    openbox --sm-disable >"$workdir/openbox.log" 2>&1 &
    pids+=($!)
    # Wait until the window manager has claimed the screen.
    for _ in $(seq 1 200); do
        if xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; then break; fi
        sleep 0.05
    done
fi

status=0
"$@" || status=$?
exit $status
