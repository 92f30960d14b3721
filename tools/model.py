"""The model of the interface: what the headers in include/trelvin say, read once.

No other file looks at a header's text. A sentence that has one of the forms below, or begins like
one, is read; one that cannot be read is a fault, told with its file and line.

    array of SIZE: ...                      also `SIZE, SIZE by KIND`, and `SIZE, COUNT used`: what is
                                            behind COUNT elements is unwritten
    array of ...: ...; unspecified up to N  but for elements up to N
    WHAT, at least N                        of an Integer input
    WHAT, always N                          of an Integer output
    WHAT: N name: meaning; N name ...       the values of an Integer; `A to B: meaning` has no name
    WHAT (TrvValues): N name ...            the same, of an enumeration in values.h
    unwritten if STATUS is 0 or 1           of an output; `unchanged` if it is an input too;
    unwritten unless STATUS is 0            always the last clause
    unwritten if COUNT < N
    unwritten on a condition: ...           what no status or count tells
    unchanged                               of an input and output that always is
    Retains: nothing.                       or `WHAT (OWNER); WHAT (OWNER).`: the routine that owns it
    Cost: ...                               time and memory
"""

import itertools
import re
from dataclasses import dataclass, field
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
INTERFACE = ROOT / "include" / "trelvin"

# Argument type: (kind, is it an array, direction).
TYPES = {
    f"Trv{kind}{array}{way}": (word, bool(array), way.lower())
    for kind, word in (("", "real"), ("Int", "integer"))
    for array in ("", "Array")
    for way in ("In", "Out", "InOut")
} | {"TrvFunctionIn": ("function", False, "in")}


class Unreadable(ValueError):
    """A text that does not follow its form."""


COMMENT = re.compile(r"/\*.*?\*/|//[^\n]*", re.S)  # of C and C++


# --- values -----------------------------------------------------------------------------------


@dataclass(frozen=True)
class Value:
    number: int
    name: str  # in lower case, words joined by _
    meaning: str


@dataclass
class Enumeration:
    """Named values: those of one routine's argument, or shared ones of values.h."""

    name: str  # TrvLines; TrvlpcStatus of a routine's own
    stem: str  # what the names of its values begin with: trv_lines, trvlpc
    comment: str
    values: list
    shared: bool

    def snake(self, value):
        return f"{self.stem}_{value.name}"

    def upper(self, value):
        return self.snake(value).upper()

    def camel(self, value):
        first, *words = self.snake(value).split("_")
        return first + "".join(word.capitalize() for word in words)


NUMBER = r"-?\d+"
NAMED = re.compile(rf"({NUMBER}) ([a-z][a-z0-9_]*)(?:: (.+))?")
RANGE = re.compile(rf"({NUMBER}|\w[\w+*-]*) to \w[\w+*-]*: .+")
OTHER = re.compile(r"any other value\b.*")


@dataclass
class Values:
    """The values that a contract lists for one argument."""

    enumeration: Enumeration
    values: list  # in the order of the contract, with this routine's meanings
    ranges: list = field(default_factory=list)  # texts of what only a count bounds
    further: int = None  # the least value of those ranges
    other: str = ""  # what any other value of an input means

    @property
    def numbers(self):
        return sorted(value.number for value in self.values)


