#!/usr/bin/env bash
# Node.js for 32-bit Windows, from npm, into build/node-win32. Nothing is installed; some 30 MB
# are fetched.
set -euo pipefail
cd "$(dirname "$0")/../.."
out=build/node-win32
rm -rf "$out"
mkdir -p "$out"
# Force, since it is not for this machine.
npm install --prefix "$out" --no-package-lock --no-save --no-audit --no-fund --ignore-scripts \
  --force node-win-x86@22.23.2
mv "$out/node_modules/node-win-x86/bin/node.exe" "$out"
rm -r "$out/node_modules"
