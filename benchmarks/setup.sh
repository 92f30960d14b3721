#!/usr/bin/env bash
# Installs what tools/setup.sh does, and the libraries that the benchmarks compare with. The
# benchmarks build without any of those libraries, with fewer columns.
set -euo pipefail

packages=(
  libboost-dev     # Boost.Geometry: areas, centroids, R-tree
  libcgal-dev      # areas, intersections of lines and planes
  libeigen3-dev    # rotations, transformations, intersections
  libgeos-dev      # areas
  libhwy-dev       # vectorised sorting
  libnanoflann-dev # k-d tree
)
exec "$(dirname "$0")/../tools/setup.sh" "$@" "${packages[@]}"
