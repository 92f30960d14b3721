#!/usr/bin/python3
"""Puts the page, its style, its scripts and the compiled code into one file.

    build_page.py CODE.wasm PAGE.html
"""
import base64
import gzip
import re
import sys
from pathlib import Path

PAGE = Path(__file__).parent / "page"


def inside(name):
    return (PAGE / name).read_text(encoding="utf-8")


def build(code):
    page = inside("designer.html")
    page = re.sub(r'<link rel="stylesheet" href="(.+?)">',
                  lambda match: f"<style>\n{inside(match[1])}</style>", page)
    page = re.sub(r'<script src="(.+?)"></script>',
                  lambda match: f"<script>\n{inside(match[1])}</script>", page)
    packed = base64.b64encode(gzip.compress(code, 9, mtime=0)).decode("ascii")
    return page.replace("COMPRESSED_CODE", packed)


if __name__ == "__main__":
    Path(sys.argv[2]).write_text(build(Path(sys.argv[1]).read_bytes()), encoding="utf-8")
