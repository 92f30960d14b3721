"""Compiles and runs the program of every task in every language and compares what they print."""

import os
import shutil
import subprocess
from concurrent.futures import ThreadPoolExecutor

import headers
import languages

LIBRARY = headers.ROOT / "build/native/lib"
OPTIONS = ["-L", str(LIBRARY), "-ltrelvin", "-Wl,-rpath," + str(LIBRARY)]
BINDINGS = headers.ROOT / "bindings"


class Failed(RuntimeError):
    """A program that does not build, fails, or prints something else than the one in C."""


def _command(words, folder):
    environment = dict(os.environ, LD_LIBRARY_PATH=str(LIBRARY), PYTHONPATH=str(folder), LC_ALL="C")
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
    _command(["mcs", "-target:library", "-out:Trelvin.Net.dll", BINDINGS / "csharp/Trelvin.cs"], folder)


def _prepare_python(folder):
    package = folder / "trelvin"
    shutil.copytree(BINDINGS / "python/trelvin", package, dirs_exist_ok=True)
    shutil.copy(LIBRARY / "libtrelvin.so", package)
    _command(["cc", "-O2", "-fPIC", "-shared", "-fvisibility=hidden", package / "_loop.c",
              "-o", package / "_loop.so"], folder)


PREPARE = {"Fortran": _prepare_fortran, "Pascal": _prepare_pascal, "C#": _prepare_csharp,
           "Python": _prepare_python}

# --- a program ----------------------------------------------------------------------------------


def _c(source, program):
    return [["gcc", "-Wall", "-Wextra", "-Werror", "-I", headers.ROOT / "include", source, *OPTIONS,
             "-lm", "-o", program], [program]]


def _fortran(source, program):
    return [["gfortran", "-Wall", "-Wno-unused-variable", source, *OPTIONS, "-o", program], [program]]


def _pascal(source, program):
    return [["fpc", "-v0w", f"-Fu{source.parent}", f"-Fl{LIBRARY}", source, f"-o{program}"], [program]]


def _csharp(source, program):
    return [["mcs", "-r:Trelvin.Net.dll", source, f"-out:{program}.exe"], ["mono", f"{program}.exe"]]


def _python(source, _program):
    return [["/usr/bin/python3", source]]


COMMANDS = {"C": _c, "Fortran": _fortran, "Pascal": _pascal, "C#": _csharp, "Python": _python}


def _printed(language, folder, task):
    source = folder / f"{task.name.replace('-', '_')}.{language.suffix}"
    source.write_text(language.program(task))
    for words in COMMANDS[language.name](source, folder / f"{source.stem}.program"):
        text = _command(words, folder)
    return text


def _column(language, folder, tasks):
    """What all tasks print in one language."""
    folder.mkdir(parents=True, exist_ok=True)
    PREPARE.get(language.name, lambda _: None)(folder)
    return {task.name: _printed(language, folder, task) for task in tasks}


def run(tasks, folder):
    """What each task prints, the same in all languages that can be run here."""
    languages_run = [language for language in languages.ALL if language.name in COMMANDS]
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
