"""Reads the interface headers: the routines, their arguments and their contracts."""

import re
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
FAMILIES = ["plane", "sections", "properties", "circles", "space", "lists"]

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

DECLARATION = re.compile(r"(?:/\*\*((?:(?!\*/).)*)\*/\s*)?TRELVIN_ROUTINE\s+(\w+)\(([^)]*)\);", re.S)


@dataclass
class Argument:
    name: str
    type: str


@dataclass
class Routine:
    name: str
    family: str
    brief: str
    arguments: list
    contract: dict  # argument name: direction

    @property
    def decorated(self):
        return f"_{self.name}@{4 * len(self.arguments)}"


def read_family(family):
    header = ROOT / "include" / "trelvin" / f"{family}.h"
    if not header.exists():
        return []
    return [_routine(family, *match.groups()) for match in DECLARATION.finditer(header.read_text())]


def read_all():
    """All routines, family by family in the order of their headers."""
    return [routine for family in FAMILIES for routine in read_family(family)]


def _routine(family, comment, name, argument_list):
    lines = [re.sub(r"^\s*\* ?", "", line).rstrip() for line in (comment or "").strip().splitlines()]
    brief = " ".join(lines[: lines.index("")] if "" in lines else lines)
    arguments = []
    for argument in argument_list.replace("\n", " ").split(","):
        kind, argument_name = argument.split()
        arguments.append(Argument(argument_name, kind))
    contract = {}
    for direction, names in re.findall(r"@param\[(\w+)\]\s+([\w,]+)", comment or ""):
        for documented in names.split(","):
            contract[documented] = direction
    return Routine(name, family, brief, arguments, contract)


def faults(routines):
    """What is wrong with the contracts, a line each."""
    for routine in routines:
        if not routine.brief.endswith("."):
            yield f"{routine.name}: no contract, or no sentence in its first paragraph"
        for argument in routine.arguments:
            if argument.type not in TYPES:
                yield f"{routine.name}: {argument.name} has the unknown type {argument.type}"
                continue
            direction = TYPES[argument.type][2]
            stated = routine.contract.get(argument.name, "nothing")
            if stated != direction:
                yield f"{routine.name}: {argument.name} is {direction}, its contract says {stated}"
        for name in routine.contract.keys() - {argument.name for argument in routine.arguments}:
            yield f"{routine.name}: its contract describes {name}, which is no argument"
    declared = [routine.name for routine in routines]
    for name in {name for name in declared if declared.count(name) > 1}:
        yield f"{name}: declared more than once"
    bodies = set()
    for source in sorted((ROOT / "src").rglob("*.cpp")):
        bodies |= set(re.findall(r"^TRELVIN_ROUTINE\s+(\w+)\(", source.read_text(), re.M))
    for name in sorted(bodies ^ set(declared)):
        yield f"{name}: {'a body without a contract' if name in bodies else 'a contract without a body'}"
