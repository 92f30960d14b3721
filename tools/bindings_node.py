"""The JavaScript module: a function a routine, from the facts that bindings/node/call.mjs reads."""

import json

from bindings_python import Routine
from bindings_text import NOTICE, constants, explanation, wrap, wrap_list

HEAD = f"""\
// {NOTICE}
//
// Every routine of Trelvin for Node.js. Inputs are given by value, what a routine writes comes back
// as an object; ./call.mjs tells how. The contracts are in include/trelvin.
import {{ routine }} from "./call.mjs";

export const version = "%s";

/** @typedef {{ArrayLike<number>}} Numbers */
"""
NUMBERS = {"real": "Float32Array", "int": "Int32Array"}
# For npm. Of its dependency exactly the version that was tested.
PACKAGE = {
    "name": "trelvin",
    "version": "",
    "private": True,
    "description": "Plane and spatial geometry for structural engineering",
    "type": "module",
    "exports": "./trelvin.mjs",
    "files": ["call.mjs", "trelvin.mjs"],
    "engines": {"node": ">=18"},
    "dependencies": {"koffi": "3.3.4"},
}


def package(interface):
    return json.dumps(PACKAGE | {"version": interface.version}, indent=2) + "\n"


def text(interface):
    lines = [HEAD % interface.version]
    for comment, values in constants(interface, "camel"):
        lines += ["", *wrap(comment, "// ")]
        lines += [f"export const {name} = {number};" for name, number in values]
    for family in interface.families:
        lines += ["", f"// {family.title}"]
        for routine in family.routines:
            facts = Routine(routine, named=str)
            lines += ["", "/**", *_comment(routine), *_type(facts), " */", *_declaration(facts)]
    return "\n".join(lines) + "\n"


def _comment(routine):
    for paragraph in explanation(routine):
        yield from wrap(paragraph, " * ")
        yield " *"


def _type(facts):
    positional = [a for a in facts.inputs if not a.lengths_of]
    named = [f"{a.name}?: number" for a in facts.inputs if a.lengths_of]
    given = [f"{a.name}: {_given(a)}" for a in positional]
    given += [f"counts?: {{{', '.join(named)}}}"] if named else []
    written = [f"{a.name}: {NUMBERS[a.kind] if a.is_array else 'number'}" for a in facts.written]
    yield from wrap(f"@type {{({', '.join(given)}) => {{{', '.join(written)}}}}}", " * ", " *   ")


def _given(argument):
    if argument.kind == "function":
        return "(position: number) => number"
    return "Numbers" if argument.is_array else "number"


def _declaration(facts):
    pieces = [f'"{argument.fact()}"' for argument in facts.arguments]
    first = f'export const {facts.name} = routine("{facts.name}", ['
    yield from wrap_list(pieces, first, "  ", "]);")
