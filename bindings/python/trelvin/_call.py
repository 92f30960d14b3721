"""How a routine is called: what is given is checked, room is made, and what is written returned."""

from __future__ import annotations

import ctypes
import inspect
import math
import re
import struct
from functools import lru_cache
from pathlib import Path
from typing import Any, Callable, NamedTuple

import numpy as np

_HERE = Path(__file__).parent
_LIBRARY = ctypes.CDLL(str(_HERE / "libtrelvin.so"))
_LOOP_FREE = ctypes.CDLL(str(_HERE / "_loop.so")).trelvin_loop
_LOOP_LOCKED = ctypes.PyDLL(str(_HERE / "_loop.so")).trelvin_loop
for _loop in (_LOOP_FREE, _LOOP_LOCKED):
    _loop.argtypes = [ctypes.c_void_p, ctypes.c_int32] + 3 * [ctypes.c_void_p] + [ctypes.c_int64]
    _loop.restype = None

_TYPES = {"real": np.dtype(np.float32), "int": np.dtype(np.int32)}
_NAMES = {"real": "Real", "int": "Integer"}
_START = {"real": math.nan, "int": 0}  # of what a routine may leave unwritten
_CELL = {"real": "f", "int": "i"}
_PLAIN = frozenset((float, int, np.float32, np.float64, np.int32, np.int64))
_FUNCTION = ctypes.CFUNCTYPE(ctypes.c_float, ctypes.POINTER(ctypes.c_int32))

# `inout real V[n+m]`, `out int index[n, count used]`, `in real x[1, n+1, 2 by kind]`,
# `in int n >= 2 = X Y`: at least 2, and the length of X and of Y where it is left out.
_ARGUMENT = re.compile(
    r"(inout|in|out) (real|int|function) (\w+)"
    r"(?:\[([^\]]*?)(?:, (\w+) used| by (\w+))?\])?(?: >= (-?\d+))?(?: = ([\w ]+))?"
)


class Argument(NamedTuple):
    direction: str
    kind: str
    name: str
    sizes: list | None = None  # of an array: one expression, or one for each value of `by`
    used: str | None = None  # the output that tells how many elements are written
    by: str | None = None
    least: int | None = None
    lengths_of: tuple = ()  # the arrays that are as long as this count

    @property
    def is_array(self):
        return self.sizes is not None


def _argument(text: str) -> Argument:
    direction, kind, name, sizes, used, by, least, arrays = _ARGUMENT.fullmatch(text).groups()
    return Argument(
        direction, kind, name, None if sizes is None else sizes.split(", "), used, by,
        None if least is None else int(least), tuple((arrays or "").split()),
    )  # fmt: skip


@lru_cache(maxsize=None)
def _expression(text: str):
    return compile(text, text, "eval")


def _size(text: str, counts: dict) -> int:
    return eval(_expression(text), {"max": max, "__builtins__": {}}, counts)


