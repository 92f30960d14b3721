#!/usr/bin/python3
"""Builds the manual into out/manual from the built library in build/native.

    docs/build.py

Generated pages and the programs of the tasks come first, then the figures, where the program that
draws them is built, then Sphinx, to which every warning is an error.
"""

import re
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


def inline_imports(out):
    """Debian's themes import style sheets from a web server's folder of packages."""
    for sheet in out.glob("_static/**/*.css"):
        text = re.sub(r"@import url\(/javascript/([^)]*)\);?",
                      lambda m: Path("/usr/share/javascript", m.group(1)).read_text(),
                      sheet.read_text())
        sheet.write_text(text)


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
    command = ["/usr/bin/python3", "-m", "sphinx", "-E", "-a", "-q", "-W", "--keep-going",
               "-d", prepare.BUILD / "doctrees", DOCS, out]
    result = subprocess.run(list(map(str, command))).returncode
    inline_imports(out)
    return result


if __name__ == "__main__":
    sys.exit(main())
