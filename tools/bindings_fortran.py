"""The Fortran module: an interface block with every routine."""

from bindings_text import NOTICE, constants, explanation, groups, wrap, wrap_list

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


def text(interface):
    lines = [HEAD, f'  character(*), parameter :: trelvin_version = "{interface.version}"']
    for comment, values in constants(interface):
        lines += ["", *wrap(comment, "  ! ")]
        lines += [f"  integer(c_int32_t), parameter :: {name} = {number}" for name, number in values]
    lines += ["", FUNCTION, "  interface"]
    for family in interface.families:
        lines += ["", f"    ! {family.title}"]
        for routine in family.routines:
            lines += ["", *_interface(routine)]
    lines += ["", "  end interface", "end module trelvin"]
    return "\n".join(lines) + "\n"


def _interface(routine):
    names = [argument.name for argument in routine.arguments]
    assert len({name.lower() for name in names}) == len(names), routine.name
    for i, paragraph in enumerate(explanation(routine)):
        yield from wrap(paragraph, "    !! " if i else "    !> ", "    !! ")
    yield from wrap_list(names, f"    subroutine {routine.name}(", "        ",
                         f') bind(c, name="{routine.name}")', " &")
    function = [a for a in routine.arguments if a.kind == "function"]
    yield "      import :: c_float, c_int32_t" + (", trvfunction" if function else "")
    yield f"      TRELVIN_CALL {routine.name}"
    for kind, arguments in groups((_kind(a), a.name + "(*)" * a.is_array)
                                  for a in routine.arguments):
        yield from wrap_list(arguments, f"      {kind} ::", "        ", "", " &")
    yield "    end subroutine"


def _kind(argument):
    if argument.kind == "function":
        return "procedure(trvfunction)"
    kind = "integer(c_int32_t)" if argument.is_integer else "real(c_float)"
    keeps = argument.direction == "out" and not argument.always_written
    return f"{kind}, intent({'inout' if keeps else argument.direction})"
