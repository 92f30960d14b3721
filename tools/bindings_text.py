"""What the bindings share: the names of values, comments, and lines that are not too long."""

import csv
import textwrap
from xml.sax.saxutils import escape

import model

WIDTH = 100
NOTICE = "Generated from include/trelvin by tools/generate.py."
OLD_NAMES = model.ROOT / "bindings" / "old_names.csv"


def old_names():
    """[(name of version 1.1, the name that replaces it)]; both stay for one version."""
    lines = (line for line in OLD_NAMES.read_text().splitlines() if not line.startswith("#"))
    return [(row["old"], row["new"]) for row in csv.DictReader(lines)]


def constants(interface, spelling="snake"):
    """[(comment, [(name, number)])]: each enumeration, then the names of version 1.1."""
    groups, numbers = [], {}
    for enumeration in interface.enumerations():
        spell = getattr(enumeration, spelling)
        groups.append((comment_of(enumeration), [(spell(v), v.number) for v in enumeration.values]))
        numbers |= {enumeration.snake(value): value.number for value in enumeration.values}
    old = [(name, new) for name, new in old_names() if "." not in name]
    kept = [(name if spelling == "snake" else _camel(name), numbers[new]) for name, new in old]
    return [*groups, ("Names of version 1.1, which the next version drops.", kept)]


def comment_of(enumeration):
    """What the values are of, and for one routine's own which."""
    return enumeration.comment if enumeration.shared else f"{enumeration.stem}: {enumeration.comment}."


def _camel(name):
    routine, *words = name.split("_")
    return routine + "".join(word.capitalize() for word in words)


def explanation(routine):
    """The meaning of a routine, then what its status values tell; a paragraph each."""
    written = [a for a in routine.named_values() if a.is_written]
    return [routine.brief] + [f"{a.name}: {told(a)}." for a in written]


def documented(routine, first):
    """The same as the comments of XML that C# and Pascal have."""
    for i, paragraph in enumerate(explanation(routine)):
        tag = "remarks" if i else "summary"
        yield from wrap(f"<{tag}>{escape(paragraph)}</{tag}>", first)


def told(argument):
    """The description of an argument, complete: each value with its name and meaning."""
    if not argument.values:
        return argument.text
    label = argument.meaning.partition(": ")[0]
    items = [f"{v.number} {v.name}: {v.meaning}" for v in argument.values.values]
    items += argument.values.ranges + [argument.values.other] * bool(argument.values.other)
    kept = [argument.kept.text] if argument.kept else []
    return f"{label}: " + "; ".join(items + kept)


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
