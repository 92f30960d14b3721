#!/usr/bin/python3
"""Builds the manual into out/manual from the built library in build/native.

    docs/build.py

Generated pages and the programs of the tasks come first, then the figures, then Sphinx, to which
every warning is an error.
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
    subprocess.run([program, folder], check=True, stdout=subprocess.DEVNULL)


def inline_imports(out):
    """Debian's themes import style sheets from a web server's folder of packages."""
    for sheet in out.glob("_static/**/*.css"):
        text = re.sub(r"@import url\(/javascript/([^)]*)\);?",
                      lambda m: Path("/usr/share/javascript", m.group(1)).read_text(),
                      sheet.read_text())
        sheet.write_text(text)


def mend_theme(out):
    """Debian's theme loads a module as a plain script, which no browser runs, and its compiled
    style sheet has lost the dark colours of those whose system asks for them."""
    scripts = out / "_static/scripts"
    text = (scripts / "furo.js").read_text()
    loading = 'import Gumshoe from "./gumshoe-patched.js";'
    (scripts / "furo.js").write_text(
        text.replace(loading, (scripts / "gumshoe-patched.js").read_text()))
    sheet = out / "_static/styles/furo.css"
    text = sheet.read_text()
    dark = re.search(r'^@media not print \{\n(  body\[data-theme="dark"\].*?\} ?\})\n', text,
                     re.M | re.S)
    if dark and "prefers-color-scheme" not in text:
        rules = dark.group(1).replace('[data-theme="dark"]', ':not([data-theme="light"])')
        sheet.write_text(f"{text}\n@media screen and (prefers-color-scheme: dark) {{\n{rules}\n")


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
    mend_theme(out)
    return result


if __name__ == "__main__":
    sys.exit(main())
