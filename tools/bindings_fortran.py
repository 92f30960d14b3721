"""The Fortran module: an interface block with every routine."""

import headers
from bindings_facts import (NOTICE, always_written, constants_of, explanation, groups, wrap,
                            wrap_list)

HEAD = f"""\
! {NOTICE}
!
! Every routine of Trelvin for Fortran 2003 and later. Compilers preprocess the file for its suffix.
! An array is passed by its name or, from an element on, by that element. What a contract calls
! unwritten keeps its value: such an output is inout here. The contracts are in include/trelvin.

! 32-bit Windows: every routine removes its own arguments. The preprocessor of gfortran knows no
! systems; define TRELVIN_CDECL for 32 bits elsewhere.
#if __SIZEOF_POINTER__ == 4 && !defined(TRELVIN_CDECL)
#define TRELVIN_CALL !GCC$ ATTRIBUTES STDCALL ::
#else
#define TRELVIN_CALL !
#endif

module trelvin
  use, intrinsic :: iso_c_binding, only: c_float, c_int32_t
  implicit none
  public
"""
FUNCTION = """\
  !> A function of the host's: a Real for a position. For 32-bit Windows the function itself says
  !! !GCC$ ATTRIBUTES STDCALL :: its_name
  abstract interface
    function trvfunction(position) bind(c) result(z)
      import :: c_float, c_int32_t
      integer(c_int32_t), intent(in) :: position
      real(c_float) :: z
    end function
  end interface
"""


def text(families, version):
    lines = [HEAD, f'  character(*), parameter :: trelvin_version = "{version}"', ""]
    for family in families:
        for routine in family.routines:
            lines += _constants(routine)
    lines += ["", FUNCTION, "  interface"]
    for family in families:
        lines += ["", f"    ! {family.title}"]
        for routine in family.routines:
            lines += ["", *_interface(routine)]
    lines += ["", "  end interface", "end module trelvin"]
    return "\n".join(lines) + "\n"


def _constants(routine):
    for constant in constants_of(routine):
        yield f"  integer(c_int32_t), parameter :: {constant.snake} = {constant.value}"


def _interface(routine):
    names = [argument.name for argument in routine.arguments]
    assert len({name.lower() for name in names}) == len(names), routine.name
    for i, paragraph in enumerate(explanation(routine)):
        yield from wrap(paragraph, "    !! " if i else "    !> ", "    !! ")
    yield from wrap_list(names, f"    subroutine {routine.name}(", "        ",
                         f') bind(c, name="{routine.name}")', " &")
    function = [a for a in routine.arguments if a.type == "TrvFunctionIn"]
    yield "      import :: c_float, c_int32_t" + (", trvfunction" if function else "")
    yield f"      TRELVIN_CALL {routine.name}"
    for kind, arguments in groups((_kind(routine, a), a.name + "(*)" * a.is_array)
                                  for a in routine.arguments):
        yield from wrap_list(arguments, f"      {kind} ::", "        ", "", " &")
    yield "    end subroutine"


def _kind(routine, argument):
    if argument.type == "TrvFunctionIn":
        return "procedure(trvfunction)"
    kind = "integer(c_int32_t)" if argument.is_integer else "real(c_float)"
    direction = headers.TYPES[argument.type][2]
    if direction == "out" and not always_written(routine, argument):
        direction = "inout"
    return f"{kind}, intent({direction})"
