#!/usr/bin/env python3
"""Writes what follows from the interface headers.

    tools/generate.py            write the files that are out of date
    tools/generate.py --check    write nothing; fail when a contract is faulty or a file out of date
"""

import json
import re
import sys

import bindings_basic
import bindings_csharp
import bindings_fortran
import bindings_node
import bindings_pascal
import bindings_python
import bindings_text
import entries
import model
import rooms

TABLE_HEAD = ["; Generated from include/trelvin by tools/generate.py."]


def export_table(interface):
    """Both names of each routine on one entry, by ordinal."""
    routines = interface.routines
    symbols = {name: r.decorated[1:] for r in routines for name in (r.name, r.decorated)}
    lines = TABLE_HEAD + ["LIBRARY Trelvin", "EXPORTS"]
    for name, ordinal in entries.ordinals(routines).items():
        quoted = f'"{name}"' if "@" in name else name
        lines.append(f"  {quoted} = {symbols[name]} @{ordinal}")
    return "\n".join(lines) + "\n"


def export_table_64(interface):
    """The names that 64-bit Windows leaves plain, by the same ordinals."""
    lines = TABLE_HEAD + ["LIBRARY Trelvin64", "EXPORTS"]
    for name, ordinal in entries.ordinals(interface.routines).items():
        if "@" not in name:
            lines.append(f"  {name} @{ordinal}")
    return "\n".join(lines) + "\n"


ENUMERATORS_HEAD = """\
/**
 * @file
 * The values that belong to one routine each, by name. Shared ones are in values.h.
 *
 * Generated from include/trelvin by tools/generate.py.
 */
#ifndef TRELVIN_NAMES_H
#define TRELVIN_NAMES_H
"""


def enumerators(interface):
    lines = [ENUMERATORS_HEAD.rstrip()]
    for enumeration in interface.enumerations():
        if not enumeration.shared:
            lines += ["", f"/** {bindings_text.comment_of(enumeration)} */"]
            lines += [f"enum {enumeration.name} {{"]
            for value in enumeration.values:
                lines += bindings_text.wrap(f"/** {value.meaning} */", "  ", "   * ")
                lines.append(f"  {enumeration.upper(value)} = {value.number},")
            lines.append("};")
    return "\n".join([*lines, "", "#endif"]) + "\n"


ROUTINES_HEAD = """\
// Generated from include/trelvin by tools/generate.py, in the order of tests/hosts/digest.txt: each
// sequence of calls belongs to its place. An including file defines the macros it wants:
//
// ROUTINE(name, number of arguments, their names)
// SIZE(name, argument, elements)         of an array, from the single Integers: of.count(argument)
// USED(name, argument, used, scratch)    elements that are written, and those that may be besides
// LEAST(name, argument, value)           that is allowed of an Integer input
// STATUS(name, argument, further, values)   that an Integer output may have, and from `further` on
//                                           all larger ones too, or none
// KEPT(name, argument, teller, further, values)   that the argument `teller` has where an output
//                                                 keeps the caller's bytes
// KEPT_BELOW(name, argument, teller, bound)       likewise, where it is below the bound
// KEPT_ON_CONDITION(name, argument)               likewise, by a condition in words
// KEPT_ALWAYS(name, argument)            an output that comes back as it went in
// READ(name, argument)                   an output that is read as well
// RETAINS(name, owner)                   a routine whose retained values decide, this one included
// UNSHARED(name)                         outputs may not share the address of an input
// RETAINS(name)                          values from call to call: one thread at a time may call it
"""
MACROS = [
    "ROUTINE(name, count, names)",
    "SIZE(name, argument, elements)",
    "USED(name, argument, used, scratch)",
    "LEAST(name, argument, value)",
    "STATUS(name, argument, further, ...)",
    "KEPT(name, argument, teller, further, ...)",
    "KEPT_BELOW(name, argument, teller, bound)",
    "KEPT_ON_CONDITION(name, argument)",
    "KEPT_ALWAYS(name, argument)",
    "READ(name, argument)",
    "RETAINS(name, owner)",
    "UNSHARED(name)",
    "RETAINS(name)",
]


