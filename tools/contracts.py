"""Reads the parts of a contract that programs use: sizes of arrays and values of statuses."""

import re
from dataclasses import dataclass


class Unreadable(ValueError):
    """A description that does not follow the form."""


# --- sizes ------------------------------------------------------------------------------------

# `array of SIZE: ...`, `arrays of SIZE, COUNT used: ...`, `arrays of 1, n+1, 2 by kind: ...`
SIZE = re.compile(r"arrays? of (\S+?(?:, \S+?)*?)(?:, (\w+) used| by (\w+))?(?::|$)")
TOKEN = re.compile(r"\d+|\w+|[-+*(),]")


@dataclass
class Size:
    elements: list  # one C++ expression, or one a kind; `count(i)` is the Integer argument i
    used: str = ""  # the output that tells how many are written
    kind: str = ""  # the argument that picks one of several sizes


def size_of(text, counts):
    """The size that a description states; `counts` gives the positions of the Integer arguments."""
    match = SIZE.match(text)
    if not match:
        raise Unreadable("no `array of SIZE: ...`")
    sizes, used, kind = match.groups()
    elements = sizes.split(", ")
    if (len(elements) > 1) != bool(kind):
        raise Unreadable(f"{sizes}: several sizes belong to a kind")
    for name in filter(None, (used, kind)):
        if name not in counts:
            raise Unreadable(f"{name} is no Integer argument")
    return Size(
        [_Expression(size, counts).translate() for size in elements], used or "", kind or ""
    )


class _Expression:
    """sum = product {(+|-) product}, product = factor {* factor}."""

    def __init__(self, text, counts):
        self.text = text
        self.counts = counts
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
            return f"larger({left}, {right})"
        if token in self.counts:
            return f"count({self.counts[token]})"
        raise Unreadable(f"{self.text}: {token} is no Integer argument")


# --- values -----------------------------------------------------------------------------------

NUMBER = r"-?\d+"
BOUND = r"[\w+*-]+"
ITEM = re.compile(
    rf"(?:always )?(?:({NUMBER}) to ({NUMBER})|({BOUND}) to {BOUND}"
    rf"|({NUMBER}(?:, {NUMBER})*(?: or {NUMBER})?))(?=[\s,:]|$)"
    rf"|\w+ > ({NUMBER})\b|(unwritten)\b"
)


@dataclass
class Values:
    named: list  # ascending
    further: int = None  # the least of those that only the call's counts bound: a position


def _unlabelled(text):
    """`number of points: 0 none; 1 ...` without what stands before its first value."""
    return text if ITEM.match(text) else re.sub(r"^[^:;]*: (?=-?\d)", "", text)


def names_values(argument):
    """Whether an argument is a status: its name says so, or its description starts with a value."""
    if not argument.is_integer or argument.is_array or not argument.is_written:
        return False
    return argument.name in ("status", "code", "on") or bool(ITEM.match(_unlabelled(argument.text)))


def values_of(text):
    """The values of `VALUE meaning; VALUE meaning; ...`."""
    values = Values([])
    for item in _unlabelled(text).split("; "):
        match = ITEM.match(item)
        if not match:
            raise Unreadable(f"`{item}` starts with no value")
        first, last, bound, listed, below, _ = match.groups()
        if first:
            values.named += range(int(first), int(last) + 1)
        elif listed:
            values.named += [int(number) for number in re.findall(NUMBER, listed)]
        elif below:
            values.further = int(below) + 1
        elif bound and values.further is None:
            if not re.fullmatch(NUMBER, bound):
                raise Unreadable(f"`{item}`: no least value")
            values.further = int(bound)
    if not values.named:
        raise Unreadable("no value")
    values.named = sorted(set(values.named))
    return values


def least_of(text):
    """The least value that an Integer input may have: `number of samples, at least 2; ...`."""
    match = re.match(rf"[^:;]*\bat least ({NUMBER})\b", text)
    return int(match.group(1)) if match else None
