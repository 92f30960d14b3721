"""How a routine is called: what is given is checked, room is made, and what is written returned."""

from __future__ import annotations

import ctypes
import inspect
import math
import re
import struct
from enum import IntEnum
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
    is_array: bool = False


def _argument(text: str) -> Argument:
    direction, kind, name, sizes, used, by, least, arrays = _ARGUMENT.fullmatch(text).groups()
    return Argument(
        direction, kind, name, None if sizes is None else sizes.split(", "), used, by,
        None if least is None else int(least), tuple((arrays or "").split()), sizes is not None,
    )


@lru_cache(maxsize=None)
def _expression(text: str):
    return compile(text, text, "eval")


def _size(text: str, counts: dict) -> int:
    return eval(_expression(text), {"max": max, "__builtins__": {}}, counts)


class Routine:
    """A routine of the library, from the facts of its contract."""

    by_name: dict[str, Routine] = {}

    def __init__(
        self, name: str, result: type | None, arguments: str, retains: bool = False,
        values: dict[str, type[IntEnum]] | None = None,
    ):
        self.name = name
        self.arguments = [_argument(text) for text in arguments.split("; ")]
        self.inputs = [a for a in self.arguments if a.direction != "out"]
        self.written = [a for a in self.arguments if a.direction != "in"]
        outputs = [a for a in self.arguments if a.direction == "out"]
        self.single_outputs = {
            kind: [a.name for a in outputs if a.kind == kind and not a.is_array] for kind in _TYPES
        }
        self.array_outputs = [a for a in outputs if a.is_array]
        self.result = result
        self.values = [  # of the results: the place, and the members by their numbers
            (i, {member.value: member for member in values[a.name]})
            for i, a in enumerate(self.written)
            if values and a.name in values
        ]
        self.named = {a.name: a for a in self.arguments}
        sized = " ".join(size for a in self.arguments if a.is_array for size in a.sizes)
        self.counts = [a for a in self.inputs if a.name in re.findall(r"[A-Za-z]\w*", sized)]
        self._address = ctypes.cast(getattr(_LIBRARY, name), ctypes.c_void_p).value
        self.retains = retains
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
        # In the standard form, which refuses what a Real can not hold; the native one would not.
        self._pack = struct.Struct("=" + "".join(_CELL[a.kind] for a in order)).pack
        self._unpack = struct.Struct("=" + "".join(_CELL[a.kind] for a in self.written)).unpack_from
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
        return self.results(self._unpack(block, self._first_written))

    def results(self, written: Any) -> Any:
        """What the caller gets: each status as the member of its enumeration."""
        if self.values:
            written = list(written)
            for i, members in self.values:
                written[i] = members.get(written[i], written[i])
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
        self.columns: dict[str, np.ndarray] = {}  # of each kind, a row of numbers an output
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
        with np.errstate(over="ignore"):
            converted = array.astype(wanted)
        if argument.kind == "real" and (np.isinf(converted) & np.isfinite(array)).any():
            problem = f"needs {name}s of single precision; {what} given"
            raise self._fault(ValueError, argument, problem)
        return converted

    def _count(self):
        """The counts that are left out, and the sizes that all counts ask for."""
        for argument in self.routine.inputs:
            if argument.name not in self.given:
                self.given[argument.name] = self._length(argument)
            is_count = argument in self.routine.counts
            least = max(0, argument.least or 0) if is_count else argument.least
            if least is None:
                continue
            numbers = self.given[argument.name].ravel().tolist()
            if min(numbers, default=least) < least:
                given = f"must be at least {least}; {min(numbers)} given"
                raise self._fault(ValueError, argument, given)
            self.counts[argument.name] = max(numbers, default=0)

    def _length(self, argument: Argument) -> np.ndarray:
        """Of the arrays that a count belongs to; 0 where their kind has no use for it."""
        lengths = {
            name: self.given[name].shape[-1]
            for name in argument.lengths_of
            if argument.name in " ".join(self._expressions(self.routine.named[name]))
        }
        if len(set(lengths.values())) > 1:
            told = ", ".join(f"{array} has {n}" for array, n in lengths.items())
            raise self._fault(ValueError, argument, f"is one number of elements; {told}")
        return np.array(next(iter(lengths.values()), 0), np.int32)

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
                           for text in expressions]
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
        if not self.batch:
            return
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
        spread = array
        if array.shape != self.shape + core:
            spread = np.broadcast_to(array, self.shape + core)
        spread = spread.reshape((self.rows,) + core)
        if argument.direction == "inout":
            room = (max(core[0], self._room(argument)),) if core else ()
            copy = np.empty((self.rows,) + room, array.dtype)
            if core:
                copy[:, core[0] :] = _START[argument.kind]
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
        for kind, names in self.routine.single_outputs.items():
            self.columns[kind] = np.empty((len(names), self.rows), _TYPES[kind])
            self.columns[kind].fill(_START[kind])
        for argument in self.routine.array_outputs:
            room = (self.rows, self._room(argument))
            # Zeros take no memory before they are written, nor does what is cut anyhow.
            empty = np.zeros if argument.kind == "int" else np.empty
            array = empty(room, _TYPES[argument.kind])
            if argument.kind == "real" and (self.batch or not argument.used):
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
        places = {name: _place(operand) for name, operand in self.operands.items()}
        for kind, names in self.routine.single_outputs.items():
            first, stride = _place(self.columns[kind])
            places.update((name, (first + i * stride, 4)) for i, name in enumerate(names))
        for argument in self.routine.inputs:
            if argument.kind == "function":
                function = ctypes.cast(self.given[argument.name], ctypes.c_void_p)
                places[argument.name] = (function.value, 0)
        addresses, strides = zip(*(places[argument.name] for argument in self.routine.arguments))
        count = len(addresses)
        words = ctypes.c_ssize_t * count
        offsets, strides = words(*addresses), words(*strides)
        self.routine._loop(self.routine._address, count, None, offsets, strides, self.rows)

    def _results(self) -> Any:
        for kind, names in self.routine.single_outputs.items():
            columns = self.columns[kind]
            self.operands.update(zip(names, columns if self.batch else columns[:, 0].tolist()))
        values = [self._result(argument) for argument in self.routine.written]
        if not self.batch:
            return self.routine.results(values)
        return self.routine.result._make(values) if self.routine.result else values[0]

    def _result(self, argument: Argument) -> Any:
        operand = self.operands[argument.name]
        if argument.is_array and argument.direction == "inout" and self.in_place:
            return self.given[argument.name]
        if self.batch:
            return operand.reshape(self.shape + operand.shape[1:])
        if not argument.is_array:
            return operand.item() if argument.direction == "inout" else operand
        array = operand[0]
        if argument.used:
            used = int(self.operands[argument.used])
            if used < len(array):
                array = array[: max(used, 0)].copy()  # of its own, without the room
        return array


def _place(array: np.ndarray) -> tuple[int, int]:
    return array.__array_interface__["data"][0], array.strides[0]


def batch(routine: Callable, *arguments: Any, in_place: bool = False, **named: Any) -> Any:
    """Calls a routine for many rows at once, in a loop of the library's own speed.

    Takes the arguments of the routine, each as a single number for all rows or as an array of one
    a row; they are broadcast as NumPy does. An array argument has its elements along its last axis
    and the rows before it. The results are those of the routine, with an array for each number, and
    rows of elements for each array, none cut to its count. Rows are computed one after the other,
    in C order.

        rho = trelvin.batch(trelvin.trvro2, b, t, r1, r2, psi, ks)
    """
    known = Routine.by_name.get(getattr(routine, "__name__", ""))
    if known is None:
        raise TypeError(f"batch: {routine!r} is no routine of the library")
    bound = inspect.signature(routine).bind(*arguments, **named).arguments
    return known.call(tuple(bound.get(a.name) for a in known.inputs), in_place, batch=True)
