"""Writes what the Python binding takes from the interface headers: a function a routine."""

import builtins
import keyword

from bindings_text import comment_of, old_names, told, wrap

PACKAGE = "bindings/python/trelvin"
MOST_ARGUMENTS = 34  # that bindings/python/trelvin/_loop.c passes
WIDTH = 96


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


def outputs(interface):
    """The files, by their paths."""
    note = "# Generated from include/trelvin/calling.h by tools/generate.py.\n"
    return {
        f"{PACKAGE}/_routines.py": _module(interface),
        f"{PACKAGE}/_version.py": f'{note}__version__ = "{interface.version}"\n',
    }


def _module(interface):
    routines = [Routine(routine) for routine in interface.routines]
    old, aliases = {}, {}
    for name, new in (pair for pair in old_names() if "." in pair[0]):
        (title, member), (now, value) = name.split("."), new.split(".")
        old.setdefault(now, {})[member] = value
        aliases |= {title: now} if title != now else {}
    names = [enumeration.name for enumeration in interface.enumerations()]
    names += [*aliases, *(name for routine in routines for name in routine.names())]
    meanings = [line for routine in interface.routines for line in _meanings(routine)]
    return "\n".join(
        [HEAD]
        + ["__all__ = [", *_wrapped([f'"{name}"' for name in names], ","), "]"]
        + ["", "MEANINGS: dict[str, dict[str, dict[int, str]]] = {", *meanings, "}"]
        + [line for e in interface.enumerations() for line in _enumeration(e, old.get(e.name, {}))]
        + ["", "", "# Names of version 1.1, which the next version drops."]
        + [f"{title} = {now}" for title, now in aliases.items()]
        + [part for routine in routines for part in routine.parts()]
    )


def _meanings(routine):
    written = [a for a in routine.named_values() if a.is_written]
    if written:
        yield f'    "{routine.name}": {{'
        for argument in written:
            yield f'        "{argument.name}": {{'
            values = sorted(argument.values.values, key=lambda value: value.number)
            yield from (f"            {v.number}: {v.meaning!r}," for v in values)
            yield "        },"
        yield "    },"


def _enumeration(enumeration, old):
    yield from ("", "", f"class {enumeration.name}(IntEnum):")
    yield from _filled(f'"""{comment_of(enumeration)}"""', 4, 4)
    yield ""
    yield from (f"    {value.name.upper()} = {value.number}" for value in enumeration.values)
    yield from (f"    {member} = {now}  # of version 1.1" for member, now in old.items()
                if member != now)


def _wrapped(items, end, indent=4, width=WIDTH):
    """The items in lines, none of them broken."""
    text = f"{end} ".join(item.replace(" ", "\0") for item in items)
    return [line.replace("\0", " ") for line in _filled(text, indent, indent, width)]


def _filled(text, first, others, width=WIDTH):
    return wrap(text, first * " ", others * " ", width)


def _python_name(name):
    """With an underscore behind what is a word of Python, a built-in or a method of tuples."""
    taken = keyword.iskeyword(name) or hasattr(builtins, name) or hasattr(tuple, name)
    return f"{name}_" if taken else name


class Argument:
    def __init__(self, argument, named):
        self.name = named(argument.name)
        self.direction = argument.direction
        self.kind = {"integer": "int"}.get(argument.kind, argument.kind)
        self.text = told(argument)
        self.least = argument.least if argument.direction != "out" else None
        self.values = argument.values if argument.is_written else None
        self.open = bool(argument.values and (argument.values.ranges or argument.kept))
        self.lengths_of = []
        size = argument.size
        self.sizes = size.sizes if size else []
        self.by = size.kind if size else None
        self.used = named(size.used) if size and size.used and not size.used.isdigit() else None

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
        if self.is_array:
            return f"NDArray[{self.kind.replace('real', 'float')}32]"
        if self.values:
            return self.values.enumeration.name + " | int" * self.open
        return self.hint()


class Routine:
    def __init__(self, routine, named=_python_name):
        self.name = routine.name
        self.routine = routine
        self.arguments = [Argument(a, named) for a in routine.arguments]
        if len(self.arguments) > MOST_ARGUMENTS:
            raise ValueError(f"{self.name}: more than {MOST_ARGUMENTS} arguments")
        self.inputs = [a for a in self.arguments if a.direction != "out"]
        self.written = [a for a in self.arguments if a.direction != "in"]
        for count in self.inputs:
            if count.kind == "int" and not count.is_array:
                arrays = [a for a in self.inputs if a.is_array and a.is_as_long_as(count.name)]
                count.lengths_of = [a.name for a in arrays]

    def _title(self, end):
        return "".join(part.capitalize() for part in self.name.split("_")) + end

    def _result(self):
        return self._title("Result") if len(self.written) > 1 else None

    def names(self):
        yield self.name
        if self._result():
            yield self._result()

    def parts(self):
        yield "\n"
        if self._result():
            yield f"class {self._result()}(NamedTuple):"
            yield from (f"    {a.name}: {a.result_hint()}" for a in self.written)
            yield "\n"
        pieces = _wrapped([a.fact() for a in self.arguments], ";", 0, WIDTH - 8)
        yield f"_{self.name} = Routine("
        yield f'    "{self.name}", {self._result()},'
        yield from (f'    "{piece} "' for piece in pieces[:-1])
        named = [f"{a.name}={a.values.enumeration.name}" for a in self.written
                 if a.values and not a.is_array]
        yield f'    "{pieces[-1]}",' + ("\n    retains=True," if self.routine.retains else "")
        yield from _wrapped([f"values=dict({', '.join(named)})"], ",") if named else []
        yield ")\n\n"
        yield from self._function()

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
        routine = self.routine
        paragraphs = [*routine.paragraphs] + [f"Cost: {routine.cost}"] * bool(routine.cost)
        paragraphs.append(f"Retains: {routine.retains_text}.")
        yield from _filled(f'"""{paragraphs[0]}', 4, 4)
        for paragraph in paragraphs[1:]:
            yield ""
            if isinstance(paragraph, str):
                yield from _filled(paragraph, 4, 4)
            else:
                yield from (f"    {line}" for line in paragraph)
        for title, arguments in (("Arguments", self.inputs), ("Returns", self.written)):
            if arguments:
                yield f"\n    {title}:"
            while arguments:
                text = arguments[0].text
                alike = [a.name for a in arguments if a.text == text]
                arguments = [a for a in arguments if a.text != text]
                yield from _filled(f"{', '.join(alike)}: {text}", 6, 8)
        if any(a.kept for a in routine.arguments if a.direction == "out"):
            yield "\n    What is unwritten is NaN where it is a Real, 0 where it is an Integer."
        yield '    """'
