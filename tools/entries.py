"""What the libraries export, and the bodies behind the interface headers."""

import re

from model import COMMENT, ROOT

FIRST = 142  # routines of version 1: their names share the first ordinals
DIGEST = ROOT / "tests" / "hosts" / "digest.txt"
BODY = re.compile(r"^TRELVIN_ROUTINE\s+(\w+)\([^)]*\)\s*\{([^\n]*\}$|.*?^\}$)", re.M | re.S)


def _digest():
    """The routines that the digest lists, in its order: later routines stand behind earlier ones."""
    return re.findall(r"^(trv\w+) +\w+$", DIGEST.read_text().split("\ndigest ")[0], re.M)


def by_age(routines):
    """The routines in the order of the digest. New ones, which it does not list yet, come last."""
    order = {name: place for place, name in enumerate(_digest())}
    return sorted(routines, key=lambda routine: order.get(routine.name, len(order)))


def ordinals(routines):
    """Every exported name with its ordinal. Hosts may bind to ordinals, so these stay for good.

    The names of the first routines are sorted by their bytes; the leading underscore of a decorated
    name does not count. The two names of each later routine follow, routine by routine.
    """
    pairs = [(routine.name, routine.decorated) for routine in by_age(routines)]
    names = [name for pair in pairs[:FIRST] for name in pair]
    names.sort(key=lambda name: name.removeprefix("_").encode())
    names += [name for pair in pairs[FIRST:] for name in pair]
    return {name: ordinal for ordinal, name in enumerate(names, start=1)}


def faults(interface):
    """What is wrong with the exports and the entries, a line each."""
    yield from _export_faults(interface.routines)
    yield from _body_faults(interface)


def _export_faults(routines):
    for name in sorted(set(_digest()) - {routine.name for routine in routines}):
        yield f"{name}: in tests/hosts/digest.txt, and no header declares it"


def bodies_of(text):
    """The name and the code of each body, in the order of the file."""
    code = COMMENT.sub(" ", text)
    return [match.groups() for match in BODY.finditer(code)]


def _body_faults(interface):
    found = {}
    for family in interface.families:
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
    yield from _bodies_in_rooms(interface, found)
    for routine in interface.routines:
        if routine.name in found and routine.retains is not None:
            mentions = re.search(r"\bretained\b", found[routine.name])
            if bool(mentions) != bool(routine.retains):
                yield f"{routine.name}: retains {routine.retains_text}. Its body tells otherwise"


def _bodies_in_rooms(interface, found):
    declared = {routine.name for routine in interface.routines}
    in_rooms = set()
    for source in sorted((ROOT / "src").rglob("*.cpp")):
        if source.parent.name != "entries" or source.stem not in {f.name for f in interface.families}:
            in_rooms |= {name for name, _ in bodies_of(source.read_text())}
    for name in sorted(in_rooms):
        yield f"{name}: its body is not in src/entries/FAMILY.cpp"
    for name in sorted(declared - found.keys() - in_rooms):
        yield f"{name}: a contract without a body"
    for name in sorted(in_rooms - declared):
        yield f"{name}: a body without a contract"
