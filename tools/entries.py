"""Reads src/entries: the export table, and the bodies behind the interface headers."""

import re

from headers import COMMENT, ROOT, routines_of

TABLE = ROOT / "src" / "entries" / "Trelvin.def"
EXPORT = re.compile(r'^\s*"?([\w@]+)"? = \S+ @(\d+)$', re.M)
BODY = re.compile(r"^TRELVIN_ROUTINE\s+(\w+)\([^)]*\)\s*\{([^\n]*\}$|.*?^\}$)", re.M | re.S)


def committed_ordinals():
    """What the export table says; hosts may bind to these numbers, so they stay for good."""
    text = TABLE.read_text() if TABLE.exists() else ""
    return {name: int(ordinal) for name, ordinal in EXPORT.findall(text)}


def ordinals(routines, committed):
    """Every exported name with its ordinal: those of the table, and the next ones for new names."""
    result = dict(committed)
    names = {name for routine in routines for name in (routine.name, routine.decorated)}
    for name in sorted(names - result.keys(), key=lambda name: name.removeprefix("_").encode()):
        result[name] = max(result.values(), default=0) + 1
    return result


def in_order(routines):
    """Every exported name and its ordinal, as an export table lists them."""
    return sorted(ordinals(routines, committed_ordinals()).items(), key=lambda entry: entry[1])


def export_faults(routines, committed):
    names = {name for routine in routines for name in (routine.name, routine.decorated)}
    for name in sorted(committed.keys() - names):
        yield f"{name}: exported with ordinal {committed[name]}, and no header declares it"


def bodies_of(text):
    """The name and the code of each body, in the order of the file."""
    code = COMMENT.sub(" ", text)
    return [match.groups() for match in BODY.finditer(code)]


def body_faults(families):
    """What is wrong with the entries, a line each."""
    found = {}
    for family in families:
        file = ROOT / "src" / "entries" / f"{family.name}.cpp"
        bodies = bodies_of(file.read_text()) if file.exists() else []
        declared = [routine.name for routine in family.routines]
        here = [name for name, _ in bodies]
        expected = [name for name in declared if name in here]
        if [name for name in here if name in declared] != expected:
            yield f"src/entries/{family.name}.cpp: not in the order of its header"
        for name in here:
            if name not in declared:
                yield f"{name}: a body in src/entries/{family.name}.cpp, declared elsewhere"
        found |= dict(bodies)
        for name, body in bodies:
            if not body.lstrip().startswith(("const Door door;", "Door door;")):
                yield f"{name}: does not start with `const Door door;` or `Door door;`"
    yield from _bodies_in_rooms(families, found)
    for routine in routines_of(families):
        if routine.name in found and routine.retains:
            mentions = re.search(r"\bretained\b", found[routine.name])
            if bool(mentions) == (routine.retains == "nothing."):
                yield f"{routine.name}: retains {routine.retains} Its body tells otherwise"


def _bodies_in_rooms(families, found):
    declared = {routine.name for routine in routines_of(families)}
    in_rooms = set()
    for source in sorted((ROOT / "src").rglob("*.cpp")):
        if source.parent.name != "entries" or source.stem not in {f.name for f in families}:
            in_rooms |= {name for name, _ in bodies_of(source.read_text())}
    for name in sorted(in_rooms):
        yield f"{name}: its body is not in src/entries/FAMILY.cpp"
    for name in sorted(declared - found.keys() - in_rooms):
        yield f"{name}: a contract without a body"
    for name in sorted(in_rooms - declared):
        yield f"{name}: a body without a contract"
