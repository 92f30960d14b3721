"""Programs that name every routine with arguments of the kinds its header tells."""

# By language: how an argument of a kind is passed. Real, Integer: r, i; their arrays: rs, is.
FORTRAN = {"r": "r", "i": "i", "rs": "rs", "is": "is", "f": "height"}
PASCAL = {"r": "r", "i": "i", "rs": "rs[0]", "is": "js[0]", "f": "@Height"}
CSHARP = {"r": "ref r", "i": "ref i", "rs": "rs", "is": "js", "f": "height"}
BY_VALUE = {"r": {"in": "1f", "out": "out r", "inout": "ref r"},
            "i": {"in": "1", "out": "out i", "inout": "ref i"}}

FORTRAN_FRAME = """\
program probe
  use trelvin
  implicit none
  real(c_float) :: r = 0, rs(3) = 0
  integer(c_int32_t) :: i = 0, is(3) = 0
  if (command_argument_count() > 0) then
%s
  end if
contains
  function height(position) bind(c) result(z)
    !GCC$ ATTRIBUTES STDCALL :: height
    integer(c_int32_t), intent(in) :: position
    real(c_float) :: z
    z = real(position)
  end function
end program
"""
PASCAL_FRAME = """\
program probe;
{$MODE OBJFPC}
uses trelvin;
function Height(constref position: LongInt): Single; {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF};
begin
  Height := position;
end;
var
  r: Single = 0;
  i: LongInt = 0;
  rs: array[0..2] of Single = (0, 0, 0);
  js: array[0..2] of LongInt = (0, 0, 0);
begin
  if ParamCount > 0 then
  begin
%s
  end;
end.
"""
CSHARP_FRAME = """\
using System.Runtime.InteropServices;
using Trelvin;
static class Probe
{
    static void Main(string[] args)
    {
        Marshal.PrelinkAll(typeof(Native));
        if (args.Length == 0) return;
        float r = 0;
        int i = 0;
        float[] rs = new float[3];
        int[] js = new int[3];
        PositionFunction height = (ref int position) => position;
%s
    }
}
"""


def kind_of(argument):
    if argument.kind == "function":
        return "f"
    return ("i" if argument.is_integer else "r") + "s" * argument.is_array


def _calls(routines, form, spelling, by_value=None):
    """A call of each routine; single arguments by their direction where there are such spellings."""
    for routine in routines:
        arguments = []
        for argument in routine.arguments:
            kind = kind_of(argument)
            ways = by_value and by_value.get(kind)
            arguments.append(ways[argument.direction] if ways else spelling[kind])
        yield form % (routine.name, ", ".join(arguments))


def fortran(routines):
    calls = (call.replace(", ", ", &\n") for call in _calls(routines, "call %s(%s)", FORTRAN))
    return FORTRAN_FRAME % "\n".join(calls)


def pascal(routines):
    return PASCAL_FRAME % "\n".join(_calls(routines, "%s(%s);", PASCAL))


def csharp(routines):
    with_inputs = [r for r in routines if {"TrvIn", "TrvIntIn"} & {a.type for a in r.arguments}]
    return CSHARP_FRAME % "\n".join([
        *_calls(routines, "Native.%s(%s);", CSHARP),
        *_calls(with_inputs, "Native.%s(%s);", CSHARP, BY_VALUE)])
