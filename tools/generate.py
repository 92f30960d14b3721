#!/usr/bin/env python3
"""Writes what follows from the interface headers.

    tools/generate.py            write the files that are out of date
    tools/generate.py --check    write nothing; fail when a contract is faulty or a file out of date
"""

import re
import sys

import headers

TITLES = {
    "plane": "Points, lines and angles",
    "sections": "Steel sections",
    "properties": "Area properties",
    "circles": "Circles and arcs",
    "space": "Space",
    "lists": "Lists",
}


def export_table(routines):
    """Both names of each routine on one entry. Ordinals follow the names, bare of a leading _."""
    entries = []
    for routine in routines:
        symbol = routine.decorated[1:]
        entries.append((routine.name, routine.name, symbol))
        entries.append((symbol, f'"{routine.decorated}"', symbol))
    lines = ["; Generated from include/trelvin by tools/generate.py.", "LIBRARY Trelvin", "EXPORTS"]
    for ordinal, (_, name, symbol) in enumerate(sorted(entries), start=1):
        lines.append(f"  {name} = {symbol} @{ordinal}")
    return "\n".join(lines) + "\n"


def routine_list(routines):
    lines = [
        "// Generated from include/trelvin by tools/generate.py:",
        "// ROUTINE(name, number of arguments, their names) for each routine.",
    ]
    for routine in routines:
        names = " ".join(argument.name for argument in routine.arguments)
        lines.append(f'ROUTINE({routine.name}, {len(routine.arguments)}, "{names}")')
    return "\n".join(lines) + "\n"


def index(routines):
    lines = [
        "# Routines",
        "",
        "<!-- Generated from include/trelvin by tools/generate.py. -->",
        "",
        f"The {len(routines)} routines by family, in the order of the headers, where each has its",
        "contract. Every routine takes the address of each argument and returns nothing.",
    ]
    for family in headers.FAMILIES:
        members = [routine for routine in routines if routine.family == family]
        if not members:
            continue
        lines += ["", f"## {TITLES[family]}", ""]
        lines += [f"[include/trelvin/{family}.h](../include/trelvin/{family}.h)", ""]
        lines += ["| Routine | Arguments | |", "|---|---|---|"]
        for routine in members:
            arguments = " ".join(argument.name for argument in routine.arguments)
            lines.append(f"| `{routine.name}` | {arguments} | {routine.brief} |")
    return "\n".join(lines) + "\n"


def readme(_routines):
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
    "tests/routines.inc": routine_list,
    "docs/routines.md": index,
}


def main():
    check = sys.argv[1:] == ["--check"]
    routines = headers.read_all()
    faults = list(headers.faults(routines))
    for path, write in OUTPUTS.items():
        file = headers.ROOT / path
        text = write(routines)
        if file.exists() and file.read_text() == text:
            continue
        if check:
            faults.append(f"{path} is out of date: run tools/generate.py")
        else:
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text)
            print(f"wrote {path}")
    for fault in faults:
        print(f"generate: {fault}", file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
