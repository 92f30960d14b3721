"""The index by words: which routines, tasks and pages answer to an engineer's word."""

import re
from pathlib import Path

FILE = Path(__file__).resolve().parents[1] / "words.txt"


def read():
    """(word, [target, ...]) in the order of the alphabet; a target is a routine or a page."""
    lines = [line for line in FILE.read_text().splitlines() if line and not line.startswith("#")]
    pairs = [line.split(": ") for line in lines]
    return sorted(((word, targets.split()) for word, targets in pairs), key=lambda p: p[0].lower())


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
    for word, targets in read():
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
    for word, targets in read():
        for target in targets:
            found.setdefault(target, []).append(word)
    return found
