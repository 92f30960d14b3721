"""Writes the program of a task in each language."""

import re
from functools import partial

import bindings_text
import bindings_python
from calls import NAME

WIDTH = 82  # of a line, so that it fits beside the table of contents
LABEL = 17  # columns of a printed line: its label, then its values
VALUE = 12
DECIMAL = re.compile(r"\b\d+\.\d+\b")
ELEMENT = re.compile(r"(\w+)\[(\d+)\]")
SPARE = "element n+1 is overwritten"  # by which an array counts as not changed

wrap = partial(bindings_text.wrap, width=WIDTH)
wrap_list = partial(bindings_text.wrap_list, width=WIDTH)


class Language:
    """What languages have in common; each overrides what it writes otherwise."""

    name = suffix = lexer = ""
    comment = "// "
    indent = "  "
    head, between, tail = [], [], []
    declares_first = False  # all variables before the first call
    called = "{}(", ");"  # what is before and behind the arguments of a routine
    assignment = "{} = {};"
    declared = "{}", ";"  # what is before and behind the names of variables of a kind
    element_at, first = "{}[{}]", 0
    continuation = ""
    real_suffix = ""
    square_root = "sqrt"

    def program(self, task):
        body, declarations = [], []
        for i, step in enumerate(task.steps):
            lines = self.lines_of(task, step)
            if self.declares_first and self._belongs_to_declarations(task.steps, i):
                declarations += lines
            else:
                body += lines
            if self.declares_first and step.kind != "declare":
                declarations += self.appearing(step.new)
        lines = [*declarations, *self.between, *body]
        lines = [self.indent + line if line else "" for line in lines]
        return re.sub(r"\n{3,}", "\n\n", "\n".join([*self.head, *lines, *self.tail]) + "\n")

    @staticmethod
    def _belongs_to_declarations(steps, i):
        following = next((s for s in steps[i:] if s.kind != "comment"), steps[i])
        return following.kind == "declare" and steps[i].kind in ("declare", "comment")

    def lines_of(self, task, step):
        if step.kind == "comment":
            return wrap(step.text, self.comment)
        if step.kind == "declare":
            return self.declare(step.new)
        if step.kind == "let":
            return [self.let(step.new[0], self.expression(step.text))]
        if step.kind == "set":
            return [self.assign(self.element(step.label), self.expression(step.text))]
        if step.kind == "print":
            shown = self.show(step)
            return [shown] if isinstance(shown, str) else shown
        return self.call(task, step) if step.kind == "call" else [""]

    def assign(self, name, expression):
        return self.assignment.format(name, expression)

    def let(self, v, expression):
        return self.assign(v.name, expression)

    def call(self, task, step):
        first = [] if self.declares_first else self.appearing(step.new)
        passed = [self.passed(task.variables[name], argument)
                  for name, argument in zip(step.arguments, step.routine.arguments)]
        start, end = [part.format(step.routine.name) for part in self.called]
        return first + wrap_list(passed, start, " " * len(start), end, self.continuation)

    def passed(self, v, argument):
        return v.name

    def declare(self, variables):
        if variables[0].is_array:
            return self.array(variables[0])
        return list(self.singles(variables))

    def singles(self, variables):
        some = [f"{v.name} = {self.value(v)}" for v in variables]
        return self.declaration_of(variables[0].is_integer, some)

    def value(self, variable):
        return variable.values[0] + self.real_suffix * ("." in variable.values[0])

    def expression(self, text):
        text = DECIMAL.sub(lambda match: match.group() + self.real_suffix, text)
        return self.element(text.replace("sqrt", self.square_root))

    def element(self, text):
        return ELEMENT.sub(lambda m: self.element_at.format(
            m.group(1), int(m.group(2)) - 1 + self.first), text)

    def values(self, variable):
        values = variable.values + ["0"] * (variable.size - len(variable.values))
        return ", ".join(v + self.real_suffix * ("." in v) for v in values)

    def appearing(self, variables):
        lines = []
        for kind in (False, True):
            names = [v.name for v in variables if v.is_integer == kind]
            lines += self.declaration_of(kind, names) if names else []
        return lines

    def declaration_of(self, is_integer, names):
        start, end = self.declared
        return wrap_list(names, start.format(self.kinds[is_integer]), "    ", end, self.continuation)

    def label(self, step):
        return step.label.ljust(LABEL)

    @staticmethod
    def unit(step):
        return f" {step.unit}" if step.unit else ""