class Routine:
    """A routine of the library, from the facts of its contract."""

    by_name: dict[str, Routine] = {}

    def __init__(self, name: str, result: type | None, arguments: str, retains: bool = False):
        self.name = name
        self.arguments = [_argument(text) for text in arguments.split("; ")]
        self.inputs = [a for a in self.arguments if a.direction != "out"]
        self.written = [a for a in self.arguments if a.direction != "in"]
        self.result = result
        self.named = {a.name: a for a in self.arguments}
        sized = " ".join(size for a in self.arguments if a.is_array for size in a.sizes)
        self.counts = [a for a in self.inputs if a.name in re.findall(r"[A-Za-z]\w*", sized)]
        self._address = ctypes.cast(getattr(_LIBRARY, name), ctypes.c_void_p).value
        self._loop = _LOOP_LOCKED if retains else _LOOP_FREE
        self._lay_out_cells()
        Routine.by_name[name] = self

    def _lay_out_cells(self):
        """For single numbers alone: what is only read, then what is written, in one block."""
        order = [a for a in self.arguments if a.direction == "in"] + self.written
        if any(a.is_array or a.kind == "function" for a in order):
            return
        places = {a.name: 4 * i for i, a in enumerate(order)}
        self._cell_inputs = [(i, a) for i, a in enumerate(order) if a.direction != "out"]
        self._cell_inputs.sort(key=lambda cell: self.inputs.index(cell[1]))
        self._pack = struct.Struct("".join(_CELL[a.kind] for a in order)).pack
        self._unpack = struct.Struct("".join(_CELL[a.kind] for a in self.written)).unpack_from
        self._first_written = 4 * (len(order) - len(self.written))
        self._block = ctypes.c_char * (4 * len(order))
        self._offsets = (ctypes.c_ssize_t * len(order))(*(places[a.name] for a in self.arguments))
        self._no_strides = (ctypes.c_ssize_t * len(order))()

    def cells(self, *values: Any) -> Any:
        """One call with single numbers, given in the order of the block."""
        try:
            if not _PLAIN.issuperset(map(type, values)):
                raise TypeError
            block = self._block.from_buffer_copy(self._pack(*values))
        except (TypeError, struct.error, OverflowError):  # convert it, or tell what is wrong
            return self.call(tuple(values[i] for i, _ in self._cell_inputs))
        self._loop(self._address, len(self._offsets), block, self._offsets, self._no_strides, 1)
        written = self._unpack(block, self._first_written)
        return self.result._make(written) if self.result else written[0]

    def call(self, values: tuple, in_place: bool = False, batch: bool = False) -> Any:
        """Calls with the inputs in the order of the contract; a left-out count is None."""
        return _Call(self, batch, in_place).run(values)


