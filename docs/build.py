#!/usr/bin/python3
"""Builds the manual into out/manual from the built library in build/native.

    docs/build.py

Generated pages and the programs of the tasks come first, then the figures, where the program that
draws them is built, then Sphinx, to which every warning is an error.
"""

import shutil
import subprocess
import sys
from pathlib import Path

DOCS = Path(__file__).resolve().parent
ROOT = DOCS.parent
sys.path[:0] = [str(DOCS / "manual"), str(ROOT / "tools")]

import prepare  # noqa: E402
import run  # noqa: E402


def draw_figures():
    folder = prepare.BUILD / "figures"
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    program = ROOT / "build/native/bin/figures"
    if program.exists():
        subprocess.run([program, folder], check=True, stdout=subprocess.DEVNULL)


def main():
    prepare.BUILD.mkdir(parents=True, exist_ok=True)
    try:
        prepare.prepare()
    except (run.Failed, prepare.calls.Faulty) as fault:
        print(f"manual: {fault}", file=sys.stderr)
        return 1
    draw_figures()
    out = ROOT / "out/manual"
    shutil.rmtree(out, ignore_errors=True)
    command = ["/usr/bin/python3", "-m", "sphinx", "-E", "-a", "-q", "-W", "--keep-going", "-j", "2",
               "-d", prepare.BUILD / "doctrees", DOCS, out]
    return subprocess.run(list(map(str, command))).returncode


if __name__ == "__main__":
    sys.exit(main())
