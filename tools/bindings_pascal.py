"""The Pascal unit for Free Pascal and Delphi."""

from bindings_text import NOTICE, constants, documented, groups, wrap, wrap_list

# Words of the language, of either compiler; an argument of such a name gets an underscore.
RESERVED = set("""
and array as asm begin case class const constref constructor destructor dispinterface div do
downto else end except exports file finalization finally for function goto if implementation in
inherited initialization inline interface is label library mod nil not object of on operator or
out packed procedure program property raise record repeat resourcestring set shl shr string then
threadvar to try type unit until uses var while with xor
""".split())

BY_ADDRESS = "{$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF}"
CONVENTION = "{$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}"
HEAD = f"""\
// {NOTICE}
//
// Every routine of Trelvin for Free Pascal and Delphi. Every argument goes by its address, an array
// by an element: X[0], or wherever it starts; a plain `const` would pass the value of a Single.
// What a contract calls unwritten keeps its value: such an output is `var`. The contracts are in
// include/trelvin.
unit trelvin;

{{$IFDEF FPC}}{{$MODE OBJFPC}}{{$ENDIF}}

interface

const
  TrelvinVersion = '%s';
  {{$IF DEFINED(WIN64)}}
  TrelvinLibrary = 'Trelvin64.dll';
  {{$ELSEIF DEFINED(MSWINDOWS)}}
  TrelvinLibrary = 'Trelvin.dll';
  {{$ELSEIF DEFINED(FPC)}}
  TrelvinLibrary = 'trelvin'; // the linker's name of libtrelvin.so
  {{$ELSE}}
  TrelvinLibrary = 'libtrelvin.so';
  {{$IFEND}}
"""
TYPES = f"""
type
  TTrvReals = Single; // the first element of an array
  TTrvIntegers = LongInt;
  TTrvFunction = function(
    {BY_ADDRESS} position: LongInt): Single;
    {CONVENTION};
"""


def text(interface):
    lines = [HEAD % interface.version]
    for comment, values in constants(interface):
        lines += ["", *wrap(comment, "  // ")]
        lines += [f"  {name} = {number};" for name, number in values]
    lines += [TYPES.rstrip()]
    for family in interface.families:
        lines += ["", f"// {family.title}"]
        for routine in family.routines:
            lines += ["", *_declaration(routine)]
    return "\n".join(lines) + "\n\nimplementation\n\nend.\n"


def _declaration(routine):
    yield from documented(routine, "/// ")
    yield f"procedure {routine.name}("
    parts = groups((_kind(a), _name(a)) for a in routine.arguments)
    for i, ((way, kind), names) in enumerate(parts):
        names[-1] += f": {kind}"
        yield from wrap_list(names, f"  {way}", "    ", ";" if i + 1 < len(parts) else ");")
    yield f"  {CONVENTION}; external TrelvinLibrary name '{routine.name}';"


def _name(argument):
    return argument.name + "_" * (argument.name.lower() in RESERVED)


def _kind(argument):
    if argument.kind == "function":
        return "", "TTrvFunction"
    way = BY_ADDRESS if argument.direction == "in" else "var"
    if argument.always_written:
        way = "out"
    kinds = ("TTrvReals", "TTrvIntegers") if argument.is_array else ("Single", "LongInt")
    return way, kinds[argument.is_integer]
