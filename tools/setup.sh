#!/usr/bin/env bash
# Installs what building and testing Trelvin needs on Debian 12, and nothing that is there already.
# --demo: only what ./dev demo needs. Further packages are arguments.
set -euo pipefail
cd "$(dirname "$0")/.."

packages=(
  cmake ninja-build g++ python3 googletest             # native builds, generated files, tests
  g++-mingw-w64-i686-win32 wine wine32:i386            # the Windows DLL, and running it
)
demo=no
[ "${1:-}" != --demo ] || { demo=yes && shift; }
[ $demo = yes ] || packages+=(
  clang libclang-rt-14-dev clang-format clang-tidy      # sanitizers, formatting
  python3-pefile python3-pyelftools pkgconf             # checks of the built and installed libraries
  dpkg-dev file                                         # the packages' dependencies
  python3-numpy python3-pip python3-setuptools python3-wheel # the Python package
  wasi-libc libc++-14-dev-wasm32 libc++abi-14-dev-wasm32 libclang-rt-14-dev-wasm32 lld # WebAssembly
  chromium                                              # the page that is made of it
  python3-distributed python3-psutil                    # the study by Dask
  python3-sphinx furo python3-myst-parser python3-sphinx-inline-tabs python3-sphinx-copybutton # manual
  gfortran gfortran-mingw-w64-i686-win32 fp-compiler mono-mcs mono-runtime # hosts in other languages
  nodejs                                                # and in JavaScript; npm below
  g++-mingw-w64-x86-64-win32 g++-aarch64-linux-gnu qemu-user-static # other machines
  llvm                                                  # the library for Microsoft's linker
)
packages+=("$@")
wine64=build/wine64-packages # where 64-bit Wine is unpacked if it can not be installed

installed() {
  [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
  echo "setup: this script installs Debian packages; on another system provide the equivalents of:" >&2
  echo "setup:   ${packages[*]}" >&2
  exit 1
fi

missing=()
for package in "${packages[@]}"; do
  installed "$package" || missing+=("$package")
done
# Other suppliers' nodejs brings its own npm, and Debian's package conflicts with it.
[ $demo = yes ] || command -v npm >/dev/null || missing+=(npm)
missing64=()
[ $demo = yes ] || [ -d "$wine64" ] || installed wine64 || missing64=(wine64)
[ $((${#missing[@]} + ${#missing64[@]})) -gt 0 ] || exit 0

echo "setup: installing, which takes some minutes: ${missing[*]}${missing64[*]:+ wine64}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "setup: run as root, or install sudo; missing: ${missing[*]}" >&2
    exit 1
  fi
  as_root=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
log=$(mktemp)
pins=$(mktemp)
trap 'rm -f "$log" "$pins"' EXIT

# The 32-bit Windows host programs run under a 32-bit Wine.
[[ " $(dpkg --print-foreign-architectures) " == *i386* ]] || "${as_root[@]}" dpkg --add-architecture i386
install() {
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -o DPkg::Lock::Timeout=300 -y -q --no-install-recommends "$@" >"$log" 2>&1
}
# A 64-bit Wine runs from any folder, also where it and the 32-bit one are refused together.
unpack_wine64() {
  local folder
  folder=$(mktemp -d)
  (cd "$folder" && apt-get download -q wine64 libwine:amd64 libz-mingw-w64 >"$log" 2>&1) || return
  for package in "$folder"/*.deb; do dpkg -x "$package" "$folder/root"; done
  cp "$folder/root/usr/x86_64-w64-mingw32/lib/zlib1.dll" \
    "$folder/root/usr/lib/x86_64-linux-gnu/wine/x86_64-windows"  # as its installation does
  mkdir -p build
  mv "$folder/root" "$wine64"
  rm -r "$folder"
}
# One stale index does not matter if the packages can be had all the same; the installation will tell.
"${as_root[@]}" apt-get update -q >"$log" 2>&1 || { echo "setup: package lists partly out of date:" >&2; grep '^E:' "$log" >&2 || true; }
# Where a 64-bit library is newer or older than its 32-bit twin on offer, the resolver refuses until
# the release is named.
release=$(. /etc/os-release && echo "${VERSION_CODENAME:-stable}")
install_all() { [ $# -eq 0 ] || install "$@" || install -t "$release" --allow-downgrades "$@"; }
# Where the newer 32-bit twin can not be had at all, the 64-bit library goes back to the release too.
install_from_release() {
  printf 'Package: *\nPin: release n=%s\nPin-Priority: 1001\n' "$release" >"$pins"
  install -o "Dir::Etc::Preferences=$pins" --allow-downgrades "$@" || return
  echo "setup: taken back to their versions in $release, for want of newer 32-bit twins:"
  sed -n '/will be DOWNGRADED:$/,/^[^ T]/s/^  //p' "$log"
}
install_all "${missing[@]}" || install_from_release "${missing[@]}" || {
  tail -n 20 "$log" >&2
  echo "setup: apt-get could not install: ${missing[*]}" >&2
  exit 1
}
install_all ${missing64[@]:+--no-remove wine64} || unpack_wine64 || {
  tail -n 20 "$log" >&2
  echo "setup: apt-get could neither install nor download wine64" >&2
  exit 1
}
echo "setup: done"
