#!/usr/bin/env bash
# Memory of the tray agent: starts the built program on a private Xvfb server
# (with openbox and a stand-in system tray, build/bench/trayhost) with the
# simulated keypad, in the background as at login ("--runinbk"), and reads
# /proc/PID/smaps_rollup after a while. Twice: never showing the editor, and
# after the editor has been shown once and closed to the tray.
#   bench/memory.sh [build/app/keystage] [seconds, default 60]
# Goal: Rss <= 40 MB and Private_Dirty <= 12 MB in the tray.
set -euo pipefail

here=$(cd "$(dirname "$0")" && pwd)
program=$(realpath "${1:-$here/../build/app/keystage}")
seconds=${2:-60}
[ -x "$program" ] || { echo "memory.sh: no program at $program (build the keystage target)" >&2; exit 2; }
command -v xdotool >/dev/null || { echo "memory.sh: needs xdotool" >&2; exit 2; }
trayhost=$(dirname "$program")/../bench/trayhost
[ -x "$trayhost" ] || { echo "memory.sh: no tray at $trayhost (build the trayhost target)" >&2; exit 2; }

if [ -z "${KEYSTAGE_MEMORY_INNER:-}" ]; then
    export KEYSTAGE_MEMORY_INNER=1
    # With a window manager: without one a minimised window stays on screen.
    exec "$here/../scripts/with-xvfb.sh" --wm -- "$0" "$program" "$seconds"
fi

workdir=$(mktemp -d)
agent=""
"$trayhost" &
tray=$!
cleanup() {
    [ -n "$agent" ] && kill "$agent" 2>/dev/null && wait "$agent" 2>/dev/null || true
    kill "$tray" 2>/dev/null || true
    rm -rf "$workdir"
}
trap cleanup EXIT

# A copy under a name of its own: the single-instance rule counts processes
# by program name, and other copies of keystage may run on this machine.
cp "$program" "$workdir/keystage-membench"
# Written back before it runs: pages of a fresh copy still waiting for the
# disk count as dirty in smaps.
sync "$workdir/keystage-membench"

kib() { awk -v key="$1:" '$1 == key { print $2 }' "/proc/$2/smaps_rollup"; }

# run <label> <show editor: 0/1>
run() {
    local label=$1 showEditor=$2 home
    home=$(mktemp -d "$workdir/home.XXXX")
    mkdir -p "$home/config" "$home/data" "$home/cache" "$home/tmp" "$home/runtime"
    chmod 700 "$home/runtime"
    local env=(HOME="$home" XDG_CONFIG_HOME="$home/config" XDG_DATA_HOME="$home/data" XDG_CACHE_HOME="$home/cache"
               XDG_RUNTIME_DIR="$home/runtime" TMPDIR="$home/tmp" QT_QPA_PLATFORM=xcb)
    env "${env[@]}" "$workdir/keystage-membench" --runinbk --virtual-keypad >"$home/out.log" 2>&1 &
    agent=$!
    # The on-screen keypad's window shows once start-up is done.
    xdotool search --sync --onlyvisible --limit 1 --pid "$agent" >/dev/null
    if [ "$showEditor" = 1 ]; then
        sleep 2
        # A second start brings the editor to the front (and quits itself).
        env "${env[@]}" "$workdir/keystage-membench" >>"$home/out.log" 2>&1 || true
        local window
        window=$(xdotool search --sync --onlyvisible --limit 1 --pid "$agent" --name "^Keystage$")
        sleep 3
        # Closed as a user closes it (the window manager's Alt+F4): to the tray.
        xdotool windowactivate --sync "$window" key alt+F4 2>/dev/null
        local tries=0
        while xdotool search --onlyvisible --pid "$agent" --name "^Keystage$" >/dev/null; do
            tries=$((tries + 1))
            [ "$tries" -lt 50 ] || { echo "memory.sh: the editor did not go to the tray" >&2; exit 1; }
            sleep 0.2
        done
    fi
    sleep "$seconds"
    kill -0 "$agent" 2>/dev/null || { echo "memory.sh: the program ended early:" >&2; cat "$home/out.log" >&2; exit 1; }
    printf '%-28s Rss %6.1f MB   Private_Dirty %6.1f MB   (Pss %6.1f MB)\n' "$label" \
        "$(echo "$(kib Rss "$agent") / 1024" | bc -l)" "$(echo "$(kib Private_Dirty "$agent") / 1024" | bc -l)" \
        "$(echo "$(kib Pss "$agent") / 1024" | bc -l)"
    if [ -n "${KEYSTAGE_MEMORY_MAPS:-}" ]; then
        # The biggest resident mappings, for finding out what holds memory.
        awk '/^[0-9a-f]+-[0-9a-f]+ / { name = $6 } /^Rss:/ { rss[name] += $2 } END { for (n in rss) print rss[n], n }' \
            "/proc/$agent/smaps" | sort -rn | head -n 25
    fi
    kill "$agent"
    wait "$agent" 2>/dev/null || true
    agent=""
}

echo "keystage in the background after ${seconds} s, simulated keypad, Xvfb $DISPLAY"
run "never shown" 0
run "editor shown once" 1
