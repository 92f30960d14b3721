"""The directives of the manual, the anchors of its routines and the entries of its index."""

import csv
import os
import re
from pathlib import Path

from docutils import nodes
from docutils.parsers.rst import Directive, directives
from docutils.statemachine import StringList
from sphinx import addnodes
from sphinx.transforms import SphinxTransform
from sphinx.util import logging
from sphinx.util.docutils import ReferenceRole, SphinxRole

import facts
import languages
import reference
import words

LOG = logging.getLogger(__name__)
FENCE = "`" * 3


class _OfManual(Directive):
    @property
    def env(self):
        return self.state.document.settings.env

    def markdown(self, lines):
        """The nodes of a text."""
        node = nodes.Element()
        source = self.state.document.current_source
        self.state.nested_parse(StringList(list(lines), source), self.content_offset, node)
        return node.children

    def path_from_page(self, file):
        """Where a file is, seen from the page."""
        self.env.note_dependency(str(file))
        return os.path.relpath(file, Path(self.env.doc2path(self.env.docname)).parent)


class Figure(_OfManual):
    """A figure that the library draws of its own results; the content is its caption."""

    required_arguments = 1
    has_content = True

    def run(self):
        name = self.arguments[0]
        folders = [Path(self.env.config.trelvin_figures), Path(self.env.srcdir)]
        file = next((f for f in (folder / f"{name}.svg" for folder in folders) if f.exists()), None)
        if not file:
            LOG.warning("no figure %s", name, location=self.env.docname)
            return []
        caption = nodes.caption("", "", *self.markdown(self.content)[0].children)
        wide = float(re.search(r'width="([\d.]+)', file.read_text()).group(1)) > 600
        figure = nodes.figure(classes=["drawn", "wide"] if wide else ["drawn"])
        figure += nodes.image(uri=self.path_from_page(file), alt=caption.astext(), candidates={})
        figure += caption
        return [figure]


class Task(_OfManual):
    """The calls of a task in every language, and what they printed when the manual was built.

    Folded, what they printed comes first and the calls are opened by a click.
    """

    required_arguments = 1
    option_spec = {"folded": directives.flag}

    def run(self):
        name = self.arguments[0]
        task, printed = self.env.config.trelvin_tasks[name]
        self.env.note_dependency(str(Path(__file__).parents[1] / "calls" / f"{name}.calls"))
        program = []
        for language in languages.ALL:
            program += [f"{FENCE}`{{tab}} {language.name}", f"{FENCE}{language.lexer}",
                        *language.program(task).splitlines(), FENCE, f"{FENCE}`"]
        links = ", ".join(f"[`{routine}`]({routine})" for routine in task.routines)
        output = [f"{FENCE}text", *printed.splitlines(), FENCE]
        if "folded" not in self.options:
            told = f"Calls: {links}. Printed, by all of them but Basic, which was not run:"
            return self.markdown([*program, "", told, "", *output])
        summary = '<details class="calls"><summary>The calls that printed this</summary>'
        return [*self.markdown(output), nodes.raw("", summary, format="html"),
                *self.markdown([*program, "", f"Calls: {links}. Basic was not run."]),
                nodes.raw("", "</details>", format="html")]


class Table(_OfManual):
    """A table from a CSV file of docs/; lines behind # are shown as text."""

    required_arguments = 1

    def run(self):
        file = Path(self.env.srcdir) / self.arguments[0]
        self.path_from_page(file)
        lines = file.read_text().splitlines()
        notes = [line.lstrip("# ") for line in lines if line.startswith("#")]
        head, *rows = csv.reader(line for line in lines if line and not line.startswith("#"))
        head, rows, further = self.arranged(head, rows)
        shown = [*notes, "", f"{FENCE}{{table}}", ":class: measured", "", f"| {' | '.join(head)} |",
                 "|---" * len(head) + "|"]
        shown += ["| " + " | ".join(map(self._cell, row)) + " |" for row in rows]
        return self.markdown([*shown, FENCE, "", *further])

    def arranged(self, head, rows):
        """Head and rows as they are shown, and lines behind the table."""
        return head, rows, []

    def _cell(self, text):
        if text in self.env.config.trelvin_routines:
            return f"[`{text}`]({text})"
        return reference.escaped(text)


