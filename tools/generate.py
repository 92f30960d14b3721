#!/usr/bin/env python3
"""Writes what follows from the interface headers.

    tools/generate.py            write the files that are out of date
    tools/generate.py --check    write nothing; fail when a contract is faulty or a file out of date
"""

import re
import sys

import bindings
import bindings_python
import contracts
import entries
import headers


TABLE_HEAD = ["; Generated from include/trelvin by tools/generate.py."]


def export_table(families):
    """Both names of each routine on one entry, by ordinal."""
    routines = headers.routines_of(families)
    symbols = {name: r.decorated[1:] for r in routines for name in (r.name, r.decorated)}
    lines = TABLE_HEAD + ["LIBRARY Trelvin", "EXPORTS"]
    for name, ordinal in entries.in_order(routines):
        quoted = f'"{name}"' if "@" in name else name
        lines.append(f"  {quoted} = {symbols.get(name, name.removeprefix('_'))} @{ordinal}")
    return "\n".join(lines) + "\n"


def export_table_64(families):
    """The names that 64-bit Windows leaves plain, by the same ordinals."""
    lines = TABLE_HEAD + ["LIBRARY Trelvin64", "EXPORTS"]
    for name, ordinal in entries.in_order(headers.routines_of(families)):
        if "@" not in name:
            lines.append(f"  {name} @{ordinal}")
    return "\n".join(lines) + "\n"


ROUTINES_HEAD = """\
// Generated from include/trelvin by tools/generate.py, in the order of tests/hosts/digest.txt: each
// sequence of calls belongs to its place. An including file defines the macros it wants:
//
// ROUTINE(name, number of arguments, their names)
// SIZE(name, argument, elements)         of an array, from the single Integers: count(argument)
// LEAST(name, argument, value)           that is allowed of an Integer input
// STATUS(name, argument, further, values)   that an Integer output may have, and from `further` on
//                                           all larger ones too, or none
// UNSHARED(name)                         outputs may not share the address of an input
"""
MACROS = [
    "ROUTINE(name, count, names)",
    "SIZE(name, argument, elements)",
    "LEAST(name, argument, value)",
    "STATUS(name, argument, further, ...)",
    "UNSHARED(name)",
]


def routine_list(families):
    lines = [ROUTINES_HEAD.rstrip()]
    for macro in MACROS:
        lines += [f"#ifndef {macro.split('(')[0]}", f"#define {macro}", "#endif"]
    routines = sorted(headers.routines_of(families), key=_place_in_digest())
    for routine in routines:
        names = " ".join(argument.name for argument in routine.arguments)
        lines.append(f'ROUTINE({routine.name}, {len(routine.arguments)}, "{names}")')
        lines += _facts(routine)
    lines += [f"#undef {macro.split('(')[0]}" for macro in MACROS]
    return "\n".join(lines) + "\n"


def _place_in_digest():
    """A routine's sequence of calls depends on its place: new ones follow the committed ones."""
    digest = headers.ROOT / "tests" / "hosts" / "digest.txt"
    order = [line.split()[0] for line in digest.read_text().splitlines()]
    return lambda routine: order.index(routine.name) if routine.name in order else len(order)


def _facts(routine):
    """What the contract of a routine says in a form that programs read."""
    for i, argument in enumerate(routine.arguments):
        try:
            if argument.is_array:
                size = contracts.size_of(argument.text, routine.counts())
                elements = size.elements[0]
                if size.kind:
                    kind = routine.counts()[size.kind]
                    elements = f"by_kind(kind({kind}), {', '.join(size.elements)})"
                yield f"SIZE({routine.name}, {i}, {elements})"
            elif contracts.names_values(argument):
                values = contracts.values_of(argument.text)
                named = ", ".join(str(value) for value in values.named)
                further = "none" if values.further is None else values.further
                yield f"STATUS({routine.name}, {i}, {further}, {named})"
            elif argument.is_integer and contracts.least_of(argument.text) is not None:
                yield f"LEAST({routine.name}, {i}, {contracts.least_of(argument.text)})"
        except contracts.Unreadable:
            pass  # headers.inexact tells of it
    if "may not share" in routine.text:
        yield f"UNSHARED({routine.name})"


def index(families):
    count = len(headers.routines_of(families))
    lines = [
        "# Routines",
        "",
        "<!-- Generated from include/trelvin by tools/generate.py. -->",
        "",
        f"The {count} routines by family, in the order of the headers, where each has its",
        "contract. Every routine takes the address of each argument and returns nothing.",
    ]
    for family in families:
        lines += ["", f"## {family.title}", "", f"[{family.header}](../{family.header})", ""]
        lines += ["| Routine | Arguments | |", "|---|---|---|"]
        for routine in family.routines:
            arguments = " ".join(argument.name for argument in routine.arguments)
            lines.append(f"| `{routine.name}` | {arguments} | {routine.brief} |")
    return "\n".join(lines) + "\n"


def readme(_families):
    """The README, with the example hosts as they stand in their files."""

    def block(match):
        file = match.group(2)
        language = file.rsplit(".", 1)[1]
        return f"{match.group(1)}\n```{language}\n{(headers.ROOT / file).read_text()}```\n"

    text = (headers.ROOT / "README.md").read_text()
    return re.sub(r"(<!-- file: (\S+) -->)\n(?:```.*?```\n)?", block, text, flags=re.S)


OUTPUTS = {
    "README.md": readme,
    "src/entries/Trelvin.def": export_table,
    "src/entries/Trelvin64.def": export_table_64,
    "tests/routines.inc": routine_list,
    "docs/routines.md": index,
}


def outdated(families, check):
    """Writes the files that are out of date; only tells of them when checking."""
    texts = {path: write(families) for path, write in OUTPUTS.items()}
    texts |= bindings.outputs(families) | bindings_python.outputs(families)
    for path, text in texts.items():
        file = headers.ROOT / path
        if file.exists() and file.read_text() == text:
            continue
        if check:
            yield f"{path} is out of date: run tools/generate.py"
        else:
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text)
            print(f"wrote {path}")


def main():
    check = sys.argv[1:] == ["--check"]
    families = headers.read_all()
    routines = headers.routines_of(families)
    faults = [
        *headers.faults(families),
        *headers.inexact(families),
        *entries.export_faults(routines, entries.committed_ordinals()),
        *entries.body_faults(families),
    ]
    faults = faults or list(outdated(families, check))  # from contracts that are sound
    for fault in faults:
        print(f"generate: {fault}", file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
