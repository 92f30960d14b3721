"""What `./dev package` wrote into out/, as those use it who have nothing else."""

import os
import shutil
import subprocess
import sys
import tarfile
import tempfile
import unittest
import zipfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
TABLE = (ROOT / "examples" / "girder.txt").read_text()
SOURCE = ROOT / "examples" / "c" / "girder.c"


def package(pattern):
    (file,) = (ROOT / "out").glob(pattern)
    return file


def output(*command, **environment):
    return subprocess.check_output(command, env={**os.environ, **environment}, text=True)


def scratch(test):
    return Path(test.enterContext(tempfile.TemporaryDirectory()))


def build_host(folder, installed, *options):
    """The example as a CMake project of its own."""
    output("cmake", "-G", "Ninja", "-S", ROOT / "tests" / "packages" / "host", "-B", folder,
           f"-DCMAKE_PREFIX_PATH={installed}", *options)
    output("cmake", "--build", folder)


class Debian(unittest.TestCase):
    def setUp(self):
        self.root = scratch(self)
        self.pair = [package("libtrelvin1_*.deb"), package("libtrelvin-dev_*.deb")]

    def unpack(self):
        for file in self.pair:
            output("dpkg", "-x", file, self.root)
        (library,) = self.root.glob("usr/lib/*/libtrelvin.so")
        return library.parent

    def test_projects_outside_build_and_run(self):
        folder = self.unpack()
        build_host(self.root / "cmake", self.root / "usr")
        flags = output("pkg-config", "--cflags", "--libs", "trelvin",
                       PKG_CONFIG_PATH=str(folder / "pkgconfig"))
        output("gcc", SOURCE, *flags.split(), "-lm", "-o", self.root / "girder")
        self.assertEqual(output(self.root / "cmake" / "girder"), TABLE)
        self.assertEqual(output(self.root / "girder", LD_LIBRARY_PATH=str(folder)), TABLE)

    def test_programs_run_with_the_library_alone(self):
        folder = self.unpack()
        output("gcc", SOURCE, f"-I{self.root}/usr/include", f"-L{folder}", "-ltrelvin", "-lm",
               "-o", self.root / "girder")
        shutil.rmtree(self.root / "usr")
        output("dpkg", "-x", self.pair[0], self.root)
        self.assertEqual(output(self.root / "girder", LD_LIBRARY_PATH=str(folder)), TABLE)

    def test_they_can_be_installed_together_only(self):
        try_out = ("apt-get", "--simulate", "install")
        self.assertIn("Inst libtrelvin-dev", output(*try_out, *self.pair))
        with self.assertRaises(subprocess.CalledProcessError):
            subprocess.run([*try_out, self.pair[1]], check=True, capture_output=True)


class Windows(unittest.TestCase):
    def setUp(self):
        self.folder = scratch(self)
        with zipfile.ZipFile(package("trelvin-*-windows.zip")) as archive:
            archive.extractall(self.folder)
        (self.installed,) = self.folder.iterdir()

    def test_hosts_of_both_sizes(self):
        for bits, machine in (("32", "i686"), ("64", "x86_64")):
            build = self.folder / machine
            toolchain = ROOT / "cmake" / f"mingw-{machine}.cmake"
            build_host(build, self.installed, f"-DCMAKE_TOOLCHAIN_FILE={toolchain}")
            shutil.copy(build / "girder.exe", self.installed / "bin")
            printed = output(ROOT / "cmake/wine.sh", bits, self.installed / "bin" / "girder.exe")
            self.assertEqual(printed, TABLE, machine)

    def test_the_program(self):
        program = self.installed / "bin" / "section_properties.exe"
        printed = output(ROOT / "cmake/wine.sh", "32", program, "b", "200", "15")
        self.assertRegex(printed, r"Area +A +3000\.000 mm2")

    def test_what_is_in(self):
        for bits, library in (("", "Trelvin"), ("64", "Trelvin64")):
            dll = (self.installed / "bin" / f"{library}.dll").read_bytes()
            built = ROOT / "build" / f"windows{bits}" / "bin" / f"{library}.dll"
            self.assertEqual(dll, built.read_bytes())
        for name in ("lib/Trelvin.lib", "lib/Trelvin64.lib", "manual/index.html"):
            self.assertTrue((self.installed / name).is_file(), name)
        for language in ("basic", "csharp", "fortran", "node", "pascal"):
            for binding in (ROOT / "bindings" / language).iterdir():
                packed = self.installed / "bindings" / language / binding.name
                self.assertEqual(packed.read_bytes(), binding.read_bytes())


class Python(unittest.TestCase):
    def test_a_host_prints_the_table(self):
        site = scratch(self)
        output(sys.executable, "-m", "pip", "-q", "install", "--no-index", "--no-deps",
               "--root-user-action=ignore", "--target", site, package("trelvin-*.whl"))
        host = ROOT / "examples" / "python" / "girder.py"
        self.assertEqual(output(sys.executable, host, PYTHONPATH=str(site)), TABLE)


class Sources(unittest.TestCase):
    def test_all_that_is_under_version_control(self):
        tracked = output("git", "-C", ROOT, "ls-tree", "-r", "--name-only", "HEAD").split("\n")[:-1]
        with tarfile.open(package("trelvin-*.tar.gz")) as archive:
            files = [entry.name.split("/", 1)[1] for entry in archive if not entry.isdir()]
        self.assertEqual(sorted(files), sorted(tracked))


if __name__ == "__main__":
    unittest.main()
