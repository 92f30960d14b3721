"""What every binding says about a routine: its meaning, its status values, what stays unwritten."""

import re
import textwrap
from dataclasses import dataclass

import contracts
import headers

WIDTH = 100
NOTICE = "Generated from include/trelvin by tools/bindings.py."


def version():
    text = (headers.INTERFACE / "calling.h").read_text()
    return re.search(r'#define TRELVIN_VERSION "(.*)"', text).group(1)


# --- statuses ---------------------------------------------------------------------------------

# Routines, output, values with their names.
NAMES = """
trvcin position: 1 uncut_above, 2 uncut_below, 3 cut_below, 4 cut_above
trvcer3 trvcer8 trvcer6 trvcer9 trvarc1 trvcer4 trvcer5 trvcer7 trvard status: 1 done, 0 refused
trvcer10 status: 0 refused, 1 along_chord, 2 parallel
trvpor status: 0 ordered, -1 refused
trvptp1 status: 0 no_pair, 1 some_pairs, 2 all_paired
trvpin status: 1 inside, 0 outside, -1 refused
trvcnt status: 1 coincident, 0 distinct
trvcnt1 status: 1 zero, 0 nonzero
trv123 trvchi trvtrg trvpl4 status: 0 done, 1 coincident
trvvin status: 1 positive, 2 not_positive
trvpos1 status: 1 at_entry, 2 between, 0 neither
trvlni trvlul status: 0 one_point, 1 same_line, 2 parallel
trvpsn trvln6 trvln7 code: 0 none, 1 all, 2 first, 3 second, 4 third, 5 first_second,
  6 second_third, 7 first_third
trvln6 trvln7 on: 1 on_line, 0 off_line
trvphip status: -1 no_length
trvcnv status: 1 convex, 0 not_convex, -1 refused
trvdir code: 0 oblique, 1 same, 2 opposite, 3 perpendicular, 4 zero
trvdirp code: 0 crossing, 1 parallel_same, 2 parallel_opposite, 3 coincident_same,
  4 coincident_opposite, 5 perpendicular, 6 zero_normal
trvmxt trvmxt_fb status: 0 done, -1 refused
trvpsl status: 0 spans_plane, 1 at_p0, 2 at_p1, 3 between, 4 beyond_p0, 5 beyond_p1
trvpl1 trvpl7 status: 0 done, 1 at_p0, 2 at_p1, 3 between, 4 beyond_p0, 5 beyond_p1
trvaxe trvaxel trvptrl trvpra status: 0 done, -2 no_frame
trvppc status: 0 done, -1 no_frame
trvpl2 trvpl3 status: 0 done, 3 same_line, 4 opposite_line, 7 coincident
trvpl5 status: 0 done, 1 no_plane
trvpl6 trv3lni status: 0 done, 3 same_line, 4 opposite_line, 6 skew, 7 zero
trvpsp status: 0 on_plane, -1 off_plane
trvpspg status: 0 on_plane, -1 off_plane, 1 zero_normal
trvplv status: -1 zero_u, 0 oblique, 3 same, 4 opposite, 5 perpendicular, 7 zero
trvdirl status: 0 crossing, 1 parallel_same, 2 parallel_opposite, 3 same_line, 4 opposite_line,
  5 perpendicular, 6 skew, 7 coincident
trv3sp status: 0 flat, 1 spanning
trv3ldb trv3lda trvpnl status: 0 done
trvpli status: 0 done, 3 parallel, 4 zero
trvplp position: 1 general, 2 parallel_x, 3 parallel_y, 4 parallel_z, 5 normal_z, 6 normal_x,
  7 normal_y, 8 at_z_zero, 9 at_x_zero, 10 at_y_zero
trvlpc status: 0 not_moved, 3 moved_one_side, 4 moved_either_side, 6 moved_skew, 7 moved_at_p
"""


@dataclass
class Constant:
    routine: str
    name: str
    value: int

    @property
    def snake(self):
        return f"{self.routine}_{self.name}"

    @property
    def camel(self):
        return self.routine + "".join(word.capitalize() for word in self.name.split("_"))


def _read_names():
    table = {}
    for line in NAMES.strip().replace("\n  ", " ").splitlines():
        subject, values = line.split(": ")
        *routines, output = subject.split()
        for routine in routines:
            table[routine, output] = [value.split() for value in values.split(", ")]
    return table


NAMED = _read_names()


def constants_of(routine):
    """The status values of a routine by their names: all that its contract lists, or none."""
    found = []
    for argument in filter(contracts.names_values, routine.arguments):
        named = NAMED.get((routine.name, argument.name), [])
        listed = re.findall(r"(?:^|; )(-?\d+)(?= )(?! to )", argument.text)
        if named and sorted(listed) != sorted(value for value, _ in named):
            raise ValueError(f"{routine.name}: {argument.name}: the contract has {listed}, "
                             f"tools/bindings_facts.py names {named}")
        found += [Constant(routine.name, name, int(value)) for value, name in named]
    return found


# --- outputs ----------------------------------------------------------------------------------

LEFT = re.compile(
    r"\bunwritten\b(?! beyond)|\bnot written\b|nothing else is written|the rest is not")


def always_written(routine, argument):
    """Whether a single output is written on every path, as far as the contract's words tell."""
    if argument.is_array or headers.TYPES[argument.type][2] != "out":
        return False
    if contracts.names_values(argument) and not LEFT.search(argument.text):
        return True
    return not LEFT.search(routine.text)


# --- text -------------------------------------------------------------------------------------


def explanation(routine):
    """The meaning of a routine, then what its status values tell; a paragraph each."""
    statuses = [a for a in routine.arguments if contracts.names_values(a)]
    return [routine.brief] + [f"{a.name}: {a.text}." for a in statuses]


def wrap(text, first, following=None, width=WIDTH):
    """Lines of a text behind a prefix."""
    following = first if following is None else following
    return textwrap.wrap(text, width, initial_indent=first, subsequent_indent=following,
                         break_long_words=False, break_on_hyphens=False)


def wrap_list(items, first, following, end, continuation="", width=WIDTH):
    """Lines of a list, `first item, item, ... end`, broken behind commas with the continuation."""
    lines = [first]
    for i, item in enumerate(items):
        piece = item + (end if i + 1 == len(items) else ",")
        space = "" if lines[-1].endswith(("(", "[")) or not lines[-1].strip() else " "
        if len(lines[-1] + space + piece + continuation) > width:
            lines[-1] += continuation
            lines.append(following + piece)
        else:
            lines[-1] += space + piece
    return lines


def groups(items):
    """Neighbours of the same key together: [(key, [item, ...])], from (key, item)."""
    result = []
    for key, item in items:
        if not result or result[-1][0] != key:
            result.append((key, []))
        result[-1][1].append(item)
    return result
