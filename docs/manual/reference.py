"""Writes the pages of the reference from the model of the interface: Markdown for Sphinx."""

import re

import bindings_text
import model

DIRECTIONS = {"in": "in", "out": "out", "inout": "in and out"}
FIGURES = {  # of a family, and of a group within one
    "circles": ["arc-stations", "arc-constructions"],
    "rotations": ["rotations"],
    "frames": ["frames"],
    "Straight lines": ["lines"],
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

    def __init__(self, interface):
        self.interface = interface
        self.page_of = {routine.name: routine.family for routine in interface.routines}

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
    return ["```c", *bindings_text.wrap_list(arguments, start, "    ", ");", width=82), "```", ""]


def _alike(arguments):
    """Neighbours that share their description: [(names, the first of them)]."""
    groups = bindings_text.groups(((a.text, a.type), a) for a in arguments)
    return [([a.name for a in alike], alike[0]) for _, alike in groups]


def _argument_row(writer, routine, names, argument):
    size, kind = argument.size, "function"
    if argument.kind != "function":
        kind = "Integer" if argument.is_integer else "Real"
    if size:
        of = f" of {', '.join(size.sizes)}" + f", {size.used} used" * bool(size.used)
        kind += f" array{escaped(of + f', by {size.kind}' * bool(size.kind))}"
    text = argument.meaning or "numbers"
    if argument.values:
        text = re.sub(r"( \(Trv\w+\))?:.*", ": see below", text)
    names = ", ".join(f"`{name}`" for name in names)
    return [names, f"{DIRECTIONS[argument.direction]}, {kind}", writer.text(text, routine.name)]


def _value_rows(writer, routine, argument):
    """Value, name and meaning of each."""
    values = argument.values
    rows = [(str(v.number), f"`{values.enumeration.snake(v)}`", v.meaning) for v in values.values]
    for text in values.ranges:
        value, _, meaning = text.partition(": ")
        rows.append((value, "", meaning))
    return [[f"**{escaped(value)}**", name, writer.text(meaning, routine.name)]
            for value, name, meaning in rows]


def _routine(writer, routine, level):
    lines = [f"({routine.name})=", f"{level} `{routine.name}`", ""]
    for i, paragraph in enumerate(routine.paragraphs):
        lines += writer.paragraph(paragraph, routine.name)
        lines += signature(routine) if i == 0 else []
    rows = [_argument_row(writer, routine, *pair) for pair in _alike(routine.arguments)]
    lines += table(["Argument", "Kind", "Meaning"], rows, "arguments")
    for argument in routine.named_values():
        rows = _value_rows(writer, routine, argument)
        if argument.values.other:
            rows.append(["**other**", "", writer.text(argument.values.other, routine.name)])
        lines += table([f"`{argument.name}`", "Name", "Meaning"], rows, "statuses")
    return lines + _facts(writer, routine)


def _when(kept):
    return f"if {kept.condition}" if kept.condition else kept.text.partition(" ")[2] or "always"


def _facts(writer, routine):
    unwritten = {}  # names of arguments by when they are
    for argument in routine.arguments:
        if argument.kept:
            unwritten.setdefault(_when(argument.kept), []).append(f"`{argument.name}`")
    unwritten = [f"{', '.join(names)}: {writer.text(when, routine.name)}"
                 for when, names in unwritten.items()]
    mentioned = re.findall(r"\btrv\w+\b", f"{routine.paragraphs} {routine.retains_text} " +
                           " ".join(argument.text for argument in routine.arguments))
    named = [writer.link(name) for name in dict.fromkeys(mentioned)
             if name in writer.page_of and name != routine.name]
    facts = [("Unwritten", "; ".join(unwritten) or "nothing; every output is written on every path"),
             ("Retains", writer.text(routine.retains_text, routine.name)),
             ("Cost", writer.text(routine.cost, routine.name)), ("See also", ", ".join(named))]
    facts = [(name, text) for name, text in facts if text]
    return ["```{container} facts", *(f"**{name}** {text}\\" for name, text in facts[:-1]),
            f"**{facts[-1][0]}** {facts[-1][1]}", "```", ""]


def figure(name, caption=None):
    return [f"```{{trelvin-figure}} {name}", caption or CAPTIONS[name], "```", ""]


def family_page(writer, family):
    lines = [f"# {family.title}", ""]
    for paragraph in family.intro:
        lines += writer.paragraph(paragraph)
    lines += ["```c", *family.example, "```", ""]
    for name in FIGURES.get(family.name, []):
        lines += figure(name)
    lines += [f"The declarations are in [`{family.header}`](../../{family.header}).", ""]
    for title, routines in family.groups():
        rows = [[writer.link(r.name), writer.text(r.brief, r.name)] for r in routines]
        lines += [f"## {title}", ""] if title else []
        for name in FIGURES.get(title, []):
            lines += figure(name)
        lines += table(["Routine", ""], rows, "routines")
        for routine in routines:
            lines += _routine(writer, routine, "###" if title else "##")
            if routine.name.startswith("trvsec_"):
                lines += figure(f"outline-{routine.name}", f"The outline of {routine.name}")
    return lines


def all_routines(writer):
    families = writer.interface.families
    lines = ["# All routines", "", f"The {len(writer.page_of)} routines by family. Every one takes "
             "the address of each argument and returns nothing; each links to its contract. Looking "
             "for a word rather than a name: [Find by word](words.md).", "", "```{toctree}",
             ":hidden:", "", *[family.name for family in families], "```", ""]
    for family in families:
        lines += [f"## [{family.title}]({family.name}.md)", ""]
        rows = [[writer.link(r.name), writer.text(r.brief, r.name)] for r in family.routines]
        lines += table(["Routine", ""], rows, "routines")
    return lines


def statuses(writer):
    lines = ["# Statuses", "", "What the values of each status mean, and their names. The name "
             "`trv_lines_skew` is that of Fortran and Pascal; it is `TRV_LINES_SKEW` in C and C++, "
             "`trvLinesSkew` in C#, Basic and JavaScript, `TrvLines.SKEW` in Python. Names that "
             "begin with `trv_` belong to several routines.", ""]
    for family in writer.interface.families:
        rows = []
        for routine in family.routines:
            for argument in (a for a in routine.named_values() if a.is_written):
                for i, (value, name, meaning) in enumerate(_value_rows(writer, routine, argument)):
                    link = writer.link(routine.name) if i == 0 else ""
                    rows.append([link, f"`{argument.name}`", value, meaning, name])
        if rows:
            lines += [f"## {family.title}", ""]
            lines += table(["Routine", "Output", "Value", "Meaning", "Name"], rows, "values")
    return lines


def compatibility():
    """The table of the names of version 1.1, which docs/compatibility.md includes."""
    rows = [[f"`{old}`", f"`{new}`"] for old, new in bindings_text.old_names()]
    return table(["1.1", "now"], rows, "names")


def write(folder, words_page):
    """Writes all pages that follow from the headers; `words_page` makes that of the words."""
    writer = Writer(model.read())
    texts = {family.name: family_page(writer, family) for family in writer.interface.families}
    texts |= {"index": all_routines(writer), "statuses": statuses(writer),
              "words": words_page(writer)}
    folder.mkdir(parents=True, exist_ok=True)
    for stale in folder.glob("*.md"):
        if stale.stem not in texts:
            stale.unlink()
    for name, lines in texts.items():
        (folder / f"{name}.md").write_text("\n".join(lines) + "\n")
    (folder / "old_names.txt").write_text("\n".join(compatibility()) + "\n")
    return {name: f"reference/{family}" for name, family in writer.page_of.items()}