def _values_of(text, owner, name, shared):
    """The values that `text` lists, or None where it lists none."""
    label, colon, items = text.partition(": ")
    enumeration = re.search(r"\((Trv\w+)\)$", label)
    if not colon or not (enumeration or NAMED.fullmatch(items.split("; ")[0])):
        return None
    if enumeration and enumeration[1] not in shared:
        raise Unreadable(f"values.h has no {enumeration[1]}")
    common = shared[enumeration[1]] if enumeration else None
    result = Values(common, [])
    for item in items.split("; "):
        match = NAMED.fullmatch(item)
        if match:
            result.values.append(_value(match, common))
        elif RANGE.fullmatch(item):
            result.ranges.append(item)
            least = RANGE.fullmatch(item)[1]
            if result.further is None:
                if not re.fullmatch(NUMBER, least):
                    raise Unreadable(f"`{item}` has no least value")
                result.further = int(least)
        elif OTHER.fullmatch(item):
            result.other = item
        else:
            raise Unreadable(f"`{item}` is no value with its name and meaning")
    for one, other in itertools.combinations(result.values, 2):
        if _shared(one, one) + _shared(other, other) < _shared(one, other) + _shared(other, one):
            raise Unreadable(f"the meanings of {one.name} and {other.name} seem to be exchanged")
    for what in ("number", "name"):
        found = [getattr(value, what) for value in result.values]
        if len(set(found)) < len(found):
            raise Unreadable(f"a {what} of its values stands twice")
    if not common:
        title = "".join(word.capitalize() for word in [*owner.split("_"), name])
        result.enumeration = Enumeration(title, owner, label, result.values, shared=False)
    return result


def _shared(named, told):
    """How many words of the name of one value are in the meaning of another."""
    words = re.findall(r"\w+", told.meaning.lower())
    return sum(any(w.startswith(part[:5]) for w in words) for part in named.name.split("_"))


def _value(match, common):
    number, name, meaning = int(match[1]), match[2], match[3]
    if common:
        known = [value for value in common.values if value.number == number]
        if not known or known[0].name != name:
            raise Unreadable(f"{common.name} has no value {number} {name}")
        meaning = meaning or known[0].meaning
    if not meaning:
        raise Unreadable(f"{number} {name} has no meaning")
    return Value(number, name, meaning)


# --- sizes ------------------------------------------------------------------------------------

SIZE = re.compile(r"arrays? of (\S+?(?:, \S+?)*?)(?:, (\w+) used| by (\w+))?(?:: |$)")
TOKEN = re.compile(r"\d+|\w+|[-+*(),]")


@dataclass
class Size:
    sizes: list  # one text, or one a kind
    used: str = ""  # the output that tells how many are written, or a number
    kind: str = ""  # the argument that picks one of several sizes
    scratch: str = ""  # the output up to which elements behind those used may be written too

    def cpp(self, positions):
        """C++ expressions: `of.count(i)` is the Integer argument i."""
        return [_Expression(size, positions).translate() for size in self.sizes]


def _size_of(text, positions):
    match = SIZE.match(text)
    if not match:
        raise Unreadable("no `array of SIZE: ...`")
    sizes, used, kind = match.groups()
    size = Size(sizes.split(", "), used or "", kind or "")
    if (len(size.sizes) > 1) != bool(kind):
        raise Unreadable(f"{sizes}: several sizes belong to a kind")
    for name in (size.used, size.kind):
        if name and not name.isdigit() and name not in positions:
            raise Unreadable(f"{name} is no Integer argument")
    size.cpp(positions)
    return size, text[match.end() :]


class _Expression:
    """sum = product {(+|-) product}, product = factor {* factor}."""

    def __init__(self, text, positions):
        self.text = text
        self.positions = positions
        self.tokens = TOKEN.findall(text)
        if "".join(self.tokens) != text:
            raise Unreadable(f"{text}: no size")

    def translate(self):
        result = self._sum()
        if self.tokens:
            raise Unreadable(f"{self.text}: {self.tokens[0]} is out of place")
        return result

    def _take(self, wanted=None):
        if not self.tokens or (wanted and self.tokens[0] != wanted):
            raise Unreadable(f"{self.text}: {wanted or 'more'} is missing")
        return self.tokens.pop(0)

    def _chain(self, operators, operand):
        result = operand()
        while self.tokens and self.tokens[0] in operators:
            operator = self._take()
            result += f" {operator} {operand()}"
        return result

    def _sum(self):
        return self._chain("+-", self._product)

    def _product(self):
        return self._chain("*", self._factor)

    def _factor(self):
        token = self._take()
        if token.isdigit():
            return token
        if token == "max":
            self._take("(")
            left = self._sum()
            self._take(",")
            right = self._sum()
            self._take(")")
            return f"of.larger({left}, {right})"
        if token in self.positions:
            return f"of.count({self.positions[token]})"
        raise Unreadable(f"{self.text}: {token} is no Integer argument")


