#!/usr/bin/env bash
# Runs a Windows program under Wine of 32 or 64 bits, in a prefix of the project's own, without Wine's
# chatter and without asking for add-ons. Without a program it only makes the prefix.
#
#     wine.sh 32|64 [PROGRAM ARGUMENTS...]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
case $1 in
  32)
    export WINEPREFIX="$root/build/wine" WINEARCH=win32
    loader=wine
    ;;
  64)
    export WINEPREFIX="$root/build/wine64" WINEARCH=win64
    loader=/usr/lib/wine/wine64
    [ -x "$loader" ] || loader=$root/build/wine64-packages$loader # as the set-up unpacks it
    ;;
esac
shift
mkdir -p "$WINEPREFIX"
# The server stays for the next programs, and keeps no pipe of this one open. Fails if one is running.
wineserver -p60 </dev/null >/dev/null 2>&1 || true
if [ $# -gt 0 ]; then exec "$loader" "$@"; fi
"$loader" wineboot --init </dev/null >"$WINEPREFIX.log" 2>&1 || {
  cat "$WINEPREFIX.log" >&2
  exit 1
}
