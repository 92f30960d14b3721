#!/usr/bin/env bash
# Installs what building and testing Trelvin needs on Debian 12, and nothing that is there already.
#
#     tools/setup.sh [--demo] [--allow-downgrades] [PACKAGE...]
#
# --demo: only what ./dev demo needs. --allow-downgrades: 64-bit libraries may be downgraded to the
# version of their 32-bit counterparts, also outside a container.
set -euo pipefail
cd "$(dirname "$0")/.."

demo=no
may_downgrade=no
packages=(
  # native builds, generated files, tests
  cmake ninja-build g++ python3 googletest
  # the Windows DLL, and running it
  g++-mingw-w64-i686-win32 wine wine32:i386
)
for argument; do
  case $argument in
    --demo) demo=yes ;;
    --allow-downgrades) may_downgrade=yes ;;
    *) packages+=("$argument") ;;
  esac
done
[ $demo = yes ] || packages+=(
  # sanitizers; formatters and linters
  clang libclang-rt-14-dev clang-format clang-tidy python3-autopep8 flake8 shfmt shellcheck
  # checks of the built and installed libraries
  python3-pefile python3-pyelftools pkgconf
  # the packages' dependencies
  dpkg-dev file
  # the Python package
  python3-numpy python3-pip python3-setuptools python3-wheel
  # WebAssembly
  wasi-libc libc++-14-dev-wasm32 libc++abi-14-dev-wasm32 libclang-rt-14-dev-wasm32 lld
  # the page that is made of it
  chromium
  # the study by Dask
  python3-distributed python3-psutil
  # manual
  python3-sphinx furo python3-myst-parser python3-sphinx-inline-tabs python3-sphinx-copybutton
  # hosts in other languages
  gfortran gfortran-mingw-w64-i686-win32 fp-compiler mono-mcs mono-runtime
  # and in JavaScript; npm below
  nodejs
  # other machines
  g++-mingw-w64-x86-64-win32 g++-aarch64-linux-gnu qemu-user-static
  # the library for Microsoft's linker
  llvm
)
wine64=build/wine64-packages # where 64-bit Wine is unpacked if it can not be installed

log=$(mktemp)
pins=$(mktemp)
trap 'rm -f "$log" "$pins"' EXIT

fail() { # MESSAGE
  tail -n 20 "$log" >&2
  echo "setup: $1" >&2
  exit 1
}

# --- Debian's packages ------------------------------------------------------------------------

