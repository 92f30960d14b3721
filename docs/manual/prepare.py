"""What is made before Sphinx runs: generated pages, and what the programs of the tasks print."""

import json
from pathlib import Path

import calls
import model
import reference
import run
import words

DOCS = Path(__file__).resolve().parents[1]
BUILD = model.ROOT / "build/manual"
PRINTED = BUILD / "printed.json"


def tasks():
    """The tasks of docs/calls, by their names."""
    routines = {routine.name: routine for routine in model.read().routines}
    return {path.stem: calls.read(path, routines) for path in sorted(DOCS.glob("calls/*.calls"))}


def prepare():
    printed = run.run(list(tasks().values()), BUILD / "tasks")
    pages = reference.write(DOCS / "reference", words.page)
    lost = list(words.lost(reference.Writer(model.read())))
    if lost:
        raise calls.Faulty("\n".join(lost))
    PRINTED.write_text(json.dumps({"printed": printed, "pages": pages}))


def results():
    """The page of each routine, and each task with what it printed."""
    found = json.loads(PRINTED.read_text())
    return found["pages"], {name: (task, found["printed"][name]) for name, task in tasks().items()}
