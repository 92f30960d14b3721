"""Writes the program of a task in each language."""

import ast
import re
from functools import lru_cache

import bindings_facts
import headers

WIDTH = 82  # of a line, so that it fits beside the table of contents
LABEL = 17  # columns of a printed line: its label, then its values
VALUE = 12
DECIMAL = re.compile(r"\b\d+\.\d+\b")
ELEMENT = re.compile(r"(\w+)\[(\d+)\]")
SPARE = "element n+1 is overwritten"  # by which an array counts as not changed


def wrap(text, first):
    return bindings_facts.wrap(text, first, width=WIDTH)


def wrap_list(items, first, following, end, continuation=""):
    return bindings_facts.wrap_list(items, first, following, end, continuation, WIDTH)


class Language:
    """What languages have in common; each overrides what it writes otherwise."""

    name = suffix = lexer = ""
    comment = "// "
    indent = "  "
    head, between, tail = [], [], []
    declares_first = False  # all variables before the first call
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
        lines = [*self.start(task), *declarations, *self.between, *body]
        lines = [self.indent + line if line else "" for line in lines]
        return re.sub(r"\n{3,}", "\n\n", "\n".join([*self.head, *lines, *self.tail]) + "\n")

    def start(self, task):
        return []

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
        return f"{name} = {expression};"

    def call(self, task, step):
        first = [] if self.declares_first else self.appearing(step.new)
        passed = [self.passed(task.variables[name], argument)
                  for name, argument in zip(step.arguments, step.routine.arguments)]
        start, end = self.parentheses(step.routine.name)
        return first + wrap_list(passed, start, " " * len(start), end, self.continuation)

    def parentheses(self, name):
        return f"{name}(", ");"

    def declare(self, variables):
        if variables[0].is_array:
            return self.array(variables[0])
        return list(self.singles(variables))

    def value(self, variable):
        return variable.values[0] + self.real_suffix * ("." in variable.values[0])

    def expression(self, text):
        text = DECIMAL.sub(lambda match: match.group() + self.real_suffix, text)
        return self.element(text.replace("sqrt", self.square_root))

    def element(self, text):
        return ELEMENT.sub(lambda m: f"{m.group(1)}[{int(m.group(2)) - 1}]", text)

    def values(self, variable):
        values = variable.values + ["0"] * (variable.size - len(variable.values))
        return ", ".join(v + self.real_suffix * ("." in v) for v in values)

    def appearing(self, variables):
        lines = []
        for kind in (False, True):
            names = [v.name for v in variables if v.is_integer == kind]
            lines += self.declaration_of(kind, names) if names else []
        return lines

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

    def program(self, task):
        text = super().program(task)
        return text.replace("#include <stdio", "#include <math.h>\n#include <stdio") \
            if "sqrtf" in text else text

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

    def declaration_of(self, is_integer, names):
        return wrap_list(names, self.kinds[is_integer], "    ", ";")

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

    def program(self, task):
        text = super().program(task)
        return text.replace("#include <cstdio", "#include <cmath>\n#include <cstdio") \
            if "std::sqrt" in text else text

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
    continuation = " &"
    kinds = ("real(c_float)", "integer(c_int32_t)")

    def parentheses(self, name):
        return f"call {name}(", ")"

    def singles(self, variables):
        some = [f"{v.name} = {self.value(v)}" for v in variables]
        return wrap_list(some, f"{self.kinds[variables[0].is_integer]} ::", "    ", "", " &")

    def array(self, v):
        kind = self.kinds[v.is_integer]
        start = f"{kind} :: {v.name}({v.size})"
        return [f"{start} = [{kind} :: {self.values(v)}]" if v.values else start]

    def declaration_of(self, is_integer, names):
        return wrap_list(names, f"{self.kinds[is_integer]} ::", "    ", "", " &")

    def assign(self, name, expression):
        return f"{name} = {expression}"

    def let(self, v, expression):
        return self.assign(v.name, expression)

    def element(self, text):
        return ELEMENT.sub(r"\1(\2)", text)

    def passed(self, v, argument):
        return v.name

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

    def assign(self, name, expression):
        return f"{name} := {expression};"

    def let(self, v, expression):
        return self.assign(v.name, expression)

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
    real_suffix = "f"
    square_root = "(float)Math.Sqrt"
    kinds = ("float", "int")

    def parentheses(self, name):
        return f"Native.{name}(", ");"

    def singles(self, variables):
        some = [f"{v.name} = {self.value(v)}" for v in variables]
        return wrap_list(some, self.kinds[variables[0].is_integer], "    ", ";")

    def array(self, v):
        kind = self.kinds[v.is_integer]
        values = f"{{ {self.values(v)} }}" if v.values else f"new {kind}[{v.size}]"
        return [f"{kind}[] {v.name} = {values};"]

    def declaration_of(self, is_integer, names):
        return wrap_list(names, self.kinds[is_integer], "    ", ";")

    def let(self, v, expression):
        return f"float {v.name} = {expression};"

    def passed(self, v, argument):
        way = {"in": "", "out": "out ", "inout": "ref "}[headers.TYPES[argument.type][2]]
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
    continuation = " _"
    square_root = "Sqr"
    kinds = ("Single", "Long")

    def parentheses(self, name):
        return f"{name}", ""

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
        return wrap_list(names, "Dim", "    ", "", " _")

    def let(self, v, expression):
        return f"Dim {v.name} As Single: {v.name} = {expression}"

    def assign(self, name, expression):
        return f"{name} = {expression}"

    def element(self, text):
        return ELEMENT.sub(r"\1(\2)", text)

    def passed(self, v, argument):
        return f"{v.name}(1)" if v.is_array else v.name

    def show(self, step):
        form = "0" if step.decimals is None else f"0.{'0' * step.decimals}".rstrip(".")
        values = [f'Format$({self.element(value)}, "{form}")' for value in step.values]
        lines = [f'Debug.Print "{self.label(step)}" & {values[0]}']
        lines += [f'    "  " & {value}' for value in values[1:]]
        lines[-1] += f' & "{self.unit(step)}"' if step.unit else ""
        return [line + " & _" for line in lines[:-1]] + lines[-1:]


