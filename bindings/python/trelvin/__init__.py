"""Plane and spatial geometry for structural engineering, over NumPy.

Every routine of the library is a function of the same name. Inputs are given by value, in the order
of the contract; what the routine writes comes back, as a named tuple where it is more than one.

Reals are rounded to single precision on the way in. Integers must be whole. Arrays may be anything
that NumPy makes an array of; they are copied, so that yours stay as they are. With `in_place=True`
the arrays that a routine changes are changed themselves: they must be float32 or int32 then, and
C-contiguous.

Numbers of elements may be left out where an array tells them. Where the library needs room behind
the last element of an array that it changes, the copy has it: `trvapl(x, y).area` is all there is
to the area of a polygon. A number that is given must not be more than the arrays hold.

What a routine leaves unwritten is NaN where it is a Real, and 0 where it is an Integer. Arrays with
a count come back with as many elements as it says.

A status comes back as a member of its enumeration: `TrvPlaneLines.PARALLEL`. `MEANINGS` tells what
each value means. `batch` calls a routine for many rows at once.

Routines that retain nothing may be called from several threads at once. The others hold the
interpreter's lock, but share what they retain.
"""

from ._call import batch
from ._routines import *  # noqa: F403
from ._routines import MEANINGS
from ._routines import __all__ as _names
from ._version import __version__

__all__ = ["MEANINGS", "__version__", "batch", *_names]
