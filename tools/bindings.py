#!/usr/bin/env python3
"""Bindings for other languages, from the interface headers. Run, it writes those out of date."""

import re

import bindings_basic
import bindings_csharp
import bindings_fortran
import bindings_node
import bindings_pascal
import headers
from bindings_facts import version

LANGUAGES = {
    "bindings/fortran/trelvin.F90": bindings_fortran.text,
    "bindings/pascal/trelvin.pas": bindings_pascal.text,
    "bindings/csharp/Trelvin.cs": bindings_csharp.text,
    "bindings/basic/Trelvin.bas": bindings_basic.text,
    "bindings/node/trelvin.mjs": bindings_node.text,
    "bindings/node/package.json": bindings_node.package,
}


def outputs(families=None):
    """The text of every generated file, by its path."""
    families = families or headers.read_all()
    texts = {path: text(families, version()) for path, text in LANGUAGES.items()}
    return {path: re.sub(r"[ \t]+$", "", text, flags=re.M) for path, text in texts.items()}


def main():
    for path, text in outputs().items():
        file = headers.ROOT / path
        if not file.exists() or file.read_text() != text:
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text)
            print(f"wrote {path}")


if __name__ == "__main__":
    main()
