"""Reads the interface headers as text to show: groups of routines, paragraphs, statuses, cost."""

import re
from dataclasses import dataclass, field

import contracts
import headers

COST = re.compile(r"(The time|Time|Takes|More than \d+ \w+ take|Where memory)\b")
LEFT = re.compile(r"\b(unwritten|untouched|not written|nothing else is written|the rest is not)\b")
PIECES = re.compile(  # the title of a group, or a contract with the name of its routine
    r"^/\* (\S[^*]*?) -+ \*/|(/\*\*(?:(?!\*/).)*?\*/)\s*TRELVIN_ROUTINE (\w+)", re.S | re.M)
SENTENCE = re.compile(r"(?<=[.])\s+(?=[A-Z0-9-])")


@dataclass
class Shown:
    """A routine as the manual shows it."""

    routine: headers.Routine
    paragraphs: list  # of text; a list of lines is shown as it stands
    cost: list = field(default_factory=list)  # sentences on time and memory
    arguments: list = field(default_factory=list)  # (names, one of the arguments)

    @property
    def name(self):
        return self.routine.name

    @property
    def statuses(self):
        """Each output that is a status: (argument, [(value, meaning), ...])."""
        found = []
        for argument in filter(contracts.names_values, self.routine.arguments):
            pairs = [value_and_meaning(item) for item in items(argument.text)]
            if any(value != meaning for value, meaning in pairs):  # else a number, always the same
                found.append((argument, pairs))
        return found

    @property
    def unwritten(self):
        """What says that an output is left as it was: (names, clause)."""
        for names, argument in self.arguments:
            for clause in argument.text.split("; "):
                if argument.is_written and LEFT.search(clause):
                    yield names, clause

    @property
    def mentioned(self):
        """Routines that the contract names, in its order."""
        found = re.findall(r"\btrv\w+\b", self.routine.text)
        return [name for name in dict.fromkeys(found) if name != self.name]


@dataclass
class Group:
    title: str
    routines: list


@dataclass
class Page:
    family: headers.Family
    intro: list  # paragraphs of the header's own comment
    groups: list


def items(text):
    """The values of a status with their meanings, an item each."""
    text = re.sub(r"^[^:;]*: (?=-?\d)", "", text) if not contracts.ITEM.match(text) else text
    return text.split("; ")


def value_and_meaning(item):
    match = contracts.ITEM.match(item)
    value = match.group(0)
    return value.removeprefix("always "), item[match.end() :].lstrip(" ,:") or item


def paragraphs_of(comment):
    """Paragraphs of a comment before its first tag; a block that is indented stays as it is."""
    lines = [re.sub(r"^\s*\* ?", "", line).rstrip() for line in comment.strip("/*").splitlines()]
    blocks = [[]]
    for line in lines:
        if re.match(r"@param|Retains:", line):
            break
        if line:
            blocks[-1].append(line)
        elif blocks[-1]:
            blocks.append([])
    blocks = [block for block in blocks if block]
    return [block if block[0].startswith("  ") else _joined(block) for block in blocks]


def _joined(block):
    return " ".join(line.strip() for line in block) if not block[0].startswith("- ") else \
        [" ".join(item.split()) for item in re.split(r"\n(?=- )", "\n".join(block))]


def pages():
    """Every family with its groups, in the order of the headers."""
    return [_page(family) for family in headers.read_all()]


def _page(family):
    text = (headers.ROOT / family.header).read_text()
    intro = paragraphs_of(re.search(r"/\*\*.*?\*/", text, re.S).group())[1:]
    groups = [Group("", [])]
    by_name = {routine.name: routine for routine in family.routines}
    for title, comment, name in PIECES.findall(text):
        if title:
            groups.append(Group(title, []))
        else:
            groups[-1].routines.append(_shown(by_name[name], paragraphs_of(comment)))
    return Page(family, intro, [group for group in groups if group.routines])


def _shown(routine, paragraphs):
    shown = Shown(routine, [])
    for paragraph in paragraphs:
        sentences = SENTENCE.split(paragraph) if isinstance(paragraph, str) else []
        cost = [s for s in sentences if COST.match(s)]
        shown.cost += cost
        rest = " ".join(s for s in sentences if s not in cost) if sentences else paragraph
        shown.paragraphs += [rest] if rest else []
    for argument in routine.arguments:
        last = shown.arguments[-1] if shown.arguments else ([], None)
        if last[1] and (last[1].text, last[1].type) == (argument.text, argument.type):
            last[0].append(argument.name)
        else:
            shown.arguments.append(([argument.name], argument))
    return shown