installed() {
  [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

as_root=()
apt_get() {
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive LC_ALL=C \
    apt-get -o DPkg::Lock::Timeout=300 -y -q --no-install-recommends "$@" >"$log" 2>&1
}

in_container() {
  [ "${CI:-}" = true ] || if command -v systemd-detect-virt >/dev/null; then
    systemd-detect-virt --container --quiet
  else
    [ -e /.dockerenv ] || [ -e /run/.containerenv ]
  fi
}

# apt-get installs a library for 64 and for 32 bits only in the same version. Such libraries, and all
# packages of the same source, are pinned to the version that is available for 32 bits. All other
# packages keep their newest version, security updates included.
pin_twins() {
  apt-cache depends --recurse --no-recommends --no-suggests --no-conflicts --no-breaks \
    --no-replaces --no-enhances wine32:i386 | grep ':i386$' | sort -u \
    | xargs --no-run-if-empty apt-cache --no-all-versions show \
    | awk -v RS= -F '\n' '/\nMulti-Arch: same/ {
      delete field
      for (i = 1; i <= NF; ++i) if (split($i, word, ": ") == 2) field[word[1]] = word[2]
      source = "Source" in field ? field["Source"] : field["Package"]
      sub(/ .*/, "", source)
      if (!known[field["Package"]]++) {
        print "Package: src:" source " " field["Package"]
        print "Pin: version " field["Version"] "\nPin-Priority: 1001\n"
      }
    }' >"$pins"
}

# The packages that a simulation would downgrade.
taken_back() { awk '/^[^ ]/ { on = /DOWNGRADED:$/; next } on' "$log" | xargs -n 1; }

pinned_by=() # options of apt-get, if there were pins to make

is_pinned() { # PACKAGE
  local source
  source=$(dpkg-query -W -f='${source:Package}' "$1" 2>/dev/null) || source=$1
  awk -v package="$1" -v source="src:$source" \
    '$2 == source || $3 == package { found = 1 } END { exit !found }' "$pins"
}

install_with_twins() { # PACKAGE...
  local package
  pinned_by=(-o "Dir::Etc::Preferences=$pins" --no-remove)
  local pinned=("${pinned_by[@]}" --allow-downgrades install "$@")
  echo "setup: the newest 32-bit and 64-bit versions do not match; apt-get would do this instead:"
  pin_twins
  apt_get -s "${pinned[@]}" || fail "apt-get could not install: $*"
  grep -vE '^(Inst|Conf) ' "$log"
  for package in $(taken_back); do
    is_pinned "$package" \
      || fail "nothing was changed: $package would be downgraded, which has no 32-bit counterpart"
  done
  if [ -n "$(taken_back)" ] && [ $may_downgrade = no ] && ! in_container; then
    echo "setup: nothing was changed. If these packages may be downgraded, run" >&2
    echo "setup:   tools/setup.sh${options:+ $options} --allow-downgrades" >&2
    echo "setup: otherwise work in a container, or wait for the 32-bit updates." >&2
    exit 1
  fi
  apt_get "${pinned[@]}" || fail "apt-get could not install: $*"
}

install() { # PACKAGE...
  [ $# -gt 0 ] && ! apt_get install "$@" || return 0
  grep -qE 'unmet dependencies|held broken packages' "$log" || fail "apt-get could not install: $*"
  install_with_twins "$@"
}

# A 64-bit Wine runs from any folder, even if apt-get cannot install it together with the 32-bit one.
unpack_wine64() {
  local folder
  folder=$(mktemp -d)
  (cd "$folder" && apt-get download -q wine64 libwine:amd64 libz-mingw-w64 >"$log" 2>&1) || return
  for package in "$folder"/*.deb; do dpkg -x "$package" "$folder/root"; done
  cp "$folder/root/usr/x86_64-w64-mingw32/lib/zlib1.dll" \
    "$folder/root/usr/lib/x86_64-linux-gnu/wine/x86_64-windows" # as its installation does
  mkdir -p build
  mv "$folder/root" "$wine64"
  rm -r "$folder"
}

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
  echo "setup: this script installs Debian packages; on another system provide the equivalents of:" >&2
  echo "setup:   ${packages[*]}" >&2
  exit 1
fi

options=$*
missing=()
for package in "${packages[@]}"; do
  installed "$package" || missing+=("$package")
done
# Other suppliers' nodejs brings its own npm, and Debian's package conflicts with it.
[ $demo = yes ] || command -v npm >/dev/null || missing+=(npm)
missing64=()
[ $demo = yes ] || [ -d "$wine64" ] || installed wine64 || missing64=(wine64)

if [ $((${#missing[@]} + ${#missing64[@]})) -gt 0 ]; then
  echo "setup: installing, which takes some minutes: ${missing[*]}${missing64[*]:+ wine64}"
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "run as root, or install sudo; missing: ${missing[*]}"
    as_root=(sudo)
  fi
  # The 32-bit Windows host programs run under a 32-bit Wine.
  [[ " $(dpkg --print-foreign-architectures) " == *i386* ]] || "${as_root[@]}" dpkg --add-architecture i386
  # A failed update is not fatal: if packages are really missing, the installation below reports it.
  apt_get update || {
    echo "setup: package lists partly out of date:" >&2
    grep '^E:' "$log" >&2 || true
  }
  install "${missing[@]}"
  [ ${#missing64[@]} -eq 0 ] || apt_get "${pinned_by[@]}" --no-remove install wine64 || unpack_wine64 \
    || fail "apt-get could neither install nor download wine64"
  echo "setup: done"
fi

# --- not packaged by Debian --------------------------------------------------------------------

[ $demo = no ] || exit 0
mkdir -p build
# Packages of Node.js, checked by their hashes. --force, since one is Node.js for another platform.
if ! cmp -s tests/web/package-lock.json build/npm/package-lock.json; then
  echo "setup: fetching packages of Node.js into build/npm"
  rm -rf build/npm build/npm.new
  mkdir build/npm.new
  cp tests/web/package*.json build/npm.new
  npm ci --prefix build/npm.new --force --ignore-scripts --no-audit --no-fund >"$log" 2>&1 \
    || fail "npm could not fetch the packages of tests/web/package-lock.json"
  mv build/npm.new build/npm
fi
if [ ! -e build/free-pascal-win32/units/fpintres.ppu ]; then
  echo "setup: making Free Pascal for 32-bit Windows in build/free-pascal-win32"
  tests/bindings/free_pascal_win32.sh >"$log" 2>&1 || fail "Free Pascal for Windows could not be made"
fi
