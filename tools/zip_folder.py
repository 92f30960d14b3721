#!/usr/bin/env python3
"""Packs a folder into FOLDER.zip, to the same bytes for the same contents.

Dates are that of SOURCE_DATE_EPOCH; nothing tells who packed, or in which order files were made.
"""

import os
import sys
import time
import zipfile
from pathlib import Path


def main():
    folder = Path(sys.argv[1])
    date = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))[:6]
    with zipfile.ZipFile(f"{folder}.zip", "w") as archive:
        for file in sorted(path for path in folder.rglob("*") if path.is_file()):
            entry = zipfile.ZipInfo(file.relative_to(folder.parent).as_posix(), date)
            entry.external_attr = 0o100644 << 16
            archive.writestr(entry, file.read_bytes(), zipfile.ZIP_DEFLATED)


if __name__ == "__main__":
    main()
