"""Reads the Basic module as its editor does, and compares it with the headers and their contracts."""

import re

import contracts
import headers
from pygments.lexers import get_lexer_by_name
from pygments.token import Name

TYPEDEF = re.compile(r"typedef (?:const )?(float|int32_t) [&*](\w+);")
DECLARE = re.compile(r'Public Declare (PtrSafe )?Sub (\w+) Lib "(.*?)" Alias "(.*?)" \((.*)\)')
CONSTANT = re.compile(r"Public Const (trv[a-z\d_]+)([A-Z]\w*) As Long = (-?\d+)")
VERSION = re.compile(r'#define TRELVIN_VERSION "(.*)"')
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
    calling = (headers.INTERFACE / "calling.h").read_text()
    types = {name: "Single" if c == "float" else "Long" for c, name in TYPEDEF.findall(calling)}
    for routine in routines:
        arguments = [f"ByRef {a.name + '_' * _is_keyword(a.name)} As {types[a.type]}"
                     if a.type in types else f"ByVal {a.name} As {address}"
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


def _faults_of_constants(found, routines):
    for routine in routines:
        statuses = filter(contracts.names_values, routine.arguments)
        values = [value for a in statuses for value in contracts.values_of(a.text).named]
        here = [int(value) for name, _, value in found if name == routine.name]
        if here and sorted(here) != sorted(values):
            yield f"{routine.name}: constants {here}, its contract has {values}"


def faults(routines):
    text = (headers.ROOT / "bindings/basic/Trelvin.bas").read_text()
    version = {"version": VERSION.search((headers.INTERFACE / "calling.h").read_text()).group(1)}
    if re.search(r"( _\n.*){25}", text) or max(map(len, text.splitlines())) > 1023:
        yield "a line or its continuations are too long for the editor"
    for vba7, win64 in ((True, True), (True, False), (False, False)):
        platform = ("Trelvin64.dll", "PtrSafe ", "LongPtr") if win64 else ("Trelvin.dll", "", "Long")
        view = list(_statements(text, VBA7=vba7, Win64=win64))
        yield from _faults_of_view(map(DECLARE.fullmatch, view), routines, *platform)
        constants = [match.groups() for match in map(CONSTANT.fullmatch, view) if match]
        yield from _faults_of_constants(constants, routines)
        unread = [line for line in view if not (DECLARE.fullmatch(line) or CONSTANT.fullmatch(line))]
        if unread != [line % version for line in HEAD]:
            yield f"{platform[0]}: not understood: {unread}"
