#!/usr/bin/python3
"""Libraries with every fault that tools/check_exports.py tells of, built and checked."""

import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

CHECK = Path(__file__).resolve().parents[2] / "tools" / "check_exports.py"
SOURCE = """
struct Started { Started(); } first, second;
Started::Started() { static int count = 0; if (++count > 2) throw count; }
extern "C" {
void trvpds() {}
void trvextra() { trvpds(); }
#ifdef _WIN32
__declspec(dllimport) int __stdcall MessageBeep(unsigned);
char large[300000] = {1};
void other() { MessageBeep(0); }
#endif
}
"""
TABLE = """EXPORTS
  trvpds @2
  "_trvpds@28" = other @162
  trvextra @400
"""
TOLD = """
Trelvin.dll: trvpds: ordinal 2 instead of 161
Trelvin.dll: trvpre: ordinal None instead of 213
Trelvin.dll: trvextra: ordinal 400 instead of None
Trelvin.dll: trvpds: its two names lead to different addresses
Trelvin.dll: the export directory names Other.dll
Trelvin.dll: DYNAMIC_BASE is not set
Trelvin.dll: NX_COMPAT is not set
Trelvin.dll: no version resource
Trelvin.dll: a directory of thread-local storage
Trelvin.dll: imports MessageBeep from USER32.dll
Trelvin64.dll: _trvpds@28: ordinal 162 instead of None
libtrelvin.so: trvextra: not a routine
libtrelvin.so: trvpre: not exported
libtrelvin.so: depends on libstdc++.so.6
libtrelvin.so: calls __cxa_throw of the C++ run-time
libtrelvin.so: calls its own trvpds by name, where a host may come between
libtrelvin.so: no full RELRO
libtrelvin.so: constructors run when it is loaded
"""


class Check(unittest.TestCase):
    def test_every_fault_is_told(self):
        with tempfile.TemporaryDirectory() as folder:
            source, table, shared, other, *dlls = (Path(folder, name) for name in (
                "a.cpp", "a.def", "native/lib/libtrelvin.so", "Other.dll",
                "windows/bin/Trelvin.dll", "windows64/bin/Trelvin64.dll"))
            for file in (shared, *dlls):
                file.parent.mkdir(parents=True)
            source.write_text(SOURCE)
            table.write_text(TABLE)
            for command in (
                ["g++", "-fPIC", "-Wl,-z,norelro", source, "-o", shared],
                ["i686-w64-mingw32-g++-win32", "-static", "-s", source, table, "-o", other,
                 "-Wl,--disable-dynamicbase,--disable-nxcompat"],
            ):
                subprocess.run([*command, "-shared"], check=True)
            for dll in dlls:
                shutil.copy(other, dll)
            done = subprocess.run([CHECK, folder], capture_output=True, text=True, check=False)
        told = done.stderr.splitlines()
        self.assertEqual(set(TOLD.strip().splitlines()) - set(told), set(), done.stderr[-2000:])
        self.assertRegex(done.stderr, r"Trelvin.dll: \d+ bytes, more than 204800")
        self.assertEqual(done.returncode, 1)


if __name__ == "__main__":
    unittest.main()
