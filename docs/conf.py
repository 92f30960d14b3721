"""Sphinx builds the manual from this folder; docs/build.py calls it."""

import os
import sys
from pathlib import Path

DOCS = Path(__file__).resolve().parent
ROOT = DOCS.parent
sys.path[:0] = [str(DOCS / "manual"), str(ROOT / "tools")]

import model  # noqa: E402
import prepare  # noqa: E402

project = "Trelvin"
release = version = model.read().version
html_title = f"Trelvin {release}"
extensions = ["myst_parser", "sphinx_inline_tabs", "sphinx_copybutton", "extension"]
myst_enable_extensions = ["deflist"]
exclude_patterns = ["routines.md", "designer.md", "manual", "figures", "calls"]
smartquotes = False  # a minus stays a minus
highlight_language = "none"
nitpicky = True

html_theme = "furo"
html_static_path = ["static"]
templates_path = ["templates"]
html_css_files = ["manual.css"]
html_js_files = ["search.js"]
html_copy_source = False
html_show_sphinx = False
html_show_copyright = False
html_show_search_summary = False  # its texts would be fetched, which a browser refuses of a folder

trelvin_figures = str(ROOT / "build/manual/figures")
trelvin_routines, trelvin_tasks = prepare.results()

designer = ROOT / "build/wasm/designer.html"
if designer.exists():
    tags.add("designer")  # noqa: F821  # Sphinx provides it
    html_extra_path = [os.path.relpath(designer, DOCS)]