def routine_list(interface):
    lines = [ROUTINES_HEAD.rstrip()]
    for macro in MACROS:
        lines += [f"#ifndef {macro.split('(')[0]}", f"#define {macro}", "#endif"]
    for routine in entries.by_age(interface.routines):
        names = " ".join(argument.name for argument in routine.arguments)
        lines.append(f'ROUTINE({routine.name}, {len(routine.arguments)}, "{names}")')
        for i, argument in enumerate(routine.arguments):
            lines += _facts(routine, i, argument)
        lines += [f"RETAINS({routine.name}, {owner})" for _, owner in routine.retains or []]
        lines += [] if routine.shares_addresses else [f"UNSHARED({routine.name})"]
    lines += [f"#undef {macro.split('(')[0]}" for macro in MACROS]
    return "\n".join(lines) + "\n"


def golden_lines():
    """Each routine's line of tests/hosts/digest.txt, in its order."""
    digest = (model.ROOT / "tests" / "hosts" / "digest.txt").read_text()
    return dict(line.split() for line in digest.splitlines() if line.startswith("trv"))


def _facts(routine, i, argument):
    """What the contract says of an argument, as macros."""
    size, values, kept = argument.size, argument.values, argument.kept
    place = f"{routine.name}, {i}"
    if size:
        elements = size.cpp(routine.positions)
        kind = f"of.by_kind(of.kind({routine.positions.get(size.kind)}), {', '.join(elements)})"
        yield f"SIZE({place}, {kind if size.kind else elements[0]})"
        if size.used:
            used = [name if name.isdigit() else f"of.count({routine.positions[name]})"
                    for name in (size.used, size.scratch or size.used)]
            yield f"USED({place}, {', '.join(used)})"
    elif values and argument.is_written:
        further = "none" if values.further is None else values.further
        yield f"STATUS({place}, {further}, {', '.join(map(str, values.numbers))})"
    elif argument.always is not None:
        yield f"STATUS({place}, none, {argument.always})"
    elif argument.least is not None:
        yield f"LEAST({place}, {argument.least})"
    if argument.direction == "inout":
        yield f"READ({place})"
    if kept and not kept.name and not kept.condition:
        yield f"KEPT_ALWAYS({place})"
    elif kept and kept.condition:
        yield f"KEPT_ON_CONDITION({place})"
    elif kept and kept.less_than is not None:
        yield f"KEPT_BELOW({place}, {routine.positions[kept.name]}, {kept.less_than})"
    elif kept:
        further = "none" if kept.further is None else kept.further
        teller = routine.positions[kept.name]
        yield f"KEPT({place}, {teller}, {further}, {', '.join(map(str, kept.numbers))})"


def as_json(interface):
    """The model for makers of further bindings; docs/model.md describes it."""
    enumerations = [_object(
        name=e.name, shared=e.shared, comment=bindings_text.comment_of(e),
        values=[{"number": v.number, "name": e.upper(v), "meaning": v.meaning} for v in e.values],
    ) for e in interface.enumerations()]
    ordinals, golden = entries.ordinals(interface.routines), golden_lines()
    routines = [_object(
        name=r.name, decorated=r.decorated, ordinals=[ordinals[r.name], ordinals[r.decorated]],
        family=r.family, group=r.group, text=r.paragraphs, cost=r.cost,
        retains=[{"what": what, "owner": owner} for what, owner in r.retains],
        golden=golden.get(r.name),
    )[:-1] + ', "arguments": [\n  ' + ",\n  ".join(_object(**_facts_of(a)) for a in r.arguments) + "]}"
        for r in interface.routines]
    return (f'{{"version": "{interface.version}",\n"enumerations": [\n' + ",\n".join(enumerations) +
            '],\n"routines": [\n' + ",\n".join(routines) + "]}\n")