class C(Language):
    name, suffix, lexer = "C", "c", "c"
    head = ["#include <stdio.h>", "#include <trelvin/trelvin.h>", "", "int main(void) {"]
    tail = ["  return 0;", "}"]
    real_suffix = "f"
    square_root = "sqrtf"
    kinds = ("float", "int32_t")
    mathematics = "#include <math.h>\n#include <stdio"

    def program(self, task):
        text = super().program(task)
        behind = self.mathematics.split("\n")[1]
        return text.replace(behind, self.mathematics) if f"{self.square_root}(" in text else text

    def lines_of(self, task, step):
        if step.kind == "comment":
            lines = wrap(step.text, "   ")
            return ["/* " + lines[0].strip(), *lines[1:-1], lines[-1] + " */"] if lines[1:] else \
                [f"/* {step.text} */"]
        return super().lines_of(task, step)

    def singles(self, variables):
        for changed in (False, True):
            some = [f"{v.name} = {self.value(v)}" for v in variables if v.is_changed == changed]
            kind = "const " * (not changed) + self.kinds[variables[0].is_integer]
            yield from wrap_list(some, kind, "    ", ";") if some else []

    def array(self, v):
        kind = "const " * (not v.is_changed) + self.kinds[v.is_integer]
        values = ", ".join(x + "f" * ("." in x) for x in v.values)
        return [f"{kind} {v.name}[{v.size}]" + (f" = {{{values}}};" if v.values else ";")]

    def let(self, v, expression):
        return f"const float {v.name} = {expression};"

    def passed(self, v, argument):
        return v.name if v.is_array else f"&{v.name}"

    def show(self, step):
        form = f"%{VALUE}d" if step.decimals is None else f"%{VALUE}.{step.decimals}f"
        form = self.label(step) + form * len(step.values) + self.unit(step)
        values = ", ".join(self.element(value) for value in step.values)
        return f'printf("{form}\\n", {values});'


class Cpp(C):
    name, suffix, lexer = "C++", "cpp", "cpp"
    head = ["#include <trelvin/trelvin.h>", "#include <cstdio>", "", "int main() {"]
    tail = ["}"]
    comment = "// "
    square_root = "std::sqrt"
    mathematics = "#include <cmath>\n#include <cstdio"

    def lines_of(self, task, step):
        return wrap(step.text, "// ") if step.kind == "comment" else super().lines_of(task, step)

    def passed(self, v, argument):
        return v.name

    def show(self, step):
        return "std::" + super().show(step)


class Fortran(Language):
    name, suffix, lexer = "Fortran", "f90", "fortran"
    comment = "! "
    head = ["program task", "  use trelvin", "  implicit none"]
    between, tail = [""], ["end program"]
    declares_first = True
    called = "call {}(", ")"
    assignment = "{} = {}"
    declared = "{} ::", ""
    element_at, first = "{}({})", 1
    continuation = " &"
    kinds = ("real(c_float)", "integer(c_int32_t)")

    def array(self, v):
        kind = self.kinds[v.is_integer]
        start = f"{kind} :: {v.name}({v.size})"
        return [f"{start} = [{kind} :: {self.values(v)}]" if v.values else start]

    def show(self, step):
        form = f"i{VALUE}" if step.decimals is None else f"f{VALUE}.{step.decimals}"
        form = str(len(step.values)).strip("1") + form + ", a" * bool(step.unit)
        values = [f'"{step.label}"', *map(self.element, step.values)]
        values += [f'"{self.unit(step)}"'] if step.unit else []
        return f'print "(a, t{LABEL + 1}, {form})", ' + ", ".join(values)


