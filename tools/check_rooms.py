#!/usr/bin/env python3
"""Checks that every room of src stands on the rooms below it, and that kernels know no host.

    tools/check_rooms.py [--moving]
"""

import re
import sys

from headers import COMMENT, ROOT

FLOORS = [
    ["numeric"],
    ["vectors"],
    ["plane"],
    ["properties", "lists"],
    ["sections"],
    ["space"],
    ["circles"],
    ["entries"],
]
FLOOR = {room: floor for floor, rooms in enumerate(FLOORS) for room in rooms}
HOST = re.compile(r"\bTrv[A-Z]\w*|\bTRELVIN_\w+")


def faults_of(file, text):
    """What is wrong with a file, given as (room, name), and whether it passes while rooms move."""
    room, name = file
    where = f"src/{room}/{name}"
    if room not in FLOOR:
        yield f"{where}: {room} has no floor in tools/check_rooms.py", False
        return
    text = COMMENT.sub(" ", text)
    for included in re.findall(r'^\s*#include "(\w+)/', text, re.M):
        if included == "trelvin":
            if room != "entries":
                yield f"{where}: a kernel includes the interface", True
        elif included not in FLOOR:
            yield f"{where}: includes the unknown room {included}", False
        elif included != room and FLOOR[included] >= FLOOR[room]:
            yield f"{where}: includes {included}, which does not stand below {room}", True
    if room != "entries":
        for word in sorted(set(HOST.findall(text))):
            yield f"{where}: a kernel names {word}", True


def main():
    moving = "--moving" in sys.argv[1:]
    faults = []
    files = [file for file in sorted((ROOT / "src").rglob("*")) if file.suffix in (".h", ".cpp")]
    for file in files:
        faults += faults_of(
            (file.parent.relative_to(ROOT / "src").as_posix(), file.name), file.read_text()
        )
    for fault, passes in faults:
        print(f"{'moving: ' if moving and passes else ''}{fault}", file=sys.stderr)
    failed = [fault for fault, passes in faults if not (moving and passes)]
    print(
        f"{len(files)} files, {len(faults)} faults, {len(faults) - len(failed)} of them tolerated"
    )
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
