#!/usr/bin/env bash
# Debian's Free Pascal for 32-bit Linux writes Windows programs once it has the units of that
# system. They are compiled here from Debian's sources, into build/free-pascal-win32. Nothing is
# installed; 22 MB are fetched.
set -euo pipefail
cd "$(dirname "$0")/../.."
out=$PWD/build/free-pascal-win32
rm -rf "$out"
mkdir -p "$out/packages" "$out/units"
cd "$out/packages"
packages=(fp-compiler-3.2.2:i386 fpc-source-3.2.2)
if ! apt-get download -q "${packages[@]}"; then # an old list, or none
  apt-get update -q || true
  apt-get download -q "${packages[@]}"
fi
for package in *.deb; do dpkg -x "$package" .; done
cp usr/lib/i386-linux-gnu/fpc/3.2.2/ppc386 "$out"
cd usr/share/fpcsrc/3.2.2/rtl/win32
compile() {
  "$out/ppc386" -n -Twin32 -v0 -O2 -Sg "-FU$out/units" "-Fu$out/units" -Fi../inc -Fi../i386 \
    -Fi../win -Fi../win/wininc -Fi. -Fi../objpas -Fu../win -Fu../inc -Fu../objpas "$@"
}
compile -Us system.pp
for unit in sysinitpas.pp ../objpas/objpas.pp ../inc/fpintres.pp; do compile "$unit"; done
rm -r "$out/packages"
