"""The module for Visual Basic 6 and for Basic in Office."""

from bindings_text import NOTICE, constants, explanation, wrap, wrap_list

# Keywords and functions that no argument may be named; such an argument gets an underscore.
RESERVED = set("""
abs addressof and any array as boolean byref byte byval call case cbool cbyte ccur cdate cdbl cdec
cint circle clng clnglng clngptr close const csng cstr currency cvar cverr date debug decimal
declare defbool defbyte defcur defdate defdbl defdec defint deflng defobj defsng defstr defvar dim
do doevents double each else elseif empty end endif enum eqv erase error event exit false fix for
friend function get global gosub goto if imp implements in input inputb int integer is lbound len
lenb let like line lock long longlong longptr loop lset me mod new next not nothing null object on
open option optional or paramarray preserve print private property pset public put raiseevent
redim rem resume return rset scale seek select set sgn shared single spc static stop string sub
tab then time to true type typeof ubound unlock until variant vb_base wend while with withevents
write xor
""".split())

HEAD = f"""\
Attribute VB_Name = "Trelvin"
' {NOTICE}
'
' Every routine of Trelvin for Visual Basic 6 and for Basic in Office. Every argument goes by its
' address, an array by the first element that counts: X(0), or X(1). A literal is passed as the type
' it has: 1! is a Single, 1& a Long. The contracts are in include/trelvin.
Option Explicit

Public Const TrelvinVersion As String = "%s"
"""


def text(interface):
    routines = interface.routines
    lines = [HEAD % interface.version]
    for comment, values in constants(interface, "camel"):
        lines += ["", *wrap(comment, "' ")]
        lines += [f"Public Const {name} As Long = {number}" for name, number in values]
    lines += ["", "#If VBA7 And Win64 Then"]
    for routine in routines:
        lines.append("")
        for paragraph in explanation(routine):
            lines += wrap(paragraph, "' ")
        lines += _declaration(routine, "Declare PtrSafe", "Trelvin64.dll", "LongPtr")
    lines += ["", "#Else", "' The same for 32 bits."]
    for routine in routines:
        lines += ["", *_declaration(routine, "Declare", "Trelvin.dll", "Long")]
    return "\n".join([*lines, "", "#End If"]) + "\n"


def _declaration(routine, declare, library, address):
    parameters = [_parameter(argument, address) for argument in routine.arguments]
    start = f'Public {declare} Sub {routine.name} Lib "{library}" Alias "{routine.name}" ('
    yield from wrap_list(parameters, start, "    ", ")", " _")


def _parameter(argument, address):
    if argument.kind == "function":
        return f"ByVal {argument.name} As {address}"  # AddressOf a function
    name = argument.name + "_" * (argument.name.lower() in RESERVED)
    return f"ByRef {name} As {'Long' if argument.is_integer else 'Single'}"
