#!/usr/bin/env python3
"""Checks what the built libraries export and import against the interface headers."""

import re
import subprocess
import sys

import headers

DLL = headers.ROOT / "build/windows/bin/Trelvin.dll"
SHARED_LIBRARY = headers.ROOT / "build/native/lib/libtrelvin.so"
SYSTEM_DLLS = {"KERNEL32.dll", "msvcrt.dll"}


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def expected_ordinals(routines):
    names = [name for routine in routines for name in (routine.name, routine.decorated)]
    ordered = sorted(names, key=lambda name: name.removeprefix("_").encode())
    return {name: ordinal for ordinal, name in enumerate(ordered, start=1)}


def dll_faults(routines):
    dump = run("i686-w64-mingw32-objdump", "-p", str(DLL))
    base = int(re.search(r"Ordinal Base\s+(\d+)", dump).group(1))
    table = dump[dump.index("[Ordinal/Name Pointer] Table") :].split("\n\n")[0]
    found = {name: int(index) + base for index, name in re.findall(r"\[\s*(\d+)\]\s+(\S+)", table)}
    expected = expected_ordinals(routines)
    for name in sorted(expected.keys() | found.keys()):
        if found.get(name) != expected.get(name):
            yield f"{name}: ordinal {found.get(name)} instead of {expected.get(name)}"

    entries = re.findall(r"\[\s*(\d+)\] \+base\[\s*\d+\] (\w+) Export RVA", dump)
    address = {int(index) + base: entry for index, entry in entries}
    for routine in routines:
        pair = [address.get(found.get(name)) for name in (routine.name, routine.decorated)]
        if pair[0] is None or pair[0] != pair[1]:
            yield f"{routine.name}: its two names lead to {pair[0]} and {pair[1]}"

    module = re.search(r"^Name\s+\w+ (\S+)$", dump, re.M).group(1)
    if module != "Trelvin.dll":
        yield f"the export directory names {module}"
    for name in re.findall(r"DLL Name: (\S+)", dump):
        if name not in SYSTEM_DLLS:
            yield f"imports {name}"
    for flag in ("DYNAMIC_BASE", "NX_COMPAT"):
        if flag not in dump:
            yield f"{flag} is not set"
    if ".rsrc" not in run("i686-w64-mingw32-objdump", "-h", str(DLL)):
        yield "no version resource"


def shared_library_faults(routines):
    symbols = run("nm", "-D", "--defined-only", str(SHARED_LIBRARY)).split("\n")
    found = {line.split()[-1] for line in symbols if line}
    for name in sorted(found ^ {routine.name for routine in routines}):
        yield f"{name}: {'not a routine' if name in found else 'not exported'}"


def main():
    routines = headers.read_all()
    faults = [f"Trelvin.dll: {fault}" for fault in dll_faults(routines)]
    faults += [f"libtrelvin.so: {fault}" for fault in shared_library_faults(routines)]
    for fault in faults:
        print(fault, file=sys.stderr)
    names = len(expected_ordinals(routines))
    print(f"{len(routines)} routines, {names} names in Trelvin.dll, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
