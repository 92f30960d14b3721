"""A JavaScript program that calls every routine and compares what it gets with what is right.

Right is what the same calls give through bare addresses, on an instance of the library that no
other call has used.
"""

import ctypes
import json
import random
import shutil
import tempfile
from pathlib import Path

import bindings_python
import model

LIBRARY = model.ROOT / "build" / "native" / "lib" / "libtrelvin.so"
ROOM = 64  # elements of an array
CALLS = 8
FUNCTION = ctypes.CFUNCTYPE(ctypes.c_float, ctypes.POINTER(ctypes.c_int32))
HEIGHT = FUNCTION(lambda position: position[0] - 2)

FRAME = """\
import * as trelvin from "trelvin";
const realsOf = (bits) => [...new Float32Array(Int32Array.from(bits).buffer)];
for (const [name, given, counts, wanted] of [
%s
]) {
  const inputs = given.map((input) => input ?? ((position) => position - 2));
  const got = trelvin[name](...inputs, ...(counts ? [counts] : []));
  if (Object.keys(got).join() !== Object.keys(wanted).join()) console.log(name, Object.keys(got));
  for (const [output, [isReal, bits]] of Object.entries(wanted)) {
    const right = isReal ? realsOf(bits) : bits;
    const numbers = typeof got[output] === "number" ? [got[output]] : [...got[output]];
    const same = numbers.every((number, i) => Object.is(number, right[i]));
    if (!same) console.log(name, output, numbers.join(" "), "instead of", right.join(" "));
  }
}
"""


def _draw(draw, argument):
    """What an argument holds before the call; Reals of a coarse grid meet special positions."""
    size = ROOM if argument.is_array else 1
    if argument.direction == "out":
        return size * [0 if argument.is_integer else float("nan")]
    if argument.is_integer:
        least = max(0, argument.least or 0)
        return [draw.randint(least, 6) for _ in range(size)]
    return [draw.choice([draw.randint(-2, 2), draw.randint(1, 9) * 0.5]) for _ in range(size)]


def _case(library, routine, draw):
    told = [a.name for a in bindings_python.Routine(routine, named=str).inputs if a.lengths_of]
    memory, given, counts = {}, [], {}
    for argument in routine.arguments:
        if argument.kind == "function":
            given.append(None)
            continue
        numbers = _draw(draw, argument)
        kind = ctypes.c_int32 if argument.is_integer else ctypes.c_float
        memory[argument.name] = (kind * len(numbers))(*numbers)
        if argument.name in told:
            counts[argument.name] = numbers[0]
        elif argument.direction != "out":
            given.append(numbers if argument.is_array else numbers[0])
    getattr(library, routine.name)(*(memory.get(a.name, HEIGHT) for a in routine.arguments))
    bits = {a.name: list(memoryview(memory[a.name]).cast("B").cast("i"))
            for a in routine.arguments if a.is_written}
    wanted = {a.name: [not a.is_integer, bits[a.name]] for a in routine.arguments if a.is_written}
    return [routine.name, given, counts or None, wanted]


def javascript(routines):
    draw = random.Random(1)
    with tempfile.TemporaryDirectory() as folder:
        library = ctypes.CDLL(shutil.copy(LIBRARY, Path(folder) / "values.so"))
    cases = [_case(library, routine, draw) for routine in routines for _ in range(CALLS)]
    return FRAME % ",\n".join(map(json.dumps, cases))
