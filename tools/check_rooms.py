#!/usr/bin/env python3
"""Checks that every room of src stands on the rooms below it, and that kernels know no host."""

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
    """What is wrong with a file, given as (room, name)."""
    room, name = file
    where = f"src/{room}/{name}"
    if room not in FLOOR:
        yield f"{where}: {room} has no floor in tools/check_rooms.py"
        return
    text = COMMENT.sub(" ", text)
    for included in re.findall(r'^\s*#include "(\w+)/', text, re.M):
        if included == "trelvin":
            if room != "entries":
                yield f"{where}: a kernel includes the interface"
        elif included not in FLOOR:
            yield f"{where}: includes the unknown room {included}"
        elif included != room and FLOOR[included] >= FLOOR[room]:
            yield f"{where}: includes {included}, which does not stand below {room}"
    if room != "entries":
        for word in sorted(set(HOST.findall(text))):
            yield f"{where}: a kernel names {word}"


def main():
    faults = []
    files = [file for file in sorted((ROOT / "src").rglob("*")) if file.suffix in (".h", ".cpp")]
    for file in files:
        room = file.parent.relative_to(ROOT / "src").as_posix()
        faults += faults_of((room, file.name), file.read_text())
    for fault in faults:
        print(fault, file=sys.stderr)
    print(f"{len(files)} files, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