class Pascal(Language):
    name, suffix, lexer = "Pascal", "pas", "pascal"
    head = ["program task;", "", "uses", "  trelvin;", "", "var"]
    between, tail = ["", "\x00begin"], ["end."]
    declares_first = True
    assignment = "{} := {};"
    square_root = "Sqrt"
    kinds = ("Single", "LongInt")

    def program(self, task):
        return super().program(task).replace("  \x00", "")

    def singles(self, variables):
        return [f"{v.name}: {self.kinds[v.is_integer]} = {self.value(v)};" for v in variables]

    def array(self, v):
        start = f"{v.name}: array[0..{v.size - 1}] of {self.kinds[v.is_integer]}"
        return [f"{start} = ({self.values(v)});" if v.values else f"{start};"]

    def declaration_of(self, is_integer, names):
        return wrap_list(names, "", "  ", f": {self.kinds[is_integer]};")

    def passed(self, v, argument):
        return f"{v.name}[0]" if v.is_array else v.name

    def show(self, step):
        form = f":{VALUE}" if step.decimals is None else f":{VALUE}:{step.decimals}"
        values = [f"'{self.label(step)}'", *(self.element(v) + form for v in step.values)]
        values += [f"'{self.unit(step)}'"] if step.unit else []
        return f"WriteLn({', '.join(values)});"


class CSharp(Language):
    name, suffix, lexer = "C#", "cs", "csharp"
    head = ["using System;", "using Trelvin;", "", "static class Program", "{",
            "    static void Main()", "    {"]
    tail = ["    }", "}"]
    indent = " " * 8
    called = "Native.{}(", ");"
    real_suffix = "f"
    square_root = "(float)Math.Sqrt"
    kinds = ("float", "int")

    def array(self, v):
        kind = self.kinds[v.is_integer]
        values = f"{{ {self.values(v)} }}" if v.values else f"new {kind}[{v.size}]"
        return [f"{kind}[] {v.name} = {values};"]

    def let(self, v, expression):
        return f"float {v.name} = {expression};"

    def passed(self, v, argument):
        way = {"in": "", "out": "out ", "inout": "ref "}[argument.direction]
        return v.name if v.is_array else way + v.name

    def show(self, step):
        number = "" if step.decimals is None else f":F{step.decimals}"
        form = "".join(f"{{{i},{VALUE}{number}}}" for i in range(len(step.values)))
        cast = "" if step.decimals is None else "(double)"
        values = [cast + self.element(value) for value in step.values]
        text = f'"{self.label(step)}{form}{self.unit(step)}"'
        return wrap_list([text, *values], "Console.WriteLine(", "    ", ");")


class Basic(Language):
    name, suffix, lexer = "Basic", "bas", "vbnet"
    comment = "' "
    head, tail = ["Public Sub Task()"], ["End Sub"]
    indent = "    "
    called = "{}", ""
    assignment = "{} = {}"
    declared = "Dim", ""
    element_at, first = "{}({})", 1
    continuation = " _"
    square_root = "Sqr"
    kinds = ("Single", "Long")

    def singles(self, variables):
        yield from self.appearing(variables)
        yield ": ".join(f"{v.name} = {self.value(v)}" for v in variables)

    def array(self, v):
        kind = self.kinds[v.is_integer]
        values = [f"{v.name}({i}) = {value}" for i, value in enumerate(v.values, 1)]
        lines = [f"Dim {v.name}(1 To {v.size}) As {kind}"]
        return lines + [": ".join(values[i : i + 6]) for i in range(0, len(values), 6)]

    def declaration_of(self, is_integer, names):
        names = [f"{name} As {self.kinds[is_integer]}" for name in names]
        return super().declaration_of(is_integer, names)

    def let(self, v, expression):
        return f"Dim {v.name} As Single: {v.name} = {expression}"

    def passed(self, v, argument):
        return f"{v.name}(1)" if v.is_array else v.name

    def show(self, step):
        form = "0" if step.decimals is None else f"0.{'0' * step.decimals}".rstrip(".")
        values = [f'Format$({self.element(value)}, "{form}")' for value in step.values]
        lines = [f'Debug.Print "{self.label(step)}" & {values[0]}']
        lines += [f'    "  " & {value}' for value in values[1:]]
        lines[-1] += f' & "{self.unit(step)}"' if step.unit else ""
        return [line + " & _" for line in lines[:-1]] + lines[-1:]


