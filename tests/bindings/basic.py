"""Reads the Basic module as its editor does, and compares it with the headers and their contracts."""

import re

import model
from pygments.lexers import get_lexer_by_name
from pygments.token import Name

TYPES = {"real": "Single", "integer": "Long"}
DECLARE = re.compile(r'Public Declare (PtrSafe )?Sub (\w+) Lib "(.*?)" Alias "(.*?)" \((.*)\)')
CONSTANT = re.compile(r"Public Const trv\w+ As Long = -?\d+")  # names.py has their values
HEAD = ['Attribute VB_Name = "Trelvin"', "Option Explicit",
        'Public Const TrelvinVersion As String = "%(version)s"']
LEXERS = [get_lexer_by_name("vb.net"), get_lexer_by_name("vbscript")]


def _statements(text, **defined):
    """What the editor compiles where these names are defined as true or false."""
    taken = [True]
    for line in re.sub(r" _\n\s*", " ", text).splitlines():
        if line.startswith("#If "):
            names = line.removeprefix("#If ").removesuffix(" Then").split(" And ")
            taken.append(all(defined[name] for name in names))
        elif line == "#Else":
            taken[-1] = not taken[-1]
        elif line == "#End If":
            taken.pop()
        elif all(taken) and line and not line.startswith("'"):
            yield line


def _is_keyword(name):
    return any((Name, name) not in lexer.get_tokens(f"x = {name}") for lexer in LEXERS)


def _declarations(routines, library, safe, address):
    """How each routine must be declared, an argument each: passing, name, type."""
    for routine in routines:
        arguments = [f"ByRef {a.name + '_' * _is_keyword(a.name)} As {TYPES[a.kind]}"
                     if a.kind in TYPES else f"ByVal {a.name} As {address}"
                     for a in routine.arguments]
        yield routine.name, [safe, library, routine.name, *arguments]


def _faults_of_view(view, routines, *platform):
    found = {}
    for safe, name, library, alias, parameters in (m.groups("") for m in view if m):
        found[name] = [safe, library, alias, *parameters.split(", ")]
        names = [parameter.split()[1].lower() for parameter in found[name][3:]]
        if len(set(names)) < len(names):
            yield f"{name}: two arguments differ by case only"
    wanted = dict(_declarations(routines, *platform))
    if list(found) != list(wanted):
        yield f"{platform[0]}: the routines are not those of the headers"
    for name, parts in found.items():
        here = [part for part in parts if part not in wanted.get(name, [])]
        if parts != wanted.get(name):
            yield f"{platform[0]}: {name}: {', '.join(here) or 'other arguments'}"


def faults(interface):
    text = (model.ROOT / "bindings/basic/Trelvin.bas").read_text()
    version = {"version": interface.version}
    if re.search(r"( _\n.*){25}", text) or max(map(len, text.splitlines())) > 1023:
        yield "a line or its continuations are too long for the editor"
    for vba7, win64 in ((True, True), (True, False), (False, False)):
        platform = ("Trelvin64.dll", "PtrSafe ", "LongPtr") if win64 else ("Trelvin.dll", "", "Long")
        view = list(_statements(text, VBA7=vba7, Win64=win64))
        yield from _faults_of_view(map(DECLARE.fullmatch, view), interface.routines, *platform)
        unread = [line for line in view if not (DECLARE.fullmatch(line) or CONSTANT.fullmatch(line))]
        if unread != [line % version for line in HEAD]:
            yield f"{platform[0]}: not understood: {unread}"
