#!/bin/sh
# Runs one validator of the packaging files:
#   validate.sh DEBIAN-PACKAGE status|silent|quiet-stderr COMMAND ARGS...
# Fails when the command fails or, for tools that warn but exit 0, with
# "silent" prints anything at all, with "quiet-stderr" anything on stderr
# (its standard output is dropped). Skips (exit 77) when the command is not
# installed; scripts/debian-packages.txt lists its package.
package=$1
mode=$2
shift 2
if ! command -v "$1" >/dev/null 2>&1; then
    echo "SKIP: $1 is not installed (Debian package $package)"
    exit 77
fi
if [ "$mode" = quiet-stderr ]; then
    output=$("$@" 2>&1 >/dev/null)
else
    output=$("$@" 2>&1)
fi
status=$?
[ -n "$output" ] && printf '%s\n' "$output"
if [ $status -ne 0 ] || { [ "$mode" != status ] && [ -n "$output" ]; }; then
    echo "FAIL: $*"
    exit 1
fi
echo "PASS: $*"