class Returning(Language):
    """What languages have in common whose functions return what a routine writes.

    Numbers of elements that the arrays tell are not passed, and not declared where nothing else
    reads them.
    """

    indent = ""
    function_of = staticmethod(bindings_python.Routine)  # a routine

    def facts(self, step):
        """The function that is called, and by its arguments' names the variables."""
        function = self.function_of(step.routine)
        return function, dict(zip([a.name for a in function.arguments], step.arguments))

    def inputs(self, task, step):
        """The variables that are passed by their place, and those that are by a name."""
        function, names = self.facts(step)
        positional = [names[a.name] for a in function.inputs if not a.lengths_of]
        return positional, {a.name: names[a.name] for a in function.inputs
                            if a.lengths_of and not self._told(task, names, a.name)}

    def targets(self, task, step):
        """Of what is returned, what a later step reads: its name there, and the variable."""
        function, names = self.facts(step)
        spare = [a.is_array and SPARE in a.text for a in step.routine.arguments]
        return {a.name: names[a.name] for a, is_spare in zip(function.arguments, spare)
                if a.direction != "in" and task.is_used_behind(names[a.name], step)
                and not is_spare}

    @staticmethod
    def _told(task, names, count):
        """Whether the arrays are as long as the count, so that it need not be passed."""
        value = task.variables[names[count]].values
        arrays = [task.variables[name] for name in names.values() if task.variables[name].is_array]
        lengths = {len(a.values) for a in arrays if a.values}
        return not lengths or value and lengths == {int(value[0])}

    def lines_of(self, task, step):
        if step.kind != "declare":
            return super().lines_of(task, step)
        read = [v for v in step.new if any(v.name in self._read_by(task, s) for s in task.steps)]
        return self.declaration(task, read) if read else []

    def _read_by(self, task, step):
        if step.kind == "call":
            positional, counts = self.inputs(task, step)
            return [*positional, *counts.values()]
        texts = [] if step.kind == "comment" else [step.text, *step.values]
        texts += [step.label] if step.kind == "set" else []
        return [name for text in texts for name in NAME.findall(text)]

    def array(self, v):
        return [self.let(v, f"[{', '.join(v.values)}]")] if v.values else []

    def appearing(self, variables):
        return []


class Python(Returning):
    name, suffix, lexer = "Python", "py", "python"
    comment = "# "
    assignment = "{} = {}"

    def program(self, task):
        text = super().program(task)
        root = "from math import sqrt\n\n" if "sqrt(" in text else ""
        return f"{root}import trelvin\n\n{text}".replace("\n\n\n", "\n\n")

    def declaration(self, task, variables):
        return self.declare(variables)

    def singles(self, variables):
        return [f"{v.name} = {self.value(v)}" for v in variables]

    def call(self, task, step):
        function, names = self.facts(step)
        passed, counts = self.inputs(task, step)
        passed += [f"{count}={name}" for count, name in counts.items()]
        wanted = self.targets(task, step)
        fields = [a.name for a in function.written]
        start = f"trelvin.{function.name}("
        if len(fields) == 1:
            return self._lines(f"{names[fields[0]]} = {start}", passed, ")")
        if len(wanted) == 1:
            [(field, target)] = wanted.items()
            return self._lines(f"{target} = {start}", passed, f").{field}")
        if len(fields) - len(wanted) > 3:
            values = [f"result.{f}" for f in wanted]
            return self._lines(f"result = {start}", passed, ")") + \
                wrap_list(values, f"{', '.join(wanted.values())} = (", "    ", ")")
        targets = [wanted.get(f, "_") for f in fields]
        return self._lines(f"{', '.join(targets)} = {start}", passed, ")")

    @staticmethod
    def _lines(start, passed, end):
        return wrap_list(passed, start, "    ", end)

    def show(self, step):
        form = f"{VALUE}" if step.decimals is None else f"{VALUE}.{step.decimals}f"
        values = "".join(f"{{{self.element(value)}:{form}}}" for value in step.values)
        return f'print(f"{self.label(step)}{values}{self.unit(step)}")'


