#!/usr/bin/python3
"""Checks what the built libraries export, import and promise: those in build, or in another folder.

    tools/check_exports.py [FOLDER]

Needs Debian's packages python3-pefile and python3-pyelftools.
"""

import re
import sys
from pathlib import Path

import pefile
from elftools.elf.elffile import ELFFile
from elftools.elf.relocation import RelocationSection

import entries
import model

BUILD = Path(sys.argv[1]) if len(sys.argv) > 1 else model.ROOT / "build"
DLLS = (BUILD / "windows/bin/Trelvin.dll", BUILD / "windows64/bin/Trelvin64.dll")
SHARED_LIBRARY = BUILD / "native/lib/libtrelvin.so"

LARGEST_DLL = 200 * 1024
MEMORY = {"calloc", "free", "malloc", "memcpy", "memmove", "memset", "strlen"}
ALLOWED_IMPORTS = {
    "KERNEL32.dll": set("""
        CloseHandle CreateFileA DisableThreadLibraryCalls GetFileSize GetFileType GetLastError
        GetTickCount LockFileEx SetHandleInformation SetLastError Sleep UnlockFileEx WriteFile
        """.split()),
    "msvcrt.dll": MEMORY,
}
BIND_NOW = 8  # of DT_FLAGS
INDIRECT_BRANCHES, SHADOW_STACK = 1, 2  # of GNU_PROPERTY_X86_FEATURE_1_AND
ALLOWED_DEPENDENCIES = {"libc.so.6", "libm.so.6"}
OLDEST_C_LIBRARY = (2, 17)  # that the library must load with


# --- Trelvin.dll and Trelvin64.dll ------------------------------------------------------------


def expected_ordinals(module, routines):
    """The plain names have the same ordinals in both; 64-bit calls are not decorated."""
    ordinals = entries.ordinals(routines)
    if module == "Trelvin64.dll":
        return {routine.name: ordinals[routine.name] for routine in routines}
    return ordinals


def export_faults(dll, name_of_file, routines):
    found = {entry.name.decode(): entry for entry in dll.DIRECTORY_ENTRY_EXPORT.symbols}
    expected = expected_ordinals(name_of_file, routines)
    for name in sorted(expected.keys() | found.keys()):
        ordinal = found[name].ordinal if name in found else None
        if ordinal != expected.get(name):
            yield f"{name}: ordinal {ordinal} instead of {expected.get(name)}"
    for routine in routines:
        pair = [found[name].address for name in (routine.name, routine.decorated) if name in found]
        if len(pair) == 2 and pair[0] != pair[1]:
            yield f"{routine.name}: its two names lead to different addresses"
    module = dll.DIRECTORY_ENTRY_EXPORT.name.decode()
    if module != name_of_file:
        yield f"the export directory names {module}"


def import_faults(dll, name_of_file):
    for library in dll.DIRECTORY_ENTRY_IMPORT:
        name = library.dll.decode()
        imported = {function.name.decode() for function in library.imports}
        print(f"{name_of_file} imports from {name}: {' '.join(sorted(imported))}")
        for function in sorted(imported - ALLOWED_IMPORTS.get(name, set())):
            yield f"imports {function} from {name}"


def image_faults(dll, file):
    # 64-bit code has its handlers of exceptions in tables, which nothing on the stack can change.
    flags = ("DYNAMIC_BASE", "NX_COMPAT") + (("NO_SEH",) if file.name == "Trelvin.dll" else ())
    for flag in flags:
        if not getattr(dll.OPTIONAL_HEADER, f"IMAGE_DLLCHARACTERISTICS_{flag}"):
            yield f"{flag} is not set"
    if not hasattr(dll, "DIRECTORY_ENTRY_RESOURCE"):
        yield "no version resource"
    if hasattr(dll, "DIRECTORY_ENTRY_TLS"):
        yield "a directory of thread-local storage"
    size = file.stat().st_size
    print(f"{file.name} has {size} bytes")
    if size > LARGEST_DLL:
        yield f"{size} bytes, more than {LARGEST_DLL}"
    yield from import_faults(dll, file.name)


# --- libtrelvin.so ----------------------------------------------------------------------------