# --- when an output is unwritten --------------------------------------------------------------

KEPT = re.compile(
    rf"(unwritten|unchanged)(?: (if|unless) (\w+) is ({NUMBER}(?:, {NUMBER})*(?: or {NUMBER})?)"
    rf"| if (\w+) < ({NUMBER})| on a condition: (.+))?"
)
KEEPS = re.compile(r"\b(unwritten|unchanged|untouched|not written)\b")


@dataclass
class Kept:
    """When an output keeps what the caller had there."""

    text: str
    name: str = ""  # the status or count that tells, or
    numbers: tuple = ()  # its values that do, or
    less_than: int = None  # the value below which it does
    further: int = None  # the value from which on all do
    condition: str = ""  # what else does


def _kept_of(clause, direction, arguments):
    match = KEPT.fullmatch(clause)
    if not match or clause == "unwritten":
        raise Unreadable(f"`{clause}` does not say when in the form of tools/model.py")
    word, way, name, numbers, count, bound, condition = match.groups()
    if (word == "unchanged") != (direction == "inout"):
        raise Unreadable(f"`{clause}`: an output is unwritten, an input and output unchanged")
    if condition or clause == "unchanged":
        return Kept(clause, condition=condition or "")
    teller = arguments.get(name or count)
    if not teller or teller.kind != "integer" or teller.is_array:
        raise Unreadable(f"`{clause}`: {name or count} is no Integer argument")
    if count:
        return Kept(clause, count, less_than=int(bound))
    listed = {int(number) for number in re.findall(NUMBER, numbers)}
    if not teller.values or not listed <= set(teller.values.numbers):
        raise Unreadable(f"`{clause}`: {name} has no such value")
    if way == "unless":
        listed = set(teller.values.numbers) - listed
        return Kept(clause, name, tuple(sorted(listed)), further=teller.values.further)
    return Kept(clause, name, tuple(sorted(listed)))


# --- routines ---------------------------------------------------------------------------------


@dataclass
class Argument:
    name: str
    type: str
    text: str = ""  # its description, as it stands
    line: int = 0
    stated: str = ""  # the direction that the contract tells
    meaning: str = ""  # the description without size and `unwritten ...`
    size: Size = None
    values: Values = None
    least: int = None
    always: int = None  # the only value of an output
    kept: Kept = None

    @property
    def kind(self):
        return TYPES[self.type][0]

    @property
    def is_array(self):
        return TYPES[self.type][1]

    @property
    def direction(self):
        return TYPES[self.type][2]

    @property
    def is_integer(self):
        return self.kind == "integer"

    @property
    def is_written(self):
        return self.direction != "in"

    @property
    def always_written(self):
        """Whether a single output is written on every path."""
        return self.direction == "out" and not self.is_array and not self.kept


@dataclass
class Routine:
    name: str
    family: str
    group: str
    line: int
    arguments: list
    paragraphs: list = field(default_factory=list)  # of text; a list of lines stays as it is
    retains: list = None  # (what, the routine that owns it)
    cost: str = ""
    shares_addresses: bool = True  # an output may have the address of a single input

    @property
    def brief(self):
        return self.paragraphs[0] if self.paragraphs else ""

    @property
    def text(self):
        """The whole contract, in one line."""
        lines = [line for p in self.paragraphs for line in ([p] if isinstance(p, str) else p)]
        lines += [self.cost, f"Retains: {self.retains_text}."]
        lines += [f"{a.name} {a.text}" for a in self.arguments]
        return " ".join(" ".join(lines).split())

    @property
    def decorated(self):
        return f"_{self.name}@{4 * len(self.arguments)}"

    @property
    def positions(self):
        """Where the single Integers stand, which a size may name."""
        arguments = enumerate(self.arguments)
        return {a.name: i for i, a in arguments if a.is_integer and not a.is_array}

    @property
    def retains_text(self):
        return "; ".join(f"{what} ({owner})" for what, owner in self.retains or []) or "nothing"

    def named_values(self):
        """Its arguments that list values."""
        return [argument for argument in self.arguments if argument.values]


