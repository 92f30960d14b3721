#!/usr/bin/env python3
"""Reads all C++ sources with clang-tidy, many at once, so that it sees the headers they share once.

    tidy.py [PART PARTS]     all, or one of so many parts
    tidy.py FILE...

Sources that clash in one unit (two of them have an unnamed namespace with the same name in it) are read
in smaller units.
"""

import json
import re
import shlex
import subprocess
import sys
import zlib
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
UNITS = ROOT / "build/tidy"
KEPT = re.compile(r"-(I|D|std=|m|fno-(exceptions|rtti))")
OTHERWISE = ("-Iinclude", "-Itests", "-Isrc", "-Iapps/section_properties", "-std=c++17")
# These need Windows' own headers, GCC's numbers of 113 bits, and the libraries of ./dev bench.
LEFT_OUT = re.compile(r"library_entry|tests/accuracy|benchmarks/peers/")
LARGEST = 60_000  # bytes of a unit
# The analyzer takes most of the time. It follows all paths in library and programs, fewer in other code,
# and none in unit tests, which run under sanitizers.
SHALLOW = [f"--extra-arg={word}" for word in ("-Xclang", "-analyzer-config", "-Xclang", "mode=shallow")]


def flags():
    """The options that matter for reading a file, by file; the sanitizers' build has Clang's."""
    found = {}
    for preset in ("native", "sanitize"):
        for entry in json.loads((ROOT / "build" / preset / "compile_commands.json").read_text()):
            words = shlex.split(entry["command"])
            systems = [f"-isystem{words[i + 1]}" for i, w in enumerate(words) if w == "-isystem"]
            kept = [w for w in words if KEPT.match(w) and "_EXPORTS" not in w]
            found[entry["file"]] = (*kept, *systems)
    return found


def units(files, flags_of):
    """Files of the same options together, as long as they are not too many."""
    for options in sorted({flags_of[file] for file in files}):
        unit, size = [], 0
        for file in (file for file in files if flags_of[file] == options):
            if unit and size + Path(file).stat().st_size > LARGEST:
                yield unit, options
                unit, size = [], 0
            unit.append(file)
            size += Path(file).stat().st_size
        yield unit, options


def read(unit, options):
    # The analyzer follows sources that another one includes if that one has this name.
    source = UNITS / f"UnifiedSource-{zlib.crc32(repr(unit).encode())}.cpp"
    source.write_text("".join(f'#include "{file}"\n' for file in unit))
    parsed = ["clang++", "-fsyntax-only", "-w", *options, source]
    if len(unit) > 1 and subprocess.run(parsed, cwd=ROOT, stderr=subprocess.DEVNULL).returncode:
        half = len(unit) // 2
        return all([read(part, options) for part in (unit[:half], unit[half:])])
    checks, how = "-bugprone-suspicious-include", []
    if unit[0].endswith("_test.cpp"):
        checks += ",-clang-analyzer-*"
    elif not re.search("/(src|apps)/", unit[0]):
        how = SHALLOW
    checked = ["clang-tidy", "--quiet", f"--config-file={ROOT}/.clang-tidy", "--warnings-as-errors=*",
               f"--checks={checks}", *how, source, "--", *options]
    return subprocess.run(checked, cwd=ROOT).returncode == 0


def main(arguments):
    UNITS.mkdir(parents=True, exist_ok=True)
    listed = subprocess.check_output(["git", "ls-files", "*.cpp"], cwd=ROOT, text=True).split()
    files = [str(ROOT / file) for file in listed if not LEFT_OUT.search(file)]
    part, parts = 0, 1
    if arguments and arguments[0].isdigit():
        part, parts = int(arguments[0]) - 1, int(arguments[1])
    elif arguments:
        files = [str(Path(file).resolve()) for file in arguments]
    known = flags()
    flags_of = {file: known.get(file, OTHERWISE) for file in files}
    todo = list(units(files, flags_of))[part::parts]
    return all([read(*unit) for unit in todo])


if __name__ == "__main__":
    sys.exit(0 if main(sys.argv[1:]) else 1)
