"""Writes the pages of the reference from the interface headers: Markdown for Sphinx."""

import re

import bindings_facts
import contract_text
import contracts
import headers

DIRECTIONS = {"in": "in", "out": "out", "inout": "in and out"}
FIGURES = {  # of a family, and of a group within one
    "circles": ["arc-stations", "arc-constructions"],
    "Straight lines": ["lines"],
    "Rotations": ["rotations"],
    "Frames and transformations": ["frames"],
    "Parts of a section": ["parts"],
    "Plate buckling": ["stresses"],
}
CAPTIONS = {
    "arc-stations": "Stations of an arc's chord, and the points of the arc above them",
    "arc-constructions": "Constructions on the chord of an arc",
    "lines": "A line with its normal, a parallel, a distance, a bisector",
    "rotations": "The ways in which the rotations turn",
    "frames": "A local frame, and what the shifts and turns do",
    "parts": "The five kinds of part",
    "stresses": "Stresses of a plate and its effective widths (trvef2)",
}


def escaped(text):
    return re.sub(r"([\\`*_{}\[\]<>#|~^$])", r"\\\1", text)


class Writer:
    """Texts with the routines that they name as links."""

    def __init__(self, pages):
        self.pages = pages
        self.page_of = {r.name: page.family.name for page in pages for g in page.groups
                        for r in g.routines}

    @staticmethod
    def link(name):
        return f"[`{name}`]({name})"

    def text(self, text, without=""):
        pieces = re.split(r"\b(trv\w+)\b", text)
        return "".join(self.link(p) if p in self.page_of and p != without else escaped(p)
                       for p in pieces)

    def paragraph(self, paragraph, without=""):
        if isinstance(paragraph, str):
            return [self.text(paragraph, without), ""]
        if paragraph[0].startswith("- "):
            return [*("- " + self.text(item[2:], without) for item in paragraph), ""]
        return ["```text", *(line[2:] for line in paragraph), "```", ""]


def table(columns, rows, classes):
    """A table, or nothing without rows."""
    if not rows:
        return []
    head = ["| " + " | ".join(columns) + " |", "|---" * len(columns) + "|"]
    return ["```{table}", f":class: {classes}", "", *head,
            *("| " + " | ".join(row) + " |" for row in rows), "```", ""]


def signature(routine):
    arguments = [f"{a.type} {a.name}" for a in routine.arguments]
    start = f"void {routine.name}("
    return ["```c", *bindings_facts.wrap_list(arguments, start, "    ", ");", width=82), "```", ""]


def _argument_row(writer, shown, names, argument):
    text, size = argument.text, ""
    if argument.is_array:
        match = contracts.SIZE.match(text)
        sizes, used, kind = match.groups()
        size = f" of {sizes}" + f", {used} used" * bool(used) + f", by {kind}" * bool(kind)
        text = text[match.end() :].strip() or "numbers"
    kind = "Integer" if argument.is_integer else "Real"
    if argument.type == "TrvFunctionIn":
        kind = "function"
    kind = f"{kind} array{escaped(size)}" if argument.is_array else kind
    if contracts.names_values(argument) and any(a is argument for a, _ in shown.statuses):
        text = "see below"
    name = ", ".join(f"`{name}`" for name in names)
    return [name, f"{DIRECTIONS[argument.direction]}, {kind}", writer.text(text, shown.name)]


def _routine(writer, shown):
    routine = shown.routine
    lines = [f"({routine.name})=", f"### `{routine.name}`", ""]
    for i, paragraph in enumerate(shown.paragraphs):
        lines += writer.paragraph(paragraph, routine.name)
        lines += signature(routine) if i == 0 else []
    rows = [_argument_row(writer, shown, *pair) for pair in shown.arguments]
    lines += table(["Argument", "Kind", "Meaning"], rows, "arguments")
    for argument, pairs in shown.statuses:
        rows = [[f"**{escaped(value)}**", writer.text(meaning, routine.name)]
                for value, meaning in pairs]
        lines += table([f"`{argument.name}`", "Meaning"], rows, "statuses")
    return lines + _facts(writer, shown)