@dataclass
class Family:
    name: str
    title: str
    intro: list  # paragraphs of the header's own comment
    example: list  # lines of C
    routines: list

    @property
    def header(self):
        return f"include/trelvin/{self.name}.h"

    def groups(self):
        """(title, routines), in the order of the header."""
        titles = dict.fromkeys(routine.group for routine in self.routines)
        return [(t, [r for r in self.routines if r.group == t]) for t in titles]


@dataclass
class Interface:
    version: str
    families: list
    shared: list  # enumerations
    faults: list
    conventions: str = ""  # what holds for all routines

    @property
    def routines(self):
        return [routine for family in self.families for routine in family.routines]

    def enumerations(self):
        """The shared ones, then those of one routine each, in the order of the headers."""
        own = [a.values.enumeration for r in self.routines for a in r.named_values()]
        return self.shared + [enumeration for enumeration in own if not enumeration.shared]


# --- reading ----------------------------------------------------------------------------------

OTHER_COMMENT = re.compile(
    r"(/\*\*.*?\*/|/\* \S[^*]*? -+ \*/)|" + COMMENT.pattern, re.S)  # without a group, one of others
PIECE = re.compile(
    r"/\*\*(?P<doc>(?:(?!\*/).)*)\*/|/\* (?P<title>\S[^*]*?) -+ \*/"
    r"|^TRELVIN_ROUTINE\s+(?P<routine>\w+)\s*\((?P<arguments>[^)]*)\)\s*;"
    r"|^enum (?P<enum>Trv\w+) \{(?P<body>.*?)\};",
    re.S | re.M,
)
_FILE = re.compile(r"/\*\*\s*\* @file(.*?)\*/", re.S)
ENUMERATOR = re.compile(r"(\w+) = (-?\d+),?\s*/\*\*< (.*?) \*/", re.S)
PARAMETER = re.compile(r"@param\[(\w+)\]\s+([\w,]+)\s+(.*)", re.S)


def read():
    """The interface, with what is wrong in it."""
    texts = {header.stem: header.read_text() for header in sorted(INTERFACE.glob("*.h"))}
    order = [name for header in _includes(texts["trelvin"])
             for name in [header, *_includes(texts.get(header, ""))]]
    version = re.search(r'#define TRELVIN_VERSION "(.*)"', texts["calling"])[1]
    families = [name for name in texts if "TRELVIN_ROUTINE trv" in texts[name]]
    missing = [f"include/trelvin/{n}.h: trelvin.h does not include it" for n in families
               if n not in order]
    families.sort(key=lambda name: order.index(name) if name in order else len(order))
    interface = interface_of(texts["values"], {name: texts[name] for name in families}, version)
    interface.faults += missing
    interface.conventions = " ".join(" ".join(_lines_of(_FILE.search(texts["calling"])[1])).split())
    return interface


def _includes(text):
    return re.findall(r'#include "trelvin/(\w+)\.h"', text)


def interface_of(values, headers, version="0"):
    """The interface that the texts of values.h and of the families' headers declare."""
    interface = Interface(version, [], [], [])
    _Reader("values", interface).read(values)
    for name, text in headers.items():
        _Reader(name, interface).read(text)
    for routine in interface.routines:
        _check_owners(routine, interface)
    names = [e.snake(value) for e in interface.enumerations() for value in e.values]
    names += [routine.name for routine in interface.routines]
    for name in sorted({name for name in names if names.count(name) > 1}):
        interface.faults.append(f"{name}: the name stands for two things")
    return interface


