"""Holds src to its floors: every room includes rooms of lower floors only, and kernels know no host."""

import re

from model import COMMENT, ROOT

FLOORS = [
    ["numeric"],
    ["trace", "vectors"],
    ["plane"],
    ["circles", "lists", "properties", "sections", "space"],
    ["entries"],
]
FLOOR = {room: floor for floor, rooms in enumerate(FLOORS) for room in rooms}
HOST = re.compile(r"\bTrv[A-Z]\w*|\bTRELVIN_\w+")


def faults():
    """What is wrong in src, a line each."""
    for file in sorted((ROOT / "src").rglob("*")):
        if file.suffix in (".h", ".cpp"):
            room = file.parent.relative_to(ROOT / "src").as_posix()
            yield from _faults_of(room, file.name, file.read_text())


def _faults_of(room, name, text):
    where = f"src/{room}/{name}"
    if room not in FLOOR:
        yield f"{where}: {room} has no floor in tools/rooms.py"
        return
    text = COMMENT.sub(" ", text)
    for included in re.findall(r'^\s*#\s*include "(\w+)/', text, re.M):
        if included == "trelvin":
            if room != "entries":
                yield f"{where}: a kernel includes the interface"
        elif included not in FLOOR:
            yield f"{where}: includes the unknown room {included}"
        elif included != room and FLOOR[included] >= FLOOR[room]:
            yield f"{where}: includes {included}, which is not on a lower floor"
    if room != "entries":
        for word in sorted(set(HOST.findall(text))):
            yield f"{where}: a kernel names {word}"