class _Call:
    """One call, or one batch of calls."""

    def __init__(self, routine: Routine, batch: bool, in_place: bool):
        self.routine = routine
        self.batch = batch
        self.in_place = in_place
        self.given: dict[str, Any] = {}
        self.counts: dict[str, int] = {}
        self.shape: tuple = ()  # of the rows
        self.rows = 1
        self.operands: dict[str, np.ndarray] = {}  # rows, and elements where it is an array
        self.raised: list[BaseException] = []  # by the host's function

    def run(self, values: tuple) -> Any:
        for argument, value in zip(self.routine.inputs, values):
            if value is None and argument.lengths_of:
                continue
            if argument.kind == "function":
                self.given[argument.name] = self._function(argument, value)
            else:
                self.given[argument.name] = self._numbers(argument, value)
        self._count()
        self._shape()
        for argument in self.routine.inputs:
            if argument.kind != "function":
                self._take(argument)
        self._make_room()
        self._keep_apart()
        self._loop()
        if self.raised:
            raise self.raised[0]
        return self._results()

    def _fault(self, kind: type, argument: Argument, text: str) -> Exception:
        return kind(f"{self.routine.name}: {argument.name} {text}")

    # --- what is given --------------------------------------------------------------------

    def _function(self, argument: Argument, function: Any) -> Any:
        if not callable(function):
            raise self._fault(TypeError, argument, f"needs a function; {function!r} given")

        def guarded(position: Any) -> float:
            if self.raised:
                return math.nan
            try:
                return float(function(position[0]))
            except BaseException as problem:  # goes on in the caller, not in the library
                self.raised.append(problem)
                return math.nan

        return _FUNCTION(guarded)

    def _numbers(self, argument: Argument, value: Any) -> np.ndarray:
        wanted = _TYPES[argument.kind]
        try:
            array = np.asarray(value)
        except ValueError:  # lists of different lengths
            array = np.empty(0, object)
        in_place = self.in_place and argument.is_array and argument.direction == "inout"
        if in_place and (array is not value or array.dtype != wanted):
            raise self._fault(TypeError, argument, f"needs a NumPy array of {wanted} in place")
        if array.dtype != wanted:
            array = self._converted(argument, value, array, wanted)
        if not self.batch and array.ndim != argument.is_array:
            needed = "an array of one dimension" if argument.is_array else "a single number"
            raise self._fault(ValueError, argument, f"needs {needed}; shape {array.shape} given")
        if self.batch and argument.is_array and array.ndim < 1:
            raise self._fault(ValueError, argument, "needs an array in each row; a number given")
        return array

    def _converted(self, argument: Argument, value: Any, array: Any, wanted: Any) -> np.ndarray:
        name = _NAMES[argument.kind]
        what = f"dtype {array.dtype}" if isinstance(value, np.ndarray) else repr(value)[:60]
        if array.dtype.kind not in "iuf":
            raise self._fault(TypeError, argument, f"needs {name}s; {what} given")
        if argument.kind == "int" and array.size:
            if array.dtype.kind == "f" and not np.all(np.floor(array) == array):
                raise self._fault(TypeError, argument, f"needs whole {name}s; {what} given")
            limits = np.iinfo(np.int32)
            if array.min() < limits.min or array.max() > limits.max:
                raise self._fault(ValueError, argument, f"needs 32-bit {name}s; {what} given")
        try:
            with np.errstate(over="raise"):
                return array.astype(wanted)
        except FloatingPointError:
            problem = f"needs {name}s of single precision; {what} given"
            raise self._fault(ValueError, argument, problem) from None

    def _count(self):
        """The counts that are left out, and the sizes that all counts ask for."""
        for argument in self.routine.inputs:
            name = argument.name
            if name not in self.given:
                lengths = {array: self.given[array].shape[-1] for array in argument.lengths_of}
                if len(set(lengths.values())) > 1:
                    told = ", ".join(f"{array} has {n}" for array, n in lengths.items())
                    raise self._fault(ValueError, argument, f"is one number of elements; {told}")
                length = next(iter(lengths.values()))
                self.given[name] = np.array(length, np.int32)
            least = argument.least
            if argument in self.routine.counts:
                least = max(0, least or 0)
                self.counts[name] = int(self.given[name].max(initial=0))
            if least is not None and self.given[name].size and self.given[name].min() < least:
                given = f"must be at least {least}; {self.given[name].min()} given"
                raise self._fault(ValueError, argument, given)

    def _expressions(self, argument: Argument) -> list:
        """The sizes that apply: with a kind, those of the kinds that occur."""
        if not argument.by:
            return argument.sizes
        kinds = np.unique(self.given[argument.by])
        return [argument.sizes[k - 1] for k in kinds if 1 <= k <= len(argument.sizes)] or ["0"]

    def _room(self, argument: Argument) -> int:
        return max(_size(text, self.counts) for text in self._expressions(argument))

    def _needed(self, argument: Argument) -> tuple:
        """How many elements an array must bring, and their expression.

        Of `n+m`, an array that is copied brings the n that are its own.
        """
        expressions = self._expressions(argument)
        if argument.direction == "inout" and not self.in_place:
            own = [a.name for a in self.routine.counts if argument.name in a.lengths_of]
            expressions = [next((n for n in own if text.startswith(f"{n}+")), text)
                           for text in expressions]  # fmt: skip
        return max((_size(text, self.counts), text) for text in expressions)

    def _shape(self):
        """Checks lengths, and finds the shape of the rows."""
        shapes = []
        for name, array in self.given.items():
            argument = self.routine.named[name]
            if argument.is_array:
                needed, text = self._needed(argument)
                if array.shape[-1] < needed:
                    size = f"{text} = {needed}" if text != str(needed) else text
                    given = f"needs {size} elements; {array.shape[-1]} given"
                    raise self._fault(ValueError, argument, given)
                shapes.append(array.shape[:-1])
            elif argument.kind != "function":
                shapes.append(array.shape)
        try:
            self.shape = np.broadcast_shapes(*shapes)
        except ValueError:
            told = ", ".join(str(shape) for shape in shapes)
            raise ValueError(f"{self.routine.name}: rows do not match: {told}") from None
        self.rows = math.prod(self.shape)

    # --- rooms ----------------------------------------------------------------------------

    def _take(self, argument: Argument):
        """An input as rows: a view where the library only reads, else a copy with its room."""
        array = self.given[argument.name]
        core = array.shape[-1:] if argument.is_array else ()
        if argument.is_array and argument.direction == "inout" and self.in_place:
            self.operands[argument.name] = self._own(argument, core)
            return
        spread = np.broadcast_to(array, self.shape + core).reshape((self.rows,) + core)
        if argument.direction == "inout":
            room = (max(core[0], self._room(argument)),) if core else ()
            copy = np.full((self.rows,) + room, _START[argument.kind], array.dtype)
            copy[(slice(None),) + tuple(map(slice, core))] = spread
            spread = copy
        elif not spread.flags.aligned or (core and spread.strides[-1] != spread.itemsize):
            spread = np.ascontiguousarray(spread)
        self.operands[argument.name] = spread

    def _own(self, argument: Argument, core: tuple) -> np.ndarray:
        """An array that is changed in place."""
        array = self.given[argument.name]
        own = array.flags.c_contiguous and array.flags.aligned and array.flags.writeable
        if not own or array.shape != self.shape + core:
            needed = f"needs a writable, C-contiguous array of shape {self.shape + core} in place"
            raise self._fault(ValueError, argument, needed)
        return array.reshape((self.rows,) + core)

    def _make_room(self):
        for kind, dtype in _TYPES.items():
            arguments = [a for a in self.routine.arguments if (a.direction, a.kind) == ("out", kind)]
            single = [a.name for a in arguments if not a.is_array]
            columns = np.full((len(single), self.rows), _START[kind], dtype)
            self.operands.update(zip(single, columns))
            for argument in arguments:
                if argument.is_array:
                    room = (self.rows, self._room(argument))
                    # Zeros take no memory before they are written, nor does what is cut anyhow.
                    empty = np.zeros if kind == "int" else np.empty
                    array = empty(room, dtype)
                    if kind == "real" and (self.batch or not argument.used):
                        array.fill(math.nan)
                    self.operands[argument.name] = array

    def _keep_apart(self):
        """Arrays that are changed in place may share memory with nothing else."""
        if not self.in_place:
            return
        own = [a for a in self.routine.inputs if a.is_array and a.direction == "inout"]
        for i, argument in enumerate(own):
            array = self.operands[argument.name]
            for other in own[i + 1 :]:
                if np.may_share_memory(array, self.operands[other.name]):
                    raise self._fault(ValueError, argument, f"shares memory with {other.name}")
            for name, operand in self.operands.items():
                if self.routine.named[name] not in own and np.may_share_memory(array, operand):
                    self.operands[name] = operand.copy()

    # --- the call -------------------------------------------------------------------------

    def _loop(self):
        addresses = []
        strides = []
        for argument in self.routine.arguments:
            if argument.kind == "function":
                function = ctypes.cast(self.given[argument.name], ctypes.c_void_p)
                addresses.append(function.value)
                strides.append(0)
            else:
                operand = self.operands[argument.name]
                addresses.append(operand.__array_interface__["data"][0])
                strides.append(operand.strides[0])
        words = ctypes.c_ssize_t * len(addresses)
        self.routine._loop(
            self.routine._address, len(addresses), None, words(*addresses), words(*strides), self.rows
        )

    def _results(self) -> Any:
        values = [self._result(argument) for argument in self.routine.written]
        return self.routine.result._make(values) if self.routine.result else values[0]

    def _result(self, argument: Argument) -> Any:
        operand = self.operands[argument.name]
        if argument.is_array and argument.direction == "inout" and self.in_place:
            return self.given[argument.name]
        if self.batch:
            return operand.reshape(self.shape + operand.shape[1:])
        if not argument.is_array:
            return operand.item()
        array = operand[0]
        if argument.used:
            used = int(self.operands[argument.used][0])
            if used < len(array):
                array = array[: max(used, 0)].copy()  # of its own, without the room
        return array


def batch(routine: Callable, *arguments: Any, in_place: bool = False, **named: Any) -> Any:
    """Calls a routine for many rows at once, in a loop of the library's own speed.

    Takes the arguments of the routine, each as a single number for all rows or as an array of one
    for each row; they are broadcast as NumPy does. An array argument has its elements along its last
    axis, the rows before it. The results are those of the routine, with an array instead of each
    number, and arrays instead of each array; none is cut to its count. Rows are calculated one after
    the other, in C order. A routine that calls a function of the host's calls it in every row.

        beam = trelvin.batch(trelvin.trvro2, b, t, r1, r2, psi, ks)
    """
    known = Routine.by_name.get(getattr(routine, "__name__", ""))
    if known is None:
        raise TypeError(f"batch: {routine!r} is no routine of the library")
    bound = inspect.signature(routine).bind(*arguments, **named).arguments
    return known.call(tuple(bound.get(a.name) for a in known.inputs), in_place, batch=True)
