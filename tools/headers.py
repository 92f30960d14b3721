"""Reads the interface headers: the routines, their arguments and their contracts."""

import re
from dataclasses import dataclass, field
from pathlib import Path

import contracts

ROOT = Path(__file__).resolve().parent.parent
INTERFACE = ROOT / "include" / "trelvin"

# Argument type: (is it an array, is it an Integer, direction in the contract).
TYPES = {
    "TrvIn": (False, False, "in"),
    "TrvOut": (False, False, "out"),
    "TrvInOut": (False, False, "inout"),
    "TrvIntIn": (False, True, "in"),
    "TrvIntOut": (False, True, "out"),
    "TrvIntInOut": (False, True, "inout"),
    "TrvFunctionIn": (False, False, "in"),
    "TrvArrayIn": (True, False, "in"),
    "TrvArrayOut": (True, False, "out"),
    "TrvArrayInOut": (True, False, "inout"),
    "TrvIntArrayIn": (True, True, "in"),
    "TrvIntArrayOut": (True, True, "out"),
    "TrvIntArrayInOut": (True, True, "inout"),
}

COMMENT = re.compile(r"/\*.*?\*/|//[^\n]*", re.S)
PLACE = re.compile(r"\x00(\d+)\x00")
DECLARATION = re.compile(r"(?:\x00(\d+)\x00\s*)?TRELVIN_ROUTINE\s+(\w+)\s*\(([^)]*)\)\s*;", re.S)


@dataclass
class Argument:
    name: str
    type: str
    direction: str = "nothing"  # as the contract states it
    text: str = ""  # its description

    @property
    def is_array(self):
        return TYPES.get(self.type, (False,))[0]

    @property
    def is_integer(self):
        return TYPES.get(self.type, (False, False))[1]

    @property
    def is_written(self):
        return TYPES.get(self.type, (False, False, "in"))[2] != "in"


@dataclass
class Routine:
    name: str
    family: str
    brief: str
    arguments: list
    retains: str = ""  # what the line `Retains: ...` says
    described: dict = field(default_factory=dict)  # name: (direction, description)
    text: str = ""  # the whole contract, in one line

    @property
    def decorated(self):
        return f"_{self.name}@{4 * len(self.arguments)}"

    def counts(self):
        """Positions of the single Integers that a size may name."""
        arguments = enumerate(self.arguments)
        return {a.name: i for i, a in arguments if a.is_integer and not a.is_array}


@dataclass
class Family:
    name: str
    title: str
    routines: list
    unread: int  # declarations in its header that are not understood

    @property
    def header(self):
        return f"include/trelvin/{self.name}.h"


def read_all():
    """All families, in the order in which trelvin.h includes them; what it omits comes last."""
    order = re.findall(r'#include "trelvin/(\w+)\.h"', (INTERFACE / "trelvin.h").read_text())
    names = sorted(header.stem for header in INTERFACE.glob("*.h"))
    names.sort(key=lambda name: order.index(name) if name in order else len(order))
    families = [read_family(name, (INTERFACE / f"{name}.h").read_text()) for name in names]
    return [family for family in families if family.routines or family.unread]


def routines_of(families):
    return [routine for family in families for routine in family.routines]


def read_family(name, text):
    comments = []

    def keep(match):
        comments.append(match.group())
        return f"\x00{len(comments) - 1}\x00" if match.group().startswith("/**") else " "

    code = COMMENT.sub(keep, text)
    routines = []
    for place, routine, arguments in DECLARATION.findall(code):
        comment = comments[int(place)] if place else ""
        routines.append(_routine(name, comment, routine, PLACE.sub(" ", arguments)))
    title = re.search(r"@file\s*\n\s*\*\s*(\w.*?)\.?\n", text)
    declared = len(re.findall(r"^TRELVIN_ROUTINE\b", code, re.M))
    return Family(name, title.group(1) if title else "", routines, declared - len(routines))


def _routine(family, comment, name, argument_list):
    lines = [re.sub(r"^\s*\*? ?", "", line).rstrip() for line in comment[3:-2].strip().splitlines()]
    brief = " ".join(lines[: lines.index("")] if "" in lines else lines)
    described = {}
    text = "\n".join(lines)
    for direction, names, words in re.findall(
        r"^@param\[(\w+)\]\s+([\w,]+)[ \n]*((?:(?!^@|^$).*\n?)*)", text, re.M
    ):
        for documented in names.split(","):
            described[documented] = (direction, " ".join(words.split()))
    arguments = []
    for argument in argument_list.split(","):
        kind, argument_name = (argument.split() + ["", ""])[:2]
        stated = described.get(argument_name, ("nothing", ""))
        arguments.append(Argument(argument_name, kind, *stated))
    retains = re.search(r"^Retains: ((?:(?!^@|^$).*\n?)*)", text, re.M)
    retains = " ".join(retains.group(1).split()) if retains else ""
    return Routine(name, family, brief, arguments, retains, described, " ".join(text.split()))


def faults(families):
    """What is wrong with the contracts, a line each."""
    for family in families:
        if family.unread:
            yield f"{family.header}: {family.unread} declarations are not understood"
        if not family.title:
            yield f"{family.header}: no title behind its @file"
        if f'"trelvin/{family.name}.h"' not in (INTERFACE / "trelvin.h").read_text():
            yield f"{family.header}: trelvin.h does not include it"
    declared = [routine.name for routine in routines_of(families)]
    for name in sorted({name for name in declared if declared.count(name) > 1}):
        yield f"{name}: declared more than once"
    for routine in routines_of(families):
        for fault in _faults_of(routine):
            yield f"{routine.name}: {fault}"


def _faults_of(routine):
    if not routine.brief.endswith("."):
        yield "no contract, or no sentence in its first paragraph"
    for argument in routine.arguments:
        if argument.type not in TYPES:
            yield f"{argument.name or 'an argument'} has the unknown type {argument.type}"
            continue
        direction = TYPES[argument.type][2]
        if argument.direction != direction:
            yield f"{argument.name} is {direction}, its contract says {argument.direction}"
    for name in routine.described.keys() - {argument.name for argument in routine.arguments}:
        yield f"its contract describes {name}, which is no argument"


def inexact(families):
    """Contracts that a program cannot read: sizes, values of a status, what is retained."""
    for routine in routines_of(families):
        if not routine.retains:
            yield f"{routine.name}: no line `Retains: ...`"
        for argument in routine.arguments:
            try:
                if argument.is_array:
                    contracts.size_of(argument.text, routine.counts())
                elif contracts.names_values(argument):
                    contracts.values_of(argument.text)
            except contracts.Unreadable as problem:
                yield f"{routine.name}: {argument.name}: {problem}"
