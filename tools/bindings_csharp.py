"""The C# class: each routine by addresses, and again with its inputs by value."""

from bindings_text import NOTICE, constants, documented, wrap, wrap_list

RESERVED = set("""
abstract as base bool break byte case catch char checked class const continue decimal default
delegate do double else enum event explicit extern false finally fixed float for foreach goto if
implicit in int interface internal is lock long namespace new null object operator out override
params private protected public readonly ref return sbyte sealed short sizeof stackalloc static
string struct switch this throw true try typeof uint ulong unchecked unsafe ushort using virtual
void volatile while
""".split())

HEAD = f"""\
// {NOTICE}
//
// Every routine of Trelvin for C#, from .NET Framework 2.0 and Mono on. One source for all systems:
// the library "trelvin" is Trelvin.dll on Windows and libtrelvin.so elsewhere. The contracts are in
// include/trelvin.
using System;
using System.Runtime.InteropServices;

namespace Trelvin
{{
    /// <summary>A function of the host's: a Real for a position. Passed to a routine, it must stay
    /// referenced until the call returns.</summary>
    public delegate float PositionFunction(ref int position);

    /// <summary>The routines. In the form with <c>ref</c> throughout, an output that a contract
    /// calls unwritten keeps its value; in the form with inputs by value it is zero.</summary>
    public static class Native
    {{
        public const string Version = "%s";
        private const string Library = "trelvin";
"""
INDENT = " " * 8


def text(interface):
    lines = [HEAD % interface.version]
    for comment, values in constants(interface, "camel"):
        lines += ["", *wrap(comment, f"{INDENT}// ")]
        lines += [f"{INDENT}public const int {name} = {number};" for name, number in values]
    for family in interface.families:
        lines += ["", f"{INDENT}// {family.title}"]
        for routine in family.routines:
            comment = ["", *documented(routine, f"{INDENT}/// ")]
            lines += [*comment, *_external(routine)]
            if any(_takes_value(argument) for argument in routine.arguments):
                lines += [*comment, *_by_value(routine)]
    return "\n".join(lines) + "\n    }\n}\n"


def _external(routine):
    """By addresses. `in` would be the word for inputs, but Mono's calls fail with it."""
    parameters = [f"{_by_address(a)} {_name(a)}" for a in routine.arguments]
    yield f"{INDENT}[DllImport(Library, ExactSpelling = true)]"
    yield from wrap_list(parameters, f"{INDENT}public static extern void {routine.name}(",
                         INDENT + "    ", ");")


def _by_value(routine):
    outputs = [a for a in routine.arguments if _is_single_output(a)]
    parameters = [f"{_by_choice(a)} {_name(a)}" for a in routine.arguments]
    passed = [_passed(a) for a in routine.arguments]
    inner = INDENT + "    "
    yield from wrap_list(parameters, f"{INDENT}public static void {routine.name}(", inner, ")")
    yield f"{INDENT}{{"
    for integer in (False, True):
        names = [_name(a) for a in outputs if a.is_integer == integer]
        yield from wrap(" = ".join([*names, "0;"]), inner, inner + "    ") if names else []
    yield from wrap_list(passed, f"{inner}{routine.name}(", inner + "    ", ");")
    yield f"{INDENT}}}"


def _name(argument):
    return "@" * (argument.name in RESERVED) + argument.name


def _takes_value(argument):
    return argument.type in ("TrvIn", "TrvIntIn")


def _is_single_output(argument):
    return argument.type in ("TrvOut", "TrvIntOut")


def _kind(argument):
    if argument.kind == "function":
        return "PositionFunction"
    return ("int" if argument.is_integer else "float") + "[]" * argument.is_array


def _by_address(argument):
    direction = "[In, Out] " if argument.is_written else "[In] "
    return direction * argument.is_array + "ref " * _is_single(argument) + _kind(argument)


def _by_choice(argument):
    way = "" if _takes_value(argument) else "out " if _is_single_output(argument) else "ref "
    return way * _is_single(argument) + _kind(argument)


def _is_single(argument):
    return not argument.is_array and argument.kind != "function"


def _passed(argument):
    return "ref " * _is_single(argument) + _name(argument)
