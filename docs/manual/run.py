"""Compiles and runs the program of every task in every language and compares what they print."""

import json
import os
import shutil
import subprocess
from concurrent.futures import ThreadPoolExecutor

import model
import languages

LIBRARY = model.ROOT / "build/native/lib"
OPTIONS = ["-L", str(LIBRARY), "-ltrelvin", "-Wl,-rpath," + str(LIBRARY), "-lm"]
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


def _prepare(*command):
    return lambda folder: _command(command, folder)


PREPARE = {
    "Fortran": _prepare("gfortran", "-O1", "-c", BINDINGS / "fortran/trelvin.F90"),
    "Pascal": _prepare("fpc", "-v0w", "-FU.", BINDINGS / "pascal/trelvin.pas"),
    "C#": _prepare("mcs", "-target:library", "-out:Trelvin.Net.dll", BINDINGS / "csharp/Trelvin.cs"),
    "Python": _prepare_python,
    "JavaScript": _prepare_javascript,
}

# --- a program ----------------------------------------------------------------------------------


STRICT = ["-Wall", "-Wextra", "-Werror", "-I", model.ROOT / "include"]
COMPILERS = {"C": ["gcc", *STRICT], "C++": ["g++", *STRICT], "Fortran": ["gfortran", "-Wall"],
             "Pascal": ["fpc", "-v0w", "-Fu.", f"-Fl{LIBRARY}"]}


def _each(language, folder, tasks):
    return {task.name: _printed(language, folder, task) for task in tasks}


def _printed(language, folder, task):
    source = folder / f"{task.name.replace('-', '_')}.{language.suffix}"
    source.write_text(language.program(task))
    program = folder / f"{source.stem}.program"
    linked = [] if language.name == "Pascal" else OPTIONS
    _command([*COMPILERS[language.name], source, *linked, f"-o{program}"], folder)
    return _command([program], folder)


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


def _all_scripts(command, loop):
    """A column of programs that a loop of their own language runs, given their files."""
    def column(language, folder, tasks):
        files = [f"./{task.name}.{language.suffix}" for task in tasks]
        for task, file in zip(tasks, files):
            (folder / file).write_text(language.program(task))
        return _split(_command([*command, loop % json.dumps(END[:-1]), *files], folder), tasks)
    return column


def _split(text, tasks):
    return dict(zip([task.name for task in tasks], text.split(END)))


PYTHON = """\
import runpy, sys
for program in sys.argv[1:]:
    runpy.run_path(program)
    print(%s)"""
JAVASCRIPT = """\
for (const program of process.argv.slice(1)) {
  await import(program);
  console.log(%s);
}"""
COLUMNS = {"C": _each, "C++": _each, "Fortran": _each, "Pascal": _each, "C#": _all_csharp,
           "Python": _all_scripts(["/usr/bin/python3", "-c"], PYTHON),
           "JavaScript": _all_scripts(["node", "--input-type=module", "-e"], JAVASCRIPT)}


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
            expected, printed = columns["C"][task.name], column[task.name]
            if printed != expected:
                raise Failed(f"{task.name}: C prints\n{expected}but {name} prints\n{printed}")
    return columns["C"]
