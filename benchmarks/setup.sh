#!/usr/bin/env bash
# Installs the libraries the benchmarks compare with on Debian 12, and nothing that is there already.
# The benchmarks build without any of them, with fewer columns.
set -euo pipefail

packages=(
  libboost-dev     # Boost.Geometry: areas, centroids, R-tree
  libcgal-dev      # areas, intersections of lines and planes
  libeigen3-dev    # rotations, transformations, intersections
  libgeos-dev      # areas
  libhwy-dev       # vectorised sorting
  libnanoflann-dev # k-d tree
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
log=$(mktemp)
trap 'rm -f "$log"' EXIT
install() {
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends "$@" >"$log" 2>&1
}
# One stale index does not matter if the packages can be had all the same.
"${as_root[@]}" apt-get update -q >"$log" 2>&1 || true
release=$(. /etc/os-release && echo "${VERSION_CODENAME:-stable}")
install "${missing[@]}" ||
  install -t "$release" --allow-downgrades "${missing[@]}" || {
    tail -n 20 "$log" >&2
    echo "setup: apt-get could not install: ${missing[*]}" >&2
    exit 1
  }
echo "setup: done"