def _check_owners(routine, interface):
    known = {other.name: other for other in interface.routines}
    for what, owner in routine.retains or []:
        if owner not in known or owner not in [name for _, name in known[owner].retains or []]:
            interface.faults.append(f"{routine.name}: {what}: {owner} does not retain it")


class _Reader:
    """Reads one header into the interface."""

    def __init__(self, name, interface):
        self.interface = interface
        self.shared = {enumeration.name: enumeration for enumeration in interface.shared}
        self.family = Family(name, "", [], [], [])
        self.group = ""

    def _fault(self, line, text):
        self.interface.faults.append(f"{self.family.header}:{line}: {text}")

    def read(self, text):
        text = OTHER_COMMENT.sub(lambda m: m[1] or "\n" * m[0].count("\n"), text)
        doc = None
        for match in PIECE.finditer(text):
            line = text.count("\n", 0, match.start()) + 1
            if match["doc"] is not None:
                doc = (line + 1, _lines_of(match["doc"]))
                if doc[1][0] == "@file":
                    self._file(doc[1][1:])
                continue
            if match["title"]:
                self.group = match["title"]
            elif match["routine"]:
                at = text.count("\n", 0, match.start("routine")) + 1
                self._routine(match["routine"], match["arguments"], doc or (at, [""]), at)
            elif match["enum"]:
                self._enumeration(match["enum"], match["body"], doc, line)
            doc = None
        understood = len(self.family.routines)
        for fault in range(len(re.findall(r"^TRELVIN_ROUTINE\b", text, re.M)) - understood):
            self._fault(0, "a declaration is not understood")
        if self.family.routines:
            self.interface.families.append(self.family)
            if not self.family.title or not self.family.example:
                self._fault(1, "no title, or no indented example, behind its @file")

    def _file(self, lines):
        self.family.title = " ".join(lines[:1]).removesuffix(".")
        for paragraph in _paragraphs(lines[1:]):
            if isinstance(paragraph, list) and paragraph[0].startswith("    "):
                self.family.example = [line[4:] for line in paragraph]
            else:
                self.family.intro.append(paragraph)

    def _enumeration(self, name, body, doc, line):
        stem = re.sub(r"(?<!^)(?=[A-Z])", "_", name).lower()
        values = []
        for enumerator, number, meaning in ENUMERATOR.findall(body):
            if not enumerator.startswith(stem.upper() + "_"):
                self._fault(line, f"{enumerator} does not begin with {stem.upper()}_")
            meaning = " ".join(re.sub(r"\n\s*\*? ", " ", meaning).split())
            values.append(Value(int(number), enumerator[len(stem) + 1 :].lower(), meaning))
        if not doc or len(values) < body.count("=") or not values:
            self._fault(line, f"{name}: no comment, or a value without number or comment")
        comment = " ".join(doc[1]) if doc else ""
        self.interface.shared.append(Enumeration(name, stem, comment, values, shared=True))

    def _routine(self, name, arguments, doc, line):
        start, lines = doc
        routine = Routine(name, self.family.name, self.group, line, [])
        described = self._contract(routine, start, lines)
        for piece in arguments.split(","):
            kind, argument = (piece.split() + ["", ""])[:2]
            if kind not in TYPES:
                self._fault(line, f"{name}: {argument or 'an argument'}: unknown type {kind}")
                continue
            at, stated, text = described.pop(argument, (line, "nothing", ""))
            routine.arguments.append(Argument(argument, kind, text, at, stated, text))
        for extra, (at, _, _) in described.items():
            self._fault(at, f"{name}: {extra} is described, but is no argument")
        self.family.routines.append(routine)
        by_name = {argument.name: argument for argument in routine.arguments}
        # What tells when others are written is read first.
        for argument in sorted(routine.arguments, key=lambda a: a.is_array or not a.is_integer):
            try:
                self._argument(routine, argument, by_name)
            except Unreadable as problem:
                self._fault(argument.line, f"{name}: {argument.name}: {problem}")

    def _contract(self, routine, start, lines):
        """Fills in what stands before the parameters; gives name: (line, direction, text)."""
        first = next((i for i, t in enumerate(lines) if t.startswith("@")), len(lines))
        for paragraph in _paragraphs(lines[:first]):
            if isinstance(paragraph, str) and paragraph.startswith("Retains: "):
                routine.retains = _retains_of(paragraph.removeprefix("Retains: "))
            elif isinstance(paragraph, str) and paragraph.startswith("Cost: "):
                routine.cost = paragraph.removeprefix("Cost: ")
            else:
                routine.paragraphs.append(paragraph)
        if not isinstance(routine.brief, str) or not routine.brief.endswith("."):
            self._fault(start, f"{routine.name}: no sentence in its first paragraph")
        if routine.retains is None:
            self._fault(start, f"{routine.name}: no line `Retains: nothing.` or `WHAT (OWNER).`")
        routine.shares_addresses = "may not share" not in routine.text
        described = {}
        tags = [i for i, t in enumerate(lines) if t.startswith("@")] + [len(lines)]
        for begin, end in zip(tags, tags[1:]):
            match = PARAMETER.fullmatch(" ".join(" ".join(lines[begin:end]).split()))
            if not match:
                self._fault(start + begin, f"{routine.name}: no `@param[in] name text`")
                continue
            for name in match[2].split(","):
                described[name] = (start + begin, match[1], match[3])
        return described

    def _argument(self, routine, argument, by_name):
        if argument.stated != argument.direction:
            raise Unreadable(f"is {argument.direction}, its contract says {argument.stated}")
        text = argument.text
        if argument.is_array:
            argument.size, text = _size_of(text, routine.positions)
            scratch = re.search(r"; unspecified up to (\w+)$", text)
            argument.size.scratch = scratch[1] if scratch else ""
        head, _, last = text.rpartition("; ")
        if KEEPS.match(last):
            argument.kept = _kept_of(last, argument.direction, by_name)
            text = head
        if KEEPS.search(text):
            raise Unreadable(f"`{KEEPS.search(text)[0]}` does not begin the last clause")
        argument.meaning = text
        if argument.is_integer:
            argument.values = _values_of(text, routine.name, argument.name, self.shared)
            if not argument.values and argument.name in ("status", "code", "on", "position") \
                    and argument.direction == "out" and not argument.is_array:
                raise Unreadable("lists no values")
        bound = re.match(rf"[^:;]*, (at least|always) ({NUMBER})\b", text)
        if bound and argument.is_integer and not argument.is_array:
            if (bound[1] == "always") != (argument.direction == "out"):
                raise Unreadable(f"`{bound[0]}`: inputs have a least value, outputs one for ever")
            setattr(argument, "always" if bound[1] == "always" else "least", int(bound[2]))


def _lines_of(comment):
    lines = [re.sub(r"^\s*\*? ?", "", line).rstrip() for line in comment.splitlines()]
    while lines and not lines[0]:
        del lines[0]
    while lines and not lines[-1]:
        del lines[-1]
    return lines or [""]


def _paragraphs(lines):
    """Blocks between empty lines; one that is indented, or a list, keeps its lines."""
    blocks = [[]]
    for line in lines:
        if line:
            blocks[-1].append(line)
        elif blocks[-1]:
            blocks.append([])
    return [_paragraph(block) for block in blocks if block]


def _paragraph(block):
    if block[0].startswith("  "):
        return block
    if block[0].startswith("- "):
        return [" ".join(item.split()) for item in re.split(r"\n(?=- )", "\n".join(block))]
    return " ".join(line.strip() for line in block)


def _retains_of(text):
    if text == "nothing.":
        return []
    items = [re.fullmatch(r"(.+) \((trv\w+)\)", item) for item in text.rstrip(".").split("; ")]
    return [item.groups() for item in items] if all(items) else None
