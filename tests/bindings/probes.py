"""Programs that name every routine with arguments of the kinds its header tells."""

# By language: how an argument of a kind is passed. Real, Integer: r, i; their arrays: rs, is.
FORTRAN = {"r": "r", "i": "i", "rs": "rs", "is": "is", "f": "height"}
PASCAL = {"r": "r", "i": "i", "rs": "rs[0]", "is": "js[0]", "f": "@Height"}
CSHARP = {"r": "ref r", "i": "ref i", "rs": "rs", "is": "js", "f": "height"}
BY_VALUE = {"r": "1f", "i": "1"}

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


def _calls(routines, spelling, form):
    for routine in routines:
        arguments = [spelling[kind_of(argument)] for argument in routine.arguments]
        yield form % (routine.name, ", ".join(arguments))


def fortran(routines):
    calls = (call.replace(", ", ", &\n") for call in _calls(routines, FORTRAN, "call %s(%s)"))
    return FORTRAN_FRAME % "\n".join(calls)


def pascal(routines):
    return PASCAL_FRAME % "\n".join(_calls(routines, PASCAL, "%s(%s);"))


def csharp(routines):
    calls = list(_calls(routines, CSHARP, "Native.%s(%s);"))
    for routine in routines:
        arguments = []
        for argument in routine.arguments:
            kind = kind_of(argument)
            if kind in BY_VALUE:
                ways = {"in": BY_VALUE[kind], "out": f"out {kind}", "inout": f"ref {kind}"}
                arguments.append(ways[argument.direction])
            else:
                arguments.append(CSHARP[kind])
        if any(argument in BY_VALUE.values() for argument in arguments):
            calls.append(f"Native.{routine.name}({', '.join(arguments)});")
    return CSHARP_FRAME % "\n".join(calls)
