"""Writes what the Python binding takes from the interface headers: a function a routine."""

import builtins
import keyword
import re
import textwrap

import contracts
import headers

PACKAGE = "bindings/python/trelvin"
MOST_ARGUMENTS = 34  # that bindings/python/trelvin/_loop.c passes
WIDTH = 96

CONTRACT = re.compile(r"/\*\*((?:(?!\*/).)*)\*/\s*TRELVIN_ROUTINE\s+(\w+)", re.S)
# Of an array that shrinks, beside `n used`.
BEYOND = re.compile(r"unspecified (?:beyond (?:the new )?|from )(\w+)")

HEAD = '''\
"""The routines. Generated from include/trelvin by tools/generate.py."""

from __future__ import annotations

from enum import IntEnum
from typing import TYPE_CHECKING, Callable, NamedTuple

from ._call import Routine

if TYPE_CHECKING:
    from numpy import float32, int32
    from numpy.typing import ArrayLike, NDArray

_NAN = float("nan")
'''


def outputs(families=None):
    """The files, by their paths."""
    version = re.search(r'TRELVIN_VERSION "(.*)"', (headers.INTERFACE / "calling.h").read_text())
    note = "# Generated from include/trelvin/calling.h by tools/generate.py.\n"
    return {
        f"{PACKAGE}/_routines.py": _module(families or headers.read_all()),
        f"{PACKAGE}/_version.py": f'{note}__version__ = "{version.group(1)}"\n',
    }


def _module(families):
    texts = {}
    for family in families:
        for comment, name in CONTRACT.findall((headers.ROOT / family.header).read_text()):
            texts[name] = "\n".join(re.sub(r"^\s*\* ?", "", line) for line in comment.splitlines())
    routines = []
    for routine in headers.routines_of(families):
        try:
            routines.append(Routine(routine, texts[routine.name]))
        except contracts.Unreadable:
            pass  # headers.inexact tells of it
    names = [name for routine in routines for name in routine.names()]
    meanings = [line for routine in routines for line in routine.meanings()]
    return "\n".join(
        [HEAD]
        + ["__all__ = [", *_wrapped([f'"{name}"' for name in names], ","), "]"]
        + ["", "MEANINGS: dict[str, dict[str, dict[int, str]]] = {", *meanings, "}"]
        + [part for routine in routines for part in routine.parts()]
    )


def _wrapped(items, end, indent=4, width=WIDTH):
    """The items in lines, none of them broken."""
    text = f"{end} ".join(item.replace(" ", "\0") for item in items)
    return [line.replace("\0", " ") for line in _filled(text, indent, indent, width)]


def _filled(text, first, others, width=WIDTH):
    return textwrap.wrap(text, width, initial_indent=first * " ", subsequent_indent=others * " ",
                         break_long_words=False, break_on_hyphens=False)  # fmt: skip


def _python_name(name):
    """With an underscore behind what is a word of Python, a built-in or a method of tuples."""
    taken = keyword.iskeyword(name) or hasattr(builtins, name) or hasattr(tuple, name)
    return f"{name}_" if taken else name


class Argument:
    def __init__(self, argument, counts, named):
        self.name = named(argument.name)
        self.direction = headers.TYPES[argument.type][2]
        self.kind = "int" if argument.is_integer else "real"
        if argument.type == "TrvFunctionIn":
            self.kind = "function"
        self.text = argument.text
        self.least = None
        self.lengths_of = []
        self.sizes = []
        if argument.is_array:
            contracts.size_of(argument.text, counts)  # for its complaints
            sizes, used, self.by = contracts.SIZE.match(argument.text).groups()
            self.sizes = sizes.split(", ")
            beyond = BEYOND.search(argument.text)
            used = used or (beyond.group(1) if beyond else None)
            self.used = named(used) if used else None
        elif argument.is_integer and self.direction != "out":
            self.least = contracts.least_of(argument.text)

    @property
    def is_array(self):
        return bool(self.sizes)

    def is_as_long_as(self, count):
        """An array that changes may have room behind its own elements."""
        room = (f"{count}+",) if self.direction == "inout" else ()
        return any(size == count or size.startswith(room) for size in self.sizes)

    def fact(self):
        """As bindings/python/trelvin/_call.py reads it."""
        text = f"{self.direction} {self.kind} {self.name}"
        if self.is_array:
            how = f", {self.used} used" if self.used else ""
            how = how or (f" by {self.by}" if self.by else "")
            text += f"[{', '.join(self.sizes)}{how}]"
        text += f" >= {self.least}" if self.least is not None else ""
        return text + (f" = {' '.join(self.lengths_of)}" if self.lengths_of else "")

    def hint(self):
        number = {"int": "int", "real": "float"}.get(self.kind)
        if self.kind == "function":
            return "Callable[[int], float]"
        return "ArrayLike" if self.is_array else number

    def result_hint(self):
        return f"NDArray[{self.kind.replace('real', 'float')}32]" if self.is_array else self.hint()