def symbol_faults(library, routines):
    symbols = list(library.get_section_by_name(".dynsym").iter_symbols())
    found = {s.name for s in symbols if s.name and s["st_shndx"] != "SHN_UNDEF"}
    for name in sorted(found ^ {routine.name for routine in routines}):
        yield f"{name}: {'not a routine' if name in found else 'not exported'}"


def dependency_faults(library):
    tags = library.get_section_by_name(".dynamic").iter_tags("DT_NEEDED")
    needed = {tag.needed for tag in tags}
    print(f"libtrelvin.so depends on {' '.join(sorted(needed)) or 'nothing'}")
    for name in sorted(needed - ALLOWED_DEPENDENCIES):
        yield f"depends on {name}"
    symbols = list(library.get_section_by_name(".dynsym").iter_symbols())
    undefined = {s.name for s in symbols if s.name and s["st_shndx"] == "SHN_UNDEF"}
    print(f"libtrelvin.so calls {' '.join(sorted(undefined))}")
    for name in sorted(undefined):
        if name.startswith(("_Z", "__cxa_", "__gxx_", "_Unwind_")) and name != "__cxa_finalize":
            yield f"calls {name} of the C++ run-time"


def version_faults(library):
    """Without the symbols' versions the library would load, and fail, with any C library."""
    required = library.get_section_by_name(".gnu.version_r").iter_versions()
    versions = {version.name for _, file in required for version in file}
    print(f"libtrelvin.so needs {' '.join(sorted(versions))}")
    for version in sorted(versions):
        parts = re.fullmatch(r"GLIBC_(\d+)\.([\d.]+)", version)
        if not parts or tuple(int(n) for n in ".".join(parts.groups()).split(".")) > OLDEST_C_LIBRARY:
            yield f"needs {version}, newer than {'.'.join(map(str, OLDEST_C_LIBRARY))}"


def interposition_faults(library, routines):
    names = set()  # that the loader looks up for the library
    for section in library.iter_sections():
        if isinstance(section, RelocationSection) and section["sh_link"]:
            symbols = library.get_section(section["sh_link"])
            names |= {symbols.get_symbol(r["r_info_sym"]).name for r in section.iter_relocations()}
    for name in sorted(names & {routine.name for routine in routines}):
        yield f"calls its own {name} by name, where a host may come between"


def image_faults_of_shared(library):
    flags = [tag["d_val"] for tag in library.get_section_by_name(".dynamic").iter_tags("DT_FLAGS")]
    segments = {segment["p_type"] for segment in library.iter_segments()}
    if "PT_GNU_RELRO" not in segments or not any(value & BIND_NOW for value in flags):
        yield "no full RELRO"
    if not library.get_section_by_name(".dynsym").get_symbol_by_name("__stack_chk_fail"):
        yield "no stack protector"
    if library["e_machine"] == "EM_X86_64":
        notes = library.get_section_by_name(".note.gnu.property")
        marks = [mark["pr_data"] for note in (notes.iter_notes() if notes else ())
                 for mark in note["n_desc"] if mark["pr_type"] == "GNU_PROPERTY_X86_FEATURE_1_AND"]
        if marks != [INDIRECT_BRANCHES | SHADOW_STACK]:
            yield "not marked for control-flow enforcement"
    # Trelvin.dll, of the same sources, would not run them: it has no start-up code.
    if library.get_section_by_name(".init_array") is not None:
        yield "constructors run when it is loaded"


# ----------------------------------------------------------------------------------------------


def all_faults(routines):
    for file in DLLS:
        dll = pefile.PE(str(file))
        for check in (export_faults(dll, file.name, routines), image_faults(dll, file)):
            yield from (f"{file.name}: {fault}" for fault in check)
    with open(SHARED_LIBRARY, "rb") as file:
        library = ELFFile(file)
        for check in (
            symbol_faults(library, routines),
            dependency_faults(library),
            version_faults(library),
            interposition_faults(library, routines),
            image_faults_of_shared(library),
        ):
            yield from (f"libtrelvin.so: {fault}" for fault in check)


def main():
    routines = model.read().routines
    faults = list(all_faults(routines))
    for fault in faults:
        print(fault, file=sys.stderr)
    print(f"{len(routines)} routines, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
