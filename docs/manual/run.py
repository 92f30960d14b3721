"""Compiles and runs the program of every task in every language and compares what they print."""

import json
import os
import shutil
import subprocess
from concurrent.futures import ThreadPoolExecutor

import model
import languages

LIBRARY = model.ROOT / "build/native/lib"
OPTIONS = ["-L", str(LIBRARY), "-ltrelvin", "-Wl,-rpath," + str(LIBRARY)]
BINDINGS = model.ROOT / "bindings"


class Failed(RuntimeError):
    """A program that does not build, fails, or prints something else than the one in C."""


def _command(words, folder):
    environment = dict(os.environ, LD_LIBRARY_PATH=str(LIBRARY), PYTHONPATH=str(folder), LC_ALL="C",
                       TRELVIN_LIBRARY=str(LIBRARY / "libtrelvin.so"))
    done = subprocess.run([str(word) for word in words], cwd=folder, env=environment, timeout=300,
                          capture_output=True, text=True)
    if done.returncode != 0:
        raise Failed(f"{' '.join(map(str, words))}\n{(done.stdout + done.stderr)[-2000:]}")
    return done.stdout


# --- once for all tasks -------------------------------------------------------------------------


def _prepare_fortran(folder):
    _command(["gfortran", "-O1", "-c", BINDINGS / "fortran/trelvin.F90"], folder)


def _prepare_pascal(folder):
    _command(["fpc", "-v0w", f"-FU{folder}", BINDINGS / "pascal/trelvin.pas"], folder)


def _prepare_csharp(folder):
    source = BINDINGS / "csharp/Trelvin.cs"
    _command(["mcs", "-target:library", "-out:Trelvin.Net.dll", source], folder)


def _prepare_python(folder):
    package = folder / "trelvin"
    shutil.copytree(BINDINGS / "python/trelvin", package, dirs_exist_ok=True)
    shutil.copy(LIBRARY / "libtrelvin.so", package)
    _command(["cc", "-O2", "-fPIC", "-shared", "-fvisibility=hidden", package / "_loop.c",
              "-o", package / "_loop.so"], folder)


def _prepare_javascript(folder):
    """The package, among those that it depends on, which ./dev setup fetches."""
    modules = model.ROOT / "build/npm/node_modules"
    shutil.copytree(BINDINGS / "node", modules / "trelvin", dirs_exist_ok=True)
    shutil.rmtree(folder / "node_modules", ignore_errors=True)
    (folder / "node_modules").unlink(missing_ok=True)
    (folder / "node_modules").symlink_to(modules)


PREPARE = {"Fortran": _prepare_fortran, "Pascal": _prepare_pascal, "C#": _prepare_csharp,
           "Python": _prepare_python, "JavaScript": _prepare_javascript}

# --- a program ----------------------------------------------------------------------------------


def _c(source, program):
    return [["gcc", "-Wall", "-Wextra", "-Werror", "-I", model.ROOT / "include", source, *OPTIONS,
             "-lm", "-o", program], [program]]


def _cpp(source, program):
    return [["g++", "-Wall", "-Wextra", "-Werror", "-I", model.ROOT / "include", source, *OPTIONS,
             "-o", program], [program]]


def _fortran(source, program):
    return [["gfortran", "-Wall", source, *OPTIONS, "-o", program], [program]]


def _pascal(source, program):
    places = [f"-Fu{source.parent}", f"-Fl{LIBRARY}", f"-o{program}"]
    return [["fpc", "-v0w", *places, source], [program]]


COMMANDS = {"C": _c, "C++": _cpp, "Fortran": _fortran, "Pascal": _pascal}


def _each(language, folder, tasks):
    return {task.name: _printed(language, folder, task) for task in tasks}


def _printed(language, folder, task):
    source = folder / f"{task.name.replace('-', '_')}.{language.suffix}"
    source.write_text(language.program(task))
    for words in COMMANDS[language.name](source, folder / f"{source.stem}.program"):
        text = _command(words, folder)
    return text


# --- all programs in one process, where starting is what takes time ------------------------------

END = "\x1e\n"  # between the outputs of two tasks


def _all_csharp(language, folder, tasks):
    classes, calls = [], []
    for task in tasks:
        name = "Task_" + task.name.replace("-", "_")
        text = language.program(task).split("\n\n", 1)[1]
        classes.append(text.replace("static class Program", f"static class {name}")
                       .replace("static void Main", "public static void Main"))
        calls.append(f'{name}.Main(); Console.Write("{END[:-1]}\\n");')
    main = f"static class All {{ static void Main() {{ {' '.join(calls)} }} }}"
    source = folder / "all.cs"
    source.write_text("\n".join(["using System;", "using Trelvin;", *classes, main]))
    _command(["mcs", "-r:Trelvin.Net.dll", "-main:All", source, "-out:all.exe"], folder)
    return _split(_command(["mono", "all.exe"], folder), tasks)


def _all_python(language, folder, tasks):
    for task in tasks:
        (folder / f"{task.name}.py").write_text(language.program(task))
    loop = "import runpy, sys\nfor program in sys.argv[1:]:\n    runpy.run_path(program)\n"
    loop += f"    print({END[:-1]!r})"
    files = [f"{task.name}.py" for task in tasks]
    return _split(_command(["/usr/bin/python3", "-c", loop, *files], folder), tasks)


def _all_javascript(language, folder, tasks):
    for task in tasks:
        (folder / f"{task.name}.mjs").write_text(language.program(task))
    loop = "for (const program of process.argv.slice(1)) {\n  await import(program);\n"
    loop += f"  console.log({json.dumps(END[:-1])});\n}}"
    files = [f"./{task.name}.mjs" for task in tasks]
    return _split(_command(["node", "--input-type=module", "-e", loop, *files], folder), tasks)


def _split(text, tasks):
    return dict(zip([task.name for task in tasks], text.split(END)))


COLUMNS = {"C": _each, "C++": _each, "Fortran": _each, "Pascal": _each, "C#": _all_csharp,
           "Python": _all_python, "JavaScript": _all_javascript}


def _column(language, folder, tasks):
    """What all tasks print in one language."""
    folder.mkdir(parents=True, exist_ok=True)
    PREPARE.get(language.name, lambda _: None)(folder)
    return COLUMNS[language.name](language, folder, tasks)


def run(tasks, folder):
    """What each task prints, the same in all languages that can be run here."""
    languages_run = [language for language in languages.ALL if language.name in COLUMNS]
    with ThreadPoolExecutor(2) as pool:
        columns = pool.map(lambda one: _column(one, folder / one.suffix, tasks), languages_run)
        columns = dict(zip([language.name for language in languages_run], columns))
    for name, column in columns.items():
        for task in tasks:
            compare(task.name, columns["C"][task.name], name, column[task.name])
    return columns["C"]


def compare(task, expected, language, printed):
    if printed != expected:
        raise Failed(f"{task}: C prints\n{expected}but {language} prints\n{printed}")
