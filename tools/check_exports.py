#!/usr/bin/env python3
"""Checks what the built libraries export, import and promise.

    tools/check_exports.py [--moving]

Needs the Python packages pefile and pyelftools.
"""

import importlib.util
import os
import sys

import entries
import headers

DEBIAN_PYTHON = "/usr/bin/python3"  # which has Debian's packages where another python3 comes first

if any(importlib.util.find_spec(package) is None for package in ("pefile", "elftools")):
    if os.path.realpath(sys.executable) != os.path.realpath(DEBIAN_PYTHON):
        os.execv(DEBIAN_PYTHON, [DEBIAN_PYTHON, *sys.argv])
    sys.exit("check_exports: apt-get install python3-pefile python3-pyelftools")

import pefile  # noqa: E402
from elftools.elf.elffile import ELFFile  # noqa: E402
from elftools.elf.relocation import RelocationSection  # noqa: E402

DLL = headers.ROOT / "build/windows/bin/Trelvin.dll"
SHARED_LIBRARY = headers.ROOT / "build/native/lib/libtrelvin.so"

LARGEST_DLL = 200 * 1024
MEMORY = {"calloc", "free", "malloc", "memcpy", "memmove", "memset"}
ALLOWED_IMPORTS = {
    "KERNEL32.dll": {
        "CloseHandle",
        "CreateFileA",
        "CreateFileW",
        "DisableThreadLibraryCalls",
        "SetFilePointer",
        "WriteFile",
    },
    "msvcrt.dll": MEMORY | {"_errno"},  # the mathematics library's square root asks for it
}
BIND_NOW = 8  # of DT_FLAGS
ALLOWED_DEPENDENCIES = {"libc.so.6", "libm.so.6"}


# --- Trelvin.dll ------------------------------------------------------------------------------


def export_faults(dll, routines):
    found = {entry.name.decode(): entry for entry in dll.DIRECTORY_ENTRY_EXPORT.symbols}
    expected = entries.ordinals(routines, entries.committed_ordinals())
    for name in sorted(expected.keys() | found.keys()):
        ordinal = found[name].ordinal if name in found else None
        if ordinal != expected.get(name):
            yield f"{name}: ordinal {ordinal} instead of {expected.get(name)}"
    for routine in routines:
        pair = [found[name].address for name in (routine.name, routine.decorated) if name in found]
        if len(pair) == 2 and pair[0] != pair[1]:
            yield f"{routine.name}: its two names lead to different addresses"
    module = dll.DIRECTORY_ENTRY_EXPORT.name.decode()
    if module != "Trelvin.dll":
        yield f"the export directory names {module}"


def import_faults(dll):
    for library in dll.DIRECTORY_ENTRY_IMPORT:
        name = library.dll.decode()
        imported = {function.name.decode() for function in library.imports}
        print(f"Trelvin.dll imports from {name}: {' '.join(sorted(imported))}")
        for function in sorted(imported - ALLOWED_IMPORTS.get(name, set())):
            yield f"imports {function} from {name}"


def image_faults(dll):
    """What holds for the image in any case."""
    for flag in ("DYNAMIC_BASE", "NX_COMPAT"):
        if not getattr(dll.OPTIONAL_HEADER, f"IMAGE_DLLCHARACTERISTICS_{flag}"):
            yield f"{flag} is not set"
    if not hasattr(dll, "DIRECTORY_ENTRY_RESOURCE"):
        yield "no version resource"


def promise_faults(dll):
    size = DLL.stat().st_size
    print(f"Trelvin.dll has {size} bytes")
    if size > LARGEST_DLL:
        yield f"{size} bytes, more than {LARGEST_DLL}"
    if hasattr(dll, "DIRECTORY_ENTRY_TLS"):
        yield "a directory of thread-local storage"
    yield from import_faults(dll)


# --- libtrelvin.so ----------------------------------------------------------------------------


def symbol_faults(library, routines):
    symbols = list(library.get_section_by_name(".dynsym").iter_symbols())
    found = {s.name for s in symbols if s.name and s["st_shndx"] != "SHN_UNDEF"}
    for name in sorted(found ^ {routine.name for routine in routines}):
        yield f"{name}: {'not a routine' if name in found else 'not exported'}"


def shared_promise_faults(library, routines):
    dynamic = library.get_section_by_name(".dynamic")
    needed = {tag.needed for tag in dynamic.iter_tags("DT_NEEDED")}
    print(f"libtrelvin.so depends on {' '.join(sorted(needed))}")
    for name in sorted(needed - ALLOWED_DEPENDENCIES):
        yield f"depends on {name}"
    symbols = list(library.get_section_by_name(".dynsym").iter_symbols())
    undefined = {s.name for s in symbols if s.name and s["st_shndx"] == "SHN_UNDEF"}
    print(f"libtrelvin.so calls {' '.join(sorted(undefined))}")
    for name in sorted(undefined):
        if name.startswith(("_Z", "__cxa_", "__gxx_", "_Unwind_")) and name != "__cxa_finalize":
            yield f"calls {name} of the C++ run-time"
    for name in sorted(_looked_up(library) & {routine.name for routine in routines}):
        yield f"calls its own {name} by name, where a host may come between"
    constructors = library.get_section_by_name(".init_array")
    if constructors is not None and constructors["sh_size"] > 8:  # one is the compiler's own
        yield "constructors run when it is loaded"


def _looked_up(library):
    """The names that the loader looks up for the library."""
    names = set()
    for section in library.iter_sections():
        if isinstance(section, RelocationSection) and section["sh_link"]:
            symbols = library.get_section(section["sh_link"])
            names |= {symbols.get_symbol(r["r_info_sym"]).name for r in section.iter_relocations()}
    return names


def relro_faults(library):
    flags = [tag["d_val"] for tag in library.get_section_by_name(".dynamic").iter_tags("DT_FLAGS")]
    segments = {segment["p_type"] for segment in library.iter_segments()}
    if "PT_GNU_RELRO" not in segments or not any(value & BIND_NOW for value in flags):
        yield "no full RELRO"


# ----------------------------------------------------------------------------------------------


def all_faults(routines):
    """Each fault, and whether it passes while rooms move."""
    dll = pefile.PE(str(DLL))
    for check in (export_faults(dll, routines), image_faults(dll)):
        yield from ((f"Trelvin.dll: {fault}", False) for fault in check)
    yield from ((f"Trelvin.dll: {fault}", True) for fault in promise_faults(dll))
    with open(SHARED_LIBRARY, "rb") as file:
        library = ELFFile(file)
        for check in (symbol_faults(library, routines), relro_faults(library)):
            yield from ((f"libtrelvin.so: {fault}", False) for fault in check)
        promises = shared_promise_faults(library, routines)
        yield from ((f"libtrelvin.so: {fault}", True) for fault in promises)


def main():
    moving = "--moving" in sys.argv[1:]
    routines = headers.routines_of(headers.read_all())
    faults = list(all_faults(routines))
    for fault, passes in faults:
        print(f"{'moving: ' if moving and passes else ''}{fault}", file=sys.stderr)
    tolerated = sum(moving and passes for _, passes in faults)
    names = len(entries.committed_ordinals())
    print(
        f"{len(routines)} routines, {names} names in Trelvin.dll, {len(faults)} faults, "
        f"{tolerated} of them tolerated"
    )
    return 1 if len(faults) > tolerated else 0


if __name__ == "__main__":
    sys.exit(main())
