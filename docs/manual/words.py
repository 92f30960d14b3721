"""The index by words: which routines, tasks and pages answer to an engineer's word.

What an entry points to must have all its words, or one of the terms in parentheses behind them.
"""

import re
from pathlib import Path

FILE = Path(__file__).resolve().parents[1] / "words.txt"


def _entries():
    """(word, other terms, targets) in the order of the alphabet; a target is a routine or a page."""
    lines = [line for line in FILE.read_text().splitlines() if line and not line.startswith("#")]
    entries = [re.fullmatch(r"([^(:]+?)(?: \((.+)\))?: (.+)", line).groups() for line in lines]
    entries = [(word, (terms or "").split(", "), targets.split()) for word, terms, targets in entries]
    return sorted(entries, key=lambda entry: entry[0].lower())


ENDING = re.compile(r"(ies|es|s|ing|ed|ion|al|y)$")
SMALL = "of by to in the an on from a"


def _has(text, term):
    """Whether a text has all words of a term, but for their endings."""
    words = [word for word in re.findall(r"\w+", term.lower()) if word not in SMALL.split()]
    stems = [ENDING.sub("", word) if word[2:] else rf"{word}\b" for word in words]
    return bool(stems) and all(re.search(rf"\b{stem}", text) for stem in stems)


def lost(writer):
    """Entries that point to what has none of their words."""
    texts = {r.name: f"{r.group or family.title} {r.text} {r.name.replace('_', ' ')}".lower()
             for family in writer.interface.families for r in family.routines}
    for word, terms, targets in _entries():
        for target in targets:
            pages = [FILE.parent / f"{page}.md" for page in (target, target.removeprefix("section_"))]
            text = " ".join(file.read_text().lower() for file in pages if file.exists())
            text = texts.get(target, text)
            if not any(_has(text, term) for term in (word, *terms)):
                yield f"words.txt: {word}: neither this nor another term is in {target}"


def title_of(page):
    """The title of a page that is written by hand; of a generated one its name."""
    file = FILE.parent / f"{page}.md"
    match = re.search(r"^# (.+)$", file.read_text(), re.M) if file.exists() else None
    return match.group(1) if match else page.split("/")[-1].capitalize()


def page(writer):
    """Markdown of the page that lists them."""
    lines = ["# Find by word", "", "A word of the trade, the task that shows how it is done, and "
             "the routines. The search box and the [index](genindex) know the same words.", ""]
    letter = ""
    for word, _, targets in _entries():
        if word[0].upper() != letter:
            letter = word[0].upper()
            lines += [f"## {letter}", ""]
        pages = [f"[{title_of(t)}](../{t}.md)" for t in targets if t not in writer.page_of]
        routines = [writer.link(t) for t in targets if t in writer.page_of]
        lines += [f"**{word}**", f": {', '.join(pages + routines)}", ""]
    return [line.replace("[index](genindex)", "{ref}`index <genindex>`") for line in lines]


def entries():
    """For the index of Sphinx: {target: [word, ...]}."""
    found = {}
    for word, _, targets in _entries():
        for target in targets:
            found.setdefault(target, []).append(word)
    return found
