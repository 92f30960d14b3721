"""The names of values in every language: the same set, with the same numbers, as the model has."""

import re

import model

FILES = {  # by language: the file, the form of a name with its number, and its spelling
    "Fortran": ("fortran/trelvin.F90", r"parameter :: (trv\w+) = (-?\d+)", "snake"),
    "Pascal": ("pascal/trelvin.pas", r"^  (trv\w+) = (-?\d+);", "snake"),
    "C#": ("csharp/Trelvin.cs", r"const int (trv\w+) = (-?\d+);", "camel"),
    "Basic": ("basic/Trelvin.bas", r"Const (trv\w+) As Long = (-?\d+)", "camel"),
    "JavaScript": ("node/trelvin.mjs", r"^export const (trv\w+) = (-?\d+);", "camel"),
}


def _python():
    """Members of the enumerations; those of version 1.1 have no numbers of their own."""
    text = (model.ROOT / "bindings/python/trelvin/_routines.py").read_text()
    for name, body in re.findall(r"^class (\w+)\(IntEnum\):(.*?)\n\n\n", text, re.M | re.S):
        members = re.findall(r"^    (\w+) = (-?\d+)$", body, re.M)
        yield from ((f"{name}.{member}", int(number)) for member, number in members)


def faults(interface, enumerators):
    """What differs; `enumerators` is what a program in C and one in C++ printed, name by name."""
    values = [(e, v) for e in interface.enumerations() for v in e.values]
    old = len(re.findall(r"^trv\w+,", (model.ROOT / "bindings/old_names.csv").read_text(), re.M))
    for language, (file, form, spelling) in FILES.items():
        found = re.findall(form, (model.ROOT / "bindings" / file).read_text(), re.M)
        wanted = [(getattr(e, spelling)(v), str(v.number)) for e, v in values]
        if found[: len(wanted)] != wanted or len(found) != len(wanted) + old:
            yield f"{language}: {sorted(set(found[: len(wanted)]) ^ set(wanted))}, {len(found)} in all"
    wanted = [(f"{e.name}.{v.name.upper()}", v.number) for e, v in values]
    if list(_python()) != wanted:
        yield f"Python: {sorted(set(_python()) ^ set(wanted))}"
    wanted = "".join(f"{e.upper(v)} {v.number}\n" for e, v in values)
    for language, printed in enumerators.items():
        if printed != wanted:
            yield f"{language}: the enumerators differ:\n{printed}"


def examples(interface):
    """A C program of the headers' examples, and what their comments say that it prints."""
    lines = ["#include <stdio.h>", "#include <trelvin/trelvin.h>", "", "int main(void) {"]
    for family in interface.families:
        lines += ["  {", *("    " + line for line in family.example), "  }"]
    code = "\n".join([*lines, "  return 0;", "}"]) + "\n"
    return code, "".join(f"{text}\n" for text in re.findall(r"^ *// prints (.*)$", code, re.M))


def program(interface):
    """In C and C++: every enumerator that the model names, with the number that it has there."""
    names = [e.upper(value) for e in interface.enumerations() for value in e.values]
    lines = [f'  printf("%s %d\\n", "{name}", (int){name});' for name in names]
    includes = "#include <stdio.h>\n#include <trelvin/trelvin.h>\n"
    return "\n".join([includes, "int main(void) {", *lines, "  return 0;", "}"]) + "\n"
