#!/usr/bin/env bash
# Checks that are more than one command, a function each: checks.sh FUNCTION
set -euo pipefail
cd "$(dirname "$0")/.."

headers_stand_alone() {
  local header
  for header in include/trelvin/*.h; do
    for compiler in gcc clang i686-w64-mingw32-gcc; do
      "$compiler" -x c -std=c11 -Wall -Wextra -Wpedantic -Werror -Iinclude -fsyntax-only "$header"
    done
    for compiler in g++ clang++ i686-w64-mingw32-g++; do
      "$compiler" -x c++ -std=c++17 -Wall -Wextra -Wpedantic -Werror -Wno-pragma-once-outside-header \
        -Iinclude -fsyntax-only "$header"
    done
  done
}

# Both ways of reading are Clang's. It takes the headers as Microsoft's compilers do, without any
# run-time's; the sources through tests/hosts/microsoft_compiler.h.
microsoft_reads() {
  local header language machine library flags
  for machine in i686 x86_64; do
    for header in include/trelvin/*.h; do
      for language in c c++; do
        clang --target=$machine-pc-windows-msvc -ffreestanding -nostdlibinc -Iinclude -Werror \
          -Wno-pragma-once-outside-header -fsyntax-only -x "$language" "$header"
      done
    done
    library=$(dirname "$($machine-w64-mingw32-g++-win32 -print-file-name=libstdc++.a)")/include/c++
    flags=("--target=$machine-w64-mingw32" -msse2 -std=c++17 -fms-extensions -fasm-blocks
      -Wall -Wextra -Werror -nostdinc++ -isystem "$library"
      -isystem "$library/$machine-w64-mingw32")
    clang++ "${flags[@]}" -x c++-header tests/hosts/microsoft_compiler.h -o "build/$machine.pch"
    printf '%s\n' src/*/*.cpp | xargs -n 20 clang++ "${flags[@]}" \
      -include-pch "build/$machine.pch" -fsyntax-only -Isrc -Iinclude
  done
}

python_files() { git ls-files '*.py' ':!bindings/python/trelvin/_routines.py'; }
shell_files() { git ls-files dev .ci/run '*.sh'; }
biome() { build/npm/node_modules/.bin/biome "$@"; } # for JavaScript

formatted() {
  git ls-files '*.h' '*.cpp' '*.c' | xargs clang-format --dry-run -Werror
  python_files | xargs autopep8 --diff --exit-code
  shell_files | xargs shfmt -d
  biome format
}

# What clang-tidy is for C++, for the other languages.
scripts_lint() {
  python_files | xargs flake8
  shell_files | xargs shellcheck
  biome lint --error-on-warnings
}

# Examples and program again, as projects of their own against the installed library. They must print
# what those of the build tree print.
installs() {
  local project version
  rm -rf build/installed build/consumer
  cmake --install build/native --prefix build/installed
  for project in examples apps/section_properties; do
    cmake -G Ninja -S "$project" -B "build/consumer/$project" \
      -DCMAKE_PREFIX_PATH="$PWD/build/installed"
    cmake --build "build/consumer/$project"
  done
  cd build/consumer
  {
    examples/host_c
    apps/section_properties/section_properties rhs 100 200 8
  } >printed
  {
    ../native/bin/host_c
    ../native/bin/section_properties rhs 100 200 8
  } >expected
  diff expected printed
  version=$(sed -n 's/.*TRELVIN_VERSION "\(.*\)"/\1/p' ../../include/trelvin/calling.h)
  PKG_CONFIG_PATH=$(dirname "$(find ../installed -name trelvin.pc)") \
    pkg-config --print-errors --exact-version="$version" trelvin
}

# All routines on bytes of the fuzzer's choice, for a minute.
fuzzed() {
  mkdir -p build/fuzz
  cd build/fuzz
  ../sanitize/bin/fuzz -max_total_time=60 -verbosity=0
}

# Each profile as its help gives it, and a bar that is no number of whole millimetres.
same_output() {
  local native=build/native/bin/section_properties sections="b 200.5 10" platform profile program
  for profile in $("$native" --help \
    | sed -n '1,/^Profiles/d; /^  plates/d; s/^  \([a-z0-9]\{1,\}\) [A-Z].*/\1/p'); do
    sections+=$'\n'$("$native" "$profile" --help | sed -n 's/^example: section_properties //p')
  done
  [ "$(wc -l <<<"$sections")" -gt 10 ]
  for platform in native windows; do
    program=("$native")
    [ $platform = native ] || program=(cmake/wine.sh 32 build/windows/bin/section_properties.exe)
    while read -r -a arguments; do
      "${program[@]}" "${arguments[@]}" --svg "build/$platform.svg"
      "${program[@]}" "${arguments[@]}" --json
      cat "build/$platform.svg"
    done <<<"$sections" >"build/sections-$platform.txt"
  done
  cmp build/sections-native.txt build/sections-windows.txt
}

# Lines of tests among those of all code, generated files left out. A third is the limit.
lines_of() { # FOLDER...
  git ls-files -- "$@" | grep -E '\.(cpp|hpp|h|c|cc|py|f90|F90|pas|cs|sh|cmake|js|mjs|html|css)$' \
    | { xargs grep -L 'Generated from include/trelvin' || true; } | xargs cat | grep -cvE '^\s*$'
}

share_of_tests() {
  local tests code
  tests=$(lines_of tests)
  code=$(lines_of include src examples apps tools cmake bindings benchmarks docs)
  echo "tests: $tests lines, other code: $code, share $((100 * tests / (tests + code))) %"
  [ $((2 * tests)) -le "$code" ]
}

manual() {
  TRELVIN_SETUP=ready ./dev docs
  /usr/bin/python3 tests/manual/manual_test.py
}

packages() {
  TRELVIN_SETUP=ready TRELVIN_MANUAL=built ./dev package
  /usr/bin/python3 tests/packages/packages_test.py
}

"$@"
