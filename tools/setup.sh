#!/usr/bin/env bash
# Installs what building and testing Trelvin needs on Debian 12, and nothing that is there already.
set -euo pipefail

packages=(
  cmake ninja-build g++ clang python3                  # native builds, generated files
  g++-mingw-w64-i686-win32 wine wine32:i386            # the Windows DLL, and running it
  googletest libclang-rt-14-dev clang-format clang-tidy # tests, sanitizers, formatting
  python3-pefile python3-pyelftools pkgconf             # checks of the built and installed libraries
  python3-numpy python3-pip python3-setuptools python3-wheel # the Python package
  wasi-libc libc++-14-dev-wasm32 libc++abi-14-dev-wasm32 libclang-rt-14-dev-wasm32 lld # WebAssembly
  chromium                                              # the page that is made of it
  python3-distributed python3-psutil                    # the study by Dask
  python3-sphinx furo python3-myst-parser python3-sphinx-inline-tabs python3-sphinx-copybutton # manual
  gfortran gfortran-mingw-w64-i686-win32 fp-compiler mono-mcs mono-runtime # hosts in other languages
  nodejs                                                # and in JavaScript; npm below
)

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
command -v npm >/dev/null || missing+=(npm)
[ ${#missing[@]} -gt 0 ] || exit 0

echo "setup: installing ${missing[*]}"
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
trap 'rm -f "$log"' EXIT

# The 32-bit Windows host programs run under a 32-bit Wine.
[[ " $(dpkg --print-foreign-architectures) " == *i386* ]] || "${as_root[@]}" dpkg --add-architecture i386
install() {
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -o DPkg::Lock::Timeout=300 -y -q --no-install-recommends "$@" >"$log" 2>&1
}
# One stale index does not matter if the packages can be had all the same; the installation will tell.
"${as_root[@]}" apt-get update -q >"$log" 2>&1 || { echo "setup: package lists partly out of date:" >&2; grep '^E:' "$log" >&2 || true; }
# Where a 64-bit library is newer or older than its 32-bit twin on offer, the resolver refuses until
# the release is named.
release=$(. /etc/os-release && echo "${VERSION_CODENAME:-stable}")
install "${missing[@]}" ||
  install -t "$release" --allow-downgrades "${missing[@]}" || {
    tail -n 20 "$log" >&2
    echo "setup: apt-get could not install: ${missing[*]}" >&2
    exit 1
  }
echo "setup: done"