def _object(**facts):
    """On one line, what is empty left out."""
    facts = {key: fact for key, fact in facts.items() if fact not in ("", None, [])}
    return json.dumps(facts, ensure_ascii=False)


def _facts_of(argument):
    facts = {"name": argument.name, "direction": argument.direction, "kind": argument.kind,
             "meaning": argument.meaning}
    size, values, kept = argument.size, argument.values, argument.kept
    if size:
        facts["size"] = {"elements": size.sizes} | {
            key: text for key, text in
            (("used", size.used), ("by", size.kind), ("scratch", size.scratch)) if text
        }
    if values:
        facts["enumeration"] = values.enumeration.name
        facts["values"] = [{"number": v.number, "meaning": v.meaning} for v in values.values]
        if values.ranges:
            facts["further"] = {"from": values.further, "meanings": values.ranges}
    for key in ("least", "always"):
        if getattr(argument, key) is not None:
            facts[key] = getattr(argument, key)
    if kept:
        facts["unwritten"] = {"text": kept.text}
        if kept.name and kept.less_than is None:
            facts["unwritten"] |= {"argument": kept.name, "values": list(kept.numbers)}
            if kept.further is not None:
                facts["unwritten"]["from"] = kept.further
        elif kept.name:
            facts["unwritten"] |= {"argument": kept.name, "below": kept.less_than}
    return facts


def index(interface):
    count = len(interface.routines)
    lines = [
        "# Routines",
        "",
        "<!-- Generated from include/trelvin by tools/generate.py. -->",
        "",
        f"The {count} routines by family, in the order of the headers, where each has its",
        "contract. Every routine takes the address of each argument and returns nothing.",
    ]
    for family in interface.families:
        lines += ["", f"## {family.title}", "", f"[{family.header}](../{family.header})", ""]
        lines += ["| Routine | Arguments | |", "|---|---|---|"]
        for routine in family.routines:
            arguments = " ".join(argument.name for argument in routine.arguments)
            lines.append(f"| `{routine.name}` | {arguments} | {routine.brief} |")
    return "\n".join(lines) + "\n"


def readme(_interface):
    """The README, with the example hosts as they stand in their files."""

    def block(match):
        file = match.group(2)
        language = file.rsplit(".", 1)[1]
        return f"{match.group(1)}\n```{language}\n{(model.ROOT / file).read_text()}```\n"

    text = (model.ROOT / "README.md").read_text()
    return re.sub(r"(<!-- file: (\S+) -->)\n(?:```.*?```\n)?", block, text, flags=re.S)


OUTPUTS = {
    "README.md": readme,
    "include/trelvin/names.h": enumerators,
    "src/entries/Trelvin.def": export_table,
    "src/entries/Trelvin64.def": export_table_64,
    "tests/routines.inc": routine_list,
    "docs/routines.md": index,
    "bindings/trelvin.json": as_json,
    "bindings/fortran/trelvin.F90": bindings_fortran.text,
    "bindings/pascal/trelvin.pas": bindings_pascal.text,
    "bindings/csharp/Trelvin.cs": bindings_csharp.text,
    "bindings/basic/Trelvin.bas": bindings_basic.text,
    "bindings/node/trelvin.mjs": bindings_node.text,
    "bindings/node/package.json": bindings_node.package,
}


def outdated(interface, check):
    """Writes the files that are out of date; only tells of them when checking."""
    texts = {path: write(interface) for path, write in OUTPUTS.items()}
    texts |= bindings_python.outputs(interface)
    for path, text in texts.items():
        file = model.ROOT / path
        text = re.sub(r"[ \t]+$", "", text, flags=re.M)
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
    interface = model.read()
    faults = [*interface.faults, *entries.faults(interface), *rooms.faults()]
    faults += [] if interface.faults else outdated(interface, check)
    for fault in faults:
        print(f"generate: {fault}", file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