def _facts(writer, shown):
    facts = []
    unwritten = [f"{', '.join(f'`{n}`' for n in names)}: {writer.text(clause, shown.name)}"
                 for names, clause in shown.unwritten]
    if not unwritten:
        written = all(bindings_facts.always_written(shown.routine, a) or a.is_array
                      for a in shown.routine.arguments if a.direction == "out")
        unwritten = ["nothing; every output is written on every path"] if written else []
    facts += [("Unwritten", "; ".join(unwritten))] if unwritten else []
    facts.append(("Retains", writer.text(shown.routine.retains.rstrip("."), shown.name)))
    facts += [("Cost", writer.text(" ".join(shown.cost), shown.name))] if shown.cost else []
    named = [writer.link(name) for name in shown.mentioned if name in writer.page_of]
    facts += [("See also", ", ".join(named))] if named else []
    return ["```{container} facts", *(f"**{name}** {text}\\" for name, text in facts[:-1]),
            f"**{facts[-1][0]}** {facts[-1][1]}", "```", ""]


def figure(name, caption=None):
    return [f"```{{trelvin-figure}} {name}", caption or CAPTIONS[name], "```", ""]


def family_page(writer, page):
    lines = [f"# {page.family.title}", ""]
    for paragraph in page.intro:
        lines += writer.paragraph(paragraph)
    for name in FIGURES.get(page.family.name, []):
        lines += figure(name)
    lines += [f"The declarations are in [`{page.family.header}`](../../{page.family.header}).", ""]
    for group in page.groups:
        rows = [[writer.link(r.name), writer.text(r.routine.brief, r.name)] for r in group.routines]
        lines += [f"## {group.title}", ""] if group.title else []
        for name in FIGURES.get(group.title, []):
            lines += figure(name)
        lines += table(["Routine", ""], rows, "routines")
        for shown in group.routines:
            lines += _routine(writer, shown)
            if shown.name.startswith("trvsec_"):
                lines += figure(f"outline-{shown.name}", f"The outline of {shown.name}")
    return lines


def all_routines(writer):
    count = len(writer.page_of)
    lines = ["# All routines", "", f"The {count} routines by family. Every one takes the address "
             "of each argument and returns nothing; each links to its contract. Looking for a word "
             "rather than a name: [Find by word](words.md).", "", "```{toctree}", ":hidden:", "",
             *[page.family.name for page in writer.pages], "```", ""]
    for page in writer.pages:
        lines += [f"## [{page.family.title}]({page.family.name}.md)", ""]
        rows = [[writer.link(r.name), writer.text(r.routine.brief, r.name)]
                for group in page.groups for r in group.routines]
        lines += table(["Routine", ""], rows, "routines")
    return lines


def statuses(writer):
    lines = ["# Statuses", "", "What the values of each status mean, and the names they have in "
             "the bindings: `trvlni_parallel` in Fortran and Pascal, `trvlniParallel` in C#, "
             "Basic and JavaScript. Python takes its names from the meanings, where they make one: "
             "`TrvlniStatus.PARALLEL_AND_DISTINCT`. In C they are the numbers.", ""]
    for page in writer.pages:
        rows = []
        for shown in (r for group in page.groups for r in group.routines):
            named = bindings_facts.constants_of(shown.routine)
            for argument, pairs in shown.statuses:
                for i, (value, meaning) in enumerate(pairs):
                    name = [c.snake for c in named if str(c.value) == value] or [""]
                    rows.append([writer.link(shown.name) if i == 0 else "", f"`{argument.name}`",
                                 f"**{escaped(value)}**", writer.text(meaning, shown.name),
                                 f"`{name[0]}`" if name[0] else ""])
        if rows:
            lines += [f"## {page.family.title}", ""]
            lines += table(["Routine", "Output", "Value", "Meaning", "Name"], rows, "values")
    return lines


def write(folder, words_page):
    """Writes all pages that follow from the headers; `words_page` makes that of the words."""
    pages = contract_text.pages()
    writer = Writer(pages)
    texts = {page.family.name: family_page(writer, page) for page in pages}
    texts |= {"index": all_routines(writer), "statuses": statuses(writer),
              "words": words_page(writer)}
    folder.mkdir(parents=True, exist_ok=True)
    for stale in folder.glob("*.md"):
        if stale.stem not in texts:
            stale.unlink()
    for name, lines in texts.items():
        (folder / f"{name}.md").write_text("\n".join(lines) + "\n")
    return {name: f"reference/{family}" for name, family in writer.page_of.items()}
