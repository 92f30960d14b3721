"""The calls of a task: a few lines from which the program in every language is written.

    # The outline, counter-clockwise. The fifth element is spare.
    reals x[5] = 0 400 400 0
    int n = 4
    real width = 400, height = 600

    trvapl x y n area
    let half = area / 2
    set x[1] = half + 1
    print half the area: half .1 mm2

A call names its arguments in the order of the contract. Single outputs need no declaration; arrays
and what a routine also reads do. A print takes Reals with the number of their decimals and their
unit, or Integers without.
"""

import re
from dataclasses import dataclass, field

import model

SINGLES = re.compile(r"(real|int) (\w+ = [^,]+(?:, \w+ = [^,]+)*)$")
ARRAY = re.compile(r"(reals|ints) (\w+)\[(\d+)\](?: = (.+))?$")
LET = re.compile(r"let (\w+) = (.+)$")
SET = re.compile(r"set (\w+)(\[\d+\]) = (.+)$")
PRINT = re.compile(r"print ([^:]+): ([^.]+?)(?: \.([1-9])(?: (.+))?)?$")
NAME = re.compile(r"[A-Za-z_]\w*")
WORDS_OF_LANGUAGES = set(  # that a variable may not be called in one of them
    "and arguments array as await begin break case catch class const continue debugger default "
    "delete dim div do double else end enum eval export extends false finally float for function "
    "goto if implements import in instanceof integer interface is left len let long loop mod new "
    "next not null of on or out package params private program protected public real record ref "
    "return right single static step string sub super switch then this throw to true try type "
    "typeof unit until uses var void while with yield".split()
)


class Faulty(ValueError):
    """A line that is no call, or does not fit the routine's contract."""


@dataclass
class Variable:
    name: str
    is_integer: bool
    size: int = 0  # of an array
    values: list = None
    is_changed: bool = False  # by a call

    @property
    def is_array(self):
        return self.size > 0


@dataclass
class Step:
    kind: str  # comment, blank, declare, call, let, set, print
    text: str = ""
    new: list = field(default_factory=list)  # variables that appear with it
    routine: model.Routine = None
    arguments: list = field(default_factory=list)
    label: str = ""
    values: list = field(default_factory=list)
    decimals: int = None
    unit: str = ""


@dataclass
class Task:
    name: str
    steps: list
    variables: dict

    @property
    def routines(self):
        """The routines called, each once."""
        return list(dict.fromkeys(s.routine.name for s in self.steps if s.kind == "call"))

    def is_used_behind(self, name, step):
        """Whether a later step reads a variable."""
        later = self.steps[self.steps.index(step) + 1 :]
        texts = [text for s in later for text in [s.text, *s.values, *s.arguments]
                 if s.kind != "comment"]
        return any(name in NAME.findall(text) for text in texts)


class _Reader:
    def __init__(self, name, routines):
        self.task = Task(name, [], {})
        self.routines = routines

    def read(self, line):
        singles, array, let = SINGLES.match(line), ARRAY.match(line), LET.match(line)
        if not line:
            return Step("blank")
        if line.startswith("# "):
            return Step("comment", line[2:])
        if singles:
            pairs = [pair.split(" = ") for pair in singles.group(2).split(", ")]
            is_integer = singles.group(1) == "int"
            return self._declare([Variable(name, is_integer, values=[v]) for name, v in pairs])
        if array:
            kind, name, size, values = array.groups()
            values = (values or "").split()
            return self._declare([Variable(name, kind == "ints", int(size), values)])
        if let:
            name, text = let.groups()
            for used in set(NAME.findall(text)) - {"sqrt"}:
                self._known(used)
            return Step("let", text, new=[self._add(Variable(name, False))])
        if line.startswith("set "):
            name, place, text = SET.match(line).groups()
            self._known(name).is_changed = True
            return Step("set", text, label=name + place)
        if line.startswith("print "):
            return self._print(*PRINT.match(line).groups())
        return self._call(line.split())

    def _add(self, variable):
        taken = {name.lower() for name in self.task.variables} | WORDS_OF_LANGUAGES
        if variable.name.lower() in taken:
            raise Faulty(f"{variable.name} is taken, in some language that knows no capitals")
        self.task.variables[variable.name] = variable
        return variable

    def _declare(self, variables):
        return Step("declare", new=[self._add(variable) for variable in variables])

    def _known(self, name):
        if name not in self.task.variables:
            raise Faulty(f"{name} is not known")
        return self.task.variables[name]

    def _call(self, words):
        routine = self.routines.get(words[0])
        if not routine:
            raise Faulty(f"{words[0]} is no routine")
        if len(words) - 1 != len(routine.arguments):
            raise Faulty(f"{routine.name} takes {len(routine.arguments)} arguments")
        step = Step("call", routine=routine, arguments=words[1:])
        for name, argument in zip(words[1:], routine.arguments):
            is_single_output = argument.direction == "out" and not argument.is_array
            if name not in self.task.variables and is_single_output:
                step.new.append(self._add(Variable(name, argument.is_integer)))
            variable = self._known(name)
            if (variable.is_array, variable.is_integer) != (argument.is_array, argument.is_integer):
                raise Faulty(f"{name} is of another type than {routine.name} takes")
            variable.is_changed |= argument.is_written
        return step

    def _print(self, label, values, decimals, unit):
        values = values.split()
        for value in values:
            if self._known(NAME.match(value).group()).is_integer != (decimals is None):
                raise Faulty(f"{value}: Reals are printed with decimals, Integers without")
        return Step("print", label=label, values=values, unit=unit or "",
                    decimals=None if decimals is None else int(decimals))


def read(path, routines):
    """The task in a file; `routines` are those of the headers by their names."""
    reader = _Reader(path.stem, routines)
    for number, line in enumerate(path.read_text().splitlines(), 1):
        try:
            step = reader.read(line.strip())
        except (Faulty, IndexError, AttributeError) as fault:
            raise Faulty(f"{path.name}:{number}: {fault}") from fault
        last = reader.task.steps[-1:]
        if step.kind == "comment" and last and last[0].kind == "comment":
            last[0].text += " " + step.text
        else:
            reader.task.steps.append(step)
    return reader.task
