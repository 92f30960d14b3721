"""Calls routines with random arguments and finds the outputs that keep what was there before."""

import ctypes
import random

import contracts

MARKS = (0x7FC0BEEF, 0x1234567)  # two, since a routine may happen to compute one of them
ROOM = 4096  # elements of an array, with as many unused ones before it


def _fill(draw, argument, place):
    """Random contents for one argument: Reals of a coarse grid, so that special positions occur."""
    for i in range(64 if argument.is_array else 1):
        if argument.is_integer:
            ctypes.c_int32.from_address(place + 4 * i).value = draw.randint(-1, 6)
        else:
            value = draw.choice([draw.randint(-2, 2), draw.randint(1, 9) * 0.5, 1e-6])
            ctypes.c_float.from_address(place + 4 * i).value = value


def _keeps(function, routine, outputs, seed):
    """The outputs that hold their mark after a call, for each mark."""
    kept = set(outputs)
    for mark in MARKS:
        draw = random.Random(seed)
        memory = [(ctypes.c_int32 * (2 * ROOM))() for _ in routine.arguments]
        places = [ctypes.addressof(block) + 4 * ROOM for block in memory]
        for argument, place in zip(routine.arguments, places):
            _fill(draw, argument, place)
            least = contracts.least_of(argument.text) if argument.is_integer else None
            if least is not None:
                number = ctypes.c_int32.from_address(place)
                number.value = max(number.value, least)
            if argument.name in outputs:
                ctypes.c_uint32.from_address(place).value = mark
        function(*map(ctypes.c_void_p, places))
        kept &= {a.name for a, place in zip(routine.arguments, places)
                 if ctypes.c_uint32.from_address(place).value == mark}
    return kept


def unwritten(library, routines, always_written, calls=200):
    library = ctypes.CDLL(str(library))
    for routine in routines:
        outputs = {a.name for a in routine.arguments if always_written(routine, a)}
        if not outputs or any(a.type == "TrvFunctionIn" for a in routine.arguments):
            continue
        kept = set()
        for seed in range(calls):
            kept |= _keeps(getattr(library, routine.name), routine, outputs, seed)
        if kept:
            yield f"{routine.name} left {', '.join(sorted(kept))} on some path"