class Accuracy(Table):
    """The errors of an output near and far from the origin side by side."""

    def arranged(self, head, rows):
        errors, notes, without = {}, {}, {}
        for routine, output, where, median, worst, note in rows:
            if not where:
                without.setdefault(note or "not measured", []).append(routine)
                continue
            place = errors.setdefault((routine, output), {})
            place[where] = [re.sub(r"e\+0?", "e", figure) for figure in (median, worst)]
            notes.setdefault((routine, output), set()).add(note)
        head = ["Routine", "Output", "near: median", "worst", "far: median", "worst", "Note"]
        nothing = ["", ""]
        rows = [[*key, *place.get("origin", nothing), *place.get("far", nothing),
                 "; ".join(sorted(notes[key] - {""}))] for key, place in errors.items()]
        further = [f"{note[0].upper()}{note[1:]}: {', '.join(map(self._cell, routines))}.\n"
                   for note, routines in without.items()]
        return head, rows, "\n".join(further).splitlines()


class Anchors(SphinxTransform):
    """A routine's heading answers to its name as it is written, and the index has its words."""

    default_priority = 500  # before the index is collected

    def apply(self, **kwargs):
        entries = words.entries()
        of_page = entries.get(self.env.docname, [])
        for section in list(self.document.findall(nodes.section)):
            name = section.next_node(nodes.title).astext()
            if name in self.config.trelvin_routines and self._is_its_contract(name):
                if name not in section["ids"]:
                    section["ids"].append(name)
                self._index(section, name, section["ids"][0], entries.get(name, []), True)
            elif section.parent is self.document:
                self._index(section, name, section["ids"][0], of_page, False)

    def _is_its_contract(self, name):
        return self.env.docname == self.config.trelvin_routines[name]

    @staticmethod
    def _index(section, name, anchor, its_words, itself):
        found = [("single", f"{word}; {name}", anchor, "", None) for word in its_words]
        found += [("single", name, anchor, "main", None)] if itself else []
        if found:
            section.insert(1, addnodes.index(entries=found))


class Checked(ReferenceRole):
    """A text that says what the library does, by an expression of facts.py."""

    def run(self):
        try:
            fault = facts.difference(self.title, facts.value(self.target))
        except Exception as problem:  # of whatever kind: the page is at fault
            fault = f"no fact ({problem!r})"
        if fault:
            LOG.warning("'%s': the library gives %s", self.title, fault, location=self.get_location())
        return [nodes.inline(self.title, self.title, classes=["checked"])], []


class Said(SphinxRole):
    """A number or a word of sense that is not the library's: a definition, a reference."""

    def run(self):
        return [nodes.inline(self.text, self.text, classes=["checked"])], []


class NothingUnchecked(SphinxTransform):
    """Numbers and words of sign, sense and unit need a fact, on the pages that tell of the library."""

    default_priority = 500
    shown = (nodes.literal, nodes.literal_block, nodes.raw, nodes.image)

    def apply(self, **kwargs):
        if not re.match(r"accuracy$|conventions$|tasks/", self.env.docname):
            return
        for text in self.document.findall(nodes.Text):
            for word in [] if self._is_left_out(text.parent) else facts.careful(text):
                LOG.warning("'%s' in '%s': no fact stands behind it", word, text,
                            location=text.parent)

    def _is_left_out(self, node):
        """Whether a node is shown as it is, or has its fact, or stands in one of which that is so."""
        return node and (isinstance(node, self.shown) or {"checked", "measured"} & {*node["classes"]}
                         or self._is_left_out(node.parent))


class NothingOutside(SphinxTransform):
    """An address outside of the manual is shown, not linked to."""

    default_priority = 500

    def apply(self, **kwargs):
        for link in list(self.document.findall(nodes.reference)):
            address = link.get("refuri", "")
            if re.match(r"https?:", address):
                told = [] if address in link.astext() else [nodes.Text(f" ({address})")]
                link.replace_self([*link.children, *told])


def without_link(app, env, node, contents):
    """A file or folder of the sources that is no page, nor can be taken along, is named alone."""
    folder = Path(env.doc2path(node.get("refdoc", env.docname))).parent
    return contents if (folder / node["reftarget"]).exists() else None


def with_page_of_designer(app, page, source):
    """What docs/designer.md tells stands on another page: designer.html is the designer itself."""
    if page == "section_designer":
        source[0] += "\n" + (Path(app.srcdir) / "designer.md").read_text().split("\n", 1)[1]


def setup(app):
    app.add_config_value("trelvin_figures", "", "env")
    app.add_config_value("trelvin_tasks", {}, "")
    app.add_config_value("trelvin_routines", {}, "")
    app.add_directive("trelvin-figure", Figure)
    app.add_directive("trelvin-task", Task)
    app.add_directive("trelvin-table", Table)
    app.add_directive("trelvin-accuracy", Accuracy)
    app.add_role("checked", Checked())
    app.add_role("said", Said())
    app.add_transform(Anchors)
    app.add_transform(NothingUnchecked)
    app.add_transform(NothingOutside)
    app.connect("missing-reference", without_link)
    app.connect("source-read", with_page_of_designer)
    return {"parallel_read_safe": True}
