"""Builds the wheel with the native library inside.

The library is built from this checkout by CMake, in build/python, unless the environment names one:
TRELVIN_LIBRARY=.../libtrelvin.so. The same sources give the same wheel, byte for byte.
"""

import os
import shutil
import subprocess
import sysconfig
from pathlib import Path

from setuptools import Distribution, setup
from setuptools.command.build_py import build_py
from wheel.bdist_wheel import bdist_wheel

HERE = Path(__file__).resolve().parent
CHECKOUT = HERE.parents[1]
BUILD = CHECKOUT / "build" / "python"

os.environ.setdefault("SOURCE_DATE_EPOCH", "315532800")  # the first date that a wheel can hold
os.umask(0o022)


def library():
    given = os.environ.get("TRELVIN_LIBRARY")
    if given:
        return Path(given)
    native = BUILD / "native"
    options = ["-DTRELVIN_BUILD_TESTS=OFF", "-DTRELVIN_BUILD_EXAMPLES=OFF"]
    options += ["-DCMAKE_BUILD_TYPE=Release", "-DBUILD_SHARED_LIBS=ON"]
    subprocess.run(["cmake", "-S", CHECKOUT, "-B", native, *options], check=True)
    subprocess.run(["cmake", "--build", native, "--target", "trelvin", "--parallel"], check=True)
    return native / "lib" / "libtrelvin.so"


def compile_loop(target):
    compiler = (os.environ.get("CC") or "cc").split()
    options = ["-std=c11", "-O2", "-fPIC", "-shared", "-fvisibility=hidden"]
    source = Path("trelvin", "_loop.c")  # relative: no path of the building machine gets in
    subprocess.run([*compiler, *options, source, "-o", target], check=True, cwd=HERE)


class BuildWithLibrary(build_py):
    def run(self):
        super().run()
        package = Path(self.build_lib).resolve() / "trelvin"
        shutil.copyfile(library(), package / "libtrelvin.so")
        compile_loop(package / "_loop.so")


class WheelOfPlatform(bdist_wheel):
    """For any Python 3: what is native in it knows nothing of Python."""

    def get_tag(self):
        platform = sysconfig.get_platform().replace("-", "_").replace(".", "_")
        return "py3", "none", platform


class NativeDistribution(Distribution):
    def has_ext_modules(self):
        return True


BUILD.mkdir(parents=True, exist_ok=True)
shutil.rmtree(BUILD / "lib", ignore_errors=True)
setup(
    distclass=NativeDistribution,
    cmdclass={"build_py": BuildWithLibrary, "bdist_wheel": WheelOfPlatform},
    options={
        "build": {"build_base": str(BUILD), "build_lib": str(BUILD / "lib")},
        "egg_info": {"egg_base": str(BUILD)},
    },
)