@lru_cache(maxsize=None)
def _python_routines():
    """Of every function of the package: parameters, optional ones, fields of its result."""
    source = headers.ROOT / "bindings/python/trelvin/_routines.py"
    fields, functions = {}, {}
    for node in ast.parse(source.read_text()).body:
        if isinstance(node, ast.ClassDef):
            fields[node.name] = [s.target.id for s in node.body if isinstance(s, ast.AnnAssign)]
        if isinstance(node, ast.FunctionDef):
            result = fields.get(node.returns.id, []) if isinstance(node.returns, ast.Name) else []
            optional = [a.arg for a in node.args.kwonlyargs]
            functions[node.name] = [a.arg for a in node.args.args], optional, result
    return functions


class Python(Language):
    name, suffix, lexer = "Python", "py", "python"
    comment = "# "
    indent = ""

    def program(self, task):
        text = super().program(task)
        for v in task.variables.values():  # counts that the arrays tell are not needed
            code = re.sub(r"#.*|(?<=print\(f)\"[^{]*", "", text)
            used = len(re.findall(rf"\b{v.name}\b", code))
            if used == 1 and v.is_declared and v.values:
                text = re.sub(rf"^{v.name} = .*\n", "", text, flags=re.M)
        root = "from math import sqrt\n\n" if "sqrt(" in text else ""
        return f"{root}import trelvin\n\n{text}".replace("\n\n\n", "\n\n")

    def singles(self, variables):
        return [f"{v.name} = {self.value(v)}" for v in variables]

    def array(self, v):
        return [f"{v.name} = [{', '.join(v.values)}]"] if v.values else []

    def appearing(self, variables):
        return []

    def assign(self, name, expression):
        return f"{name} = {expression}"

    def let(self, v, expression):
        return self.assign(v.name, expression)

    def call(self, task, step):
        positional, optional, fields = _python_routines()[step.routine.name]
        names = dict(zip([a.name for a in step.routine.arguments], step.arguments))
        passed = [names[p.rstrip("_")] for p in positional]
        counts = [p for p in optional if p in names and not self._told(task, names, p)]
        passed += [f"{count}={names[count]}" for count in counts]
        wanted = [f for f in fields if self._wanted(task, step, f.rstrip("_"), names)]
        start = f"trelvin.{step.routine.name}("
        if not fields:
            outputs = [names[a.name] for a in step.routine.arguments if a.is_written]
            return self._lines(f"{outputs[0]} = {start}", passed, ")")
        targets = [names[f.rstrip("_")] if f in wanted else "_" for f in fields]
        if len(wanted) == 1:
            target = names[wanted[0].rstrip("_")]
            return self._lines(f"{target} = {start}", passed, f").{wanted[0]}")
        if targets.count("_") > 3:
            values = [f"result.{f}" for f in wanted]
            chosen = ", ".join(t for t in targets if t != "_")
            return self._lines(f"result = {start}", passed, ")") + \
                wrap_list(values, f"{chosen} = (", "    ", ")")
        return self._lines(f"{', '.join(targets)} = {start}", passed, ")")

    @staticmethod
    def _lines(start, passed, end):
        return wrap_list(passed, start, "    ", end)

    @staticmethod
    def _told(task, names, count):
        """Whether the arrays are as long as the count, so that it need not be passed."""
        value = task.variables[names[count]].values
        arrays = [task.variables[name] for name in names.values() if task.variables[name].is_array]
        lengths = {len(a.values) for a in arrays if a.values}
        return not lengths or value and lengths == {int(value[0])}

    @staticmethod
    def _wanted(task, step, argument, names):
        description = next(a for a in step.routine.arguments if a.name == argument)
        spare = SPARE in description.text
        return task.is_used_behind(names[argument], step) and not (description.is_array and spare)

    def show(self, step):
        form = f"{VALUE}" if step.decimals is None else f"{VALUE}.{step.decimals}f"
        values = "".join(f"{{{self.element(value)}:{form}}}" for value in step.values)
        return f'print(f"{self.label(step)}{values}{self.unit(step)}")'


ALL = [C(), Cpp(), Python(), Fortran(), Pascal(), CSharp(), Basic()]