class JavaScript(Returning):
    name, suffix, lexer = "JavaScript", "mjs", "javascript"
    head = ['import * as trelvin from "trelvin";', ""]
    square_root = "Math.sqrt"
    function_of = staticmethod(partial(bindings_python.Routine, named=str))

    def declaration(self, task, variables):
        if variables[0].is_array:
            word = self._word(task, [variables[0].name])
            return [f"{word} {line}" for line in self.array(variables[0])]
        lines = []
        for word in ("const", "let"):
            some = [f"{v.name} = {self.value(v)}" for v in variables
                    if self._word(task, [v.name]) == word]
            lines += wrap_list(some, word, "  ", ";") if some else []
        return lines

    def lines_of(self, task, step):
        lines = super().lines_of(task, step)
        word = self._word(task, [step.new[0].name]) if step.kind == "let" else ""
        return [f"{word} {lines[0]}"] if word else lines

    def _binding(self, task, name):
        """The steps that bind a variable: the first declares it, others assign to it."""
        v = task.variables[name]
        return [s for s in task.steps if s.kind == "let" and v in s.new
                or s.kind == "declare" and v in s.new and v.values
                or s.kind == "call" and name in self.targets(task, s).values()]

    def _word(self, task, names):
        return "const" if all(len(self._binding(task, name)) == 1 for name in names) else "let"

    def call(self, task, step):
        passed, counts = self.inputs(task, step)
        passed += [f"{{ {', '.join(map(self._pair, counts.items()))} }}"] if counts else []
        targets = self.targets(task, step)
        start, end = f"trelvin.{step.routine.name}(", ");"
        if not targets:
            return wrap_list(passed, start, "  ", end)
        names = list(targets.values())
        new = [name for name in names if self._binding(task, name)[0] is step]
        lines = [f"let {', '.join(new)};"] if new and new != names else []
        word = f"{self._word(task, names)} " if new == names else ""
        [(field, target), *others] = targets.items()
        if not others and (not word or field != target):
            return wrap_list(passed, f"{word}{target} = {start}", "  ", f").{field};")
        opened, end = (f"{word}{{", end) if word else ("({", "));")
        lines += wrap_list(list(map(self._pair, targets.items())), opened, "  ", f" }} = {start}")
        return lines[:-1] + wrap_list(passed, lines[-1], "  ", end)

    @staticmethod
    def _pair(item):
        return item[0] if item[0] == item[1] else ": ".join(item)

    def show(self, step):
        values = [self.element(value) for value in step.values]  # joined by a blank
        values = [f"String({v})" if step.decimals is None else f"{v}.toFixed({step.decimals})"
                  for v in values]
        pieces = [f'"{self.label(step)}"', *[f"{v}.padStart({VALUE - 1})" for v in values]]
        pieces += [f'"{step.unit}"'] if step.unit else []
        return wrap_list(pieces, "console.log(", "  ", ");")


ALL = [C(), Cpp(), Python(), JavaScript(), Fortran(), Pascal(), CSharp(), Basic()]