class Routine:
    def __init__(self, routine, text="", named=_python_name):
        self.name = routine.name
        self.text = text
        self.retains = routine.retains != "nothing."
        counts = routine.counts()
        self.arguments = [Argument(a, counts, named) for a in routine.arguments]
        if len(self.arguments) > MOST_ARGUMENTS:
            raise contracts.Unreadable(f"more than {MOST_ARGUMENTS} arguments")
        self.inputs = [a for a in self.arguments if a.direction != "out"]
        self.written = [a for a in self.arguments if a.direction != "in"]
        for count in self.inputs:
            if count.kind == "int" and not count.is_array:
                arrays = [a for a in self.inputs if a.is_array and a.is_as_long_as(count.name)]
                count.lengths_of = [a.name for a in arrays]
        self.statuses = {
            a.name: _meanings_of(a.text) for a in routine.arguments if contracts.names_values(a)
        }

    def _title(self, end):
        return "".join(part.capitalize() for part in self.name.split("_")) + end

    def _result(self):
        return self._title("Result") if len(self.written) > 1 else None

    def names(self):
        yield self.name
        if self._result():
            yield self._result()
        yield from (title for title, _ in self._constants())

    def meanings(self):
        if self.statuses:
            yield f'    "{self.name}": {{'
            for name, meanings in self.statuses.items():
                yield f'        "{name}": {{'
                yield from (f"            {value}: {text!r}," for value, text in meanings.items())
                yield "        },"
            yield "    },"

    def parts(self):
        yield "\n"
        for title, members in self._constants():
            yield f"class {title}(IntEnum):"
            yield from (f"    {member} = {value}" for value, member in members.items())
            yield "\n"
        if self._result():
            yield f"class {self._result()}(NamedTuple):"
            yield from (f"    {a.name}: {a.result_hint()}" for a in self.written)
            yield "\n"
        pieces = _wrapped([a.fact() for a in self.arguments], ";", 0, WIDTH - 8)
        yield f"_{self.name} = Routine("
        yield f'    "{self.name}", {self._result()},'
        yield from (f'    "{piece} "' for piece in pieces[:-1])
        yield f'    "{pieces[-1]}",' + ("\n    retains=True," if self.retains else "")
        yield ")\n\n"
        yield from self._function()

    def _constants(self):
        """The values of statuses whose meaning makes a name."""
        for argument, meanings in self.statuses.items():
            named = {value: _constant(text) for value, text in meanings.items()}
            named = {value: name for value, name in named.items() if name}
            if named and len(set(named.values())) == len(named):
                yield self._title(argument.capitalize()), named

    def _function(self):
        free = [a for a in self.inputs if not a.lengths_of]
        optional = [f"{a.name}: int | None = None" for a in self.inputs if a.lengths_of]
        changes = any(a.is_array and a.direction == "inout" for a in self.written)
        optional += ["in_place: bool = False"] if changes else []
        parameters = [f"{a.name}: {a.hint()}" for a in free]
        parameters += ["*", *optional] if optional else []
        result = self._result() or self.written[0].result_hint()
        yield f"def {self.name}("
        yield from _wrapped(parameters, ",")
        yield f") -> {result}:"
        yield from self._docstring()
        if any(a.is_array or a.kind == "function" for a in self.arguments):
            values = ", ".join(a.name for a in self.inputs) + ("," if len(self.inputs) == 1 else "")
            call = f"_{self.name}.call(({values}){', in_place' if changes else ''})"
        else:
            cells = [a.name for a in self.inputs if a.direction == "in"]
            start = {"int": "0", "real": "_NAN"}
            cells += [a.name if a.direction == "inout" else start[a.kind] for a in self.written]
            call = f"_{self.name}.cells({', '.join(cells)})"
        yield from _filled(f"return {call}", 4, 8)

    def _docstring(self):
        description, _, _ = self.text.partition("\n@param")
        lines = description.strip().split("\n")
        yield f'    """{lines[0]}'
        yield from (f"    {line}".rstrip() for line in lines[1:])
        for title, arguments in (("Arguments", self.inputs), ("Returns", self.written)):
            if arguments:
                yield f"\n    {title}:"
            while arguments:
                text = arguments[0].text
                alike = [a.name for a in arguments if a.text == text]
                arguments = [a for a in arguments if a.text != text]
                yield from _filled(f"{', '.join(alike)}: {text}", 6, 8)
        if "unwritten" in self.text:
            yield "\n    What is unwritten is NaN where it is a Real, 0 where it is an Integer."
        yield '    """'


def _meanings_of(text):
    """Value: meaning. Ranges, and values that share a meaning, have it each."""
    meanings = {}
    for item in text.split("; "):
        match = contracts.ITEM.match(item)
        if match:
            first, last, _, listed, _, _ = match.groups()
            always = item.startswith("always")
            meaning = "always" if always else item[match.end() :].strip(" ,:")
            if first:
                values = range(int(first), int(last) + 1)
            else:
                values = map(int, re.findall(contracts.NUMBER, listed or ""))
            meanings |= {value: meaning for value in values}
    return dict(sorted(meanings.items()))


def _constant(meaning):
    """DONE of `done, also for parallel lines`; None where a meaning is no name."""
    if "but also" in meaning:
        return None
    name = re.sub(r"\s*\([^()]*\)$", "", meaning.partition(":")[0])
    name = re.sub(r"^(done|refused|ordered)\b.*", r"\1", name).removeprefix("the ")
    plain = re.fullmatch(r"[A-Za-z][\w -]*", name) and " or " not in f" {name} "
    if not plain or name.split()[0] in ("always", "it", "otherwise") or len(name.split()) > 8:
        return None
    return re.sub(r"\W+", "_", name).upper()
