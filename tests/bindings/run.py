#!/usr/bin/python3
"""Builds hosts in every language as the pages tell, runs them and compares their table.

    tests/bindings/run.py [native] [windows]

Native needs build/native, windows build/windows and Wine. The commands are those of the pages in
docs, so that a page with a broken command fails; probes of all routines are compiled by them too.
"""

import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
OUT = ROOT / "build" / "bindings"
NODE_WIN32 = ROOT / "build/npm/node_modules/node-win-x86/bin"
sys.path.insert(0, str(ROOT / "tools"))

import basic  # noqa: E402
import model  # noqa: E402
import names  # noqa: E402
import pages  # noqa: E402
import probes  # noqa: E402
import values  # noqa: E402

INTERFACE = model.read()
ROUTINES = INTERFACE.routines
PROBES = {"fortran": ("probe.f90", probes.fortran), "pascal": ("probe.pas", probes.pascal),
          "csharp": ("Probe.cs", probes.csharp), "node": ("probe.mjs", values.javascript)}
EXAMPLES = {"cpp": "girder.c", "fortran": "girder.f90", "pascal": "girder.pas", "csharp": "Girder.cs"}
RUNNERS = {("native", "csharp"): "mono", ("native", "node"): "node",
           ("windows", "node"): f"{NODE_WIN32}/node.exe"}
LANGUAGES = {"native": ["cpp", "fortran", "pascal", "csharp", "node"],
             "windows": ["cpp", "fortran", "pascal", "node"]}
STRICT = {"cpp": "-Wall -Werror", "fortran": "-Werror", "csharp": "-warnaserror"}
passed, failed = 0, 0


def report(name, problem=""):
    global passed, failed
    passed, failed = passed + (not problem), failed + bool(problem)
    print(f"FAILED  {name}: {problem}" if problem else f"ok      {name}", flush=True)


def run(command, **options):
    return subprocess.run(command, cwd=ROOT, capture_output=True, text=True, timeout=600, **options)


def table_of(platform, language, program, lib):
    """What a program prints, or why it does not."""
    environment = dict(os.environ, LD_LIBRARY_PATH=str(lib))
    environment["TRELVIN_LIBRARY"] = str(lib / "libtrelvin.so")
    before = [RUNNERS[platform, language]] if (platform, language) in RUNNERS else []
    if platform == "windows":
        environment["TRELVIN_LIBRARY"] = str(ROOT / "build/windows/bin/Trelvin.dll")
        environment["NODE_SKIP_PLATFORM_CHECK"] = "1"  # Wine says that it is Windows 7
        before[:0] = [str(ROOT / "cmake/wine.sh"), "32"]
    # Files, since Node.js under Wine cannot write to the pipes of Linux.
    with open(OUT / "printed.txt", "w+") as printed, open(OUT / "errors.txt", "w+") as errors:
        command = [*before, program]
        code = subprocess.call(command, cwd=OUT, env=environment, stdout=printed, stderr=errors,
                               timeout=600)
        for file in (printed, errors):
            file.seek(0)
        return printed.read() if code == 0 else f"exit {code}: {errors.read()[-400:]}"


def command_of(platform, language, source, program):
    """How the page of a language compiles its example, for another source."""
    if language == "node":
        return f"cp {source} {program}"
    folder, page = ("c", "c") if language == "cpp" else (language, language)
    example = f"examples/{folder}/{EXAMPLES[language]}"
    (command,) = [line for heading, line in pages.commands_of(page)
                  if example in line and (heading == "On Windows") == (platform == "windows")]
    command = command.partition(" && ")[0].replace(example, str(source))
    command = re.sub(r"build/(windows/bin/)?girder(\.exe)?", str(program), command)
    if language == "cpp":
        command = re.sub(r"^(\S*)gcc", r"\1g++", command)
        command += " -static" * (platform == "windows")
    return command.replace(" ", f" {STRICT.get(language, '')} ", 1)


def check_host(platform, language, source, expected):
    name = f"{platform}: {source.relative_to(ROOT)}"
    out = ROOT / "build/node" if language == "node" else OUT / platform / language
    out.mkdir(parents=True, exist_ok=True)
    lib = ROOT / "build" / platform / "lib"
    if platform == "windows":
        shutil.copy(ROOT / "build/windows/bin/Trelvin.dll", out)
    program = out / (source.name if language == "node" else f"{source.stem.lower()}.exe")
    packages = f"{ROOT}/build/pages/trelvin/lib/pkgconfig"  # where README's commands put it
    built = run(command_of(platform, language, source, program), shell=True,
                env={**os.environ, "PKG_CONFIG_PATH": packages})
    if built.returncode != 0:
        report(name, "does not build:\n" + (built.stdout + built.stderr)[-2000:])
        return
    table = table_of(platform, language, str(program), lib)
    report(name, "" if table == expected else f"other output:\n{table}")


def check_language(platform, language):
    if language == "node":
        check_host(platform, language, ROOT / "tests/bindings/node_test.mjs", "")
    if language == "cpp":
        check_host(platform, language, ROOT / "examples/cpp/girder.cpp", pages.GIRDER)
    if language in PROBES:
        file, text = PROBES[language]
        source = OUT / file
        calls = text(ROUTINES)
        if language == "fortran" and platform == "native":  # functions of the platform's convention
            calls = re.sub(r".*ATTRIBUTES STDCALL.*\n", "", calls)
        source.write_text(calls)
        check_host(platform, language, source, "")


def check_pages(platforms):
    """The commands of the pages, which also install what the probes need."""
    for folder in ("node", "venv"):
        shutil.rmtree(ROOT / "build" / folder, ignore_errors=True)
    done = set()
    for page in pages.BINDINGS:
        report(f"{page}.md: names of the binding", ", ".join(pages.unknown_names(page)))
    for page in pages.PAGES:
        for name, problem in pages.faults(page, "windows" in platforms, done):
            report(name, problem)


def printed_by(language, name, code):
    """What a program in C or C++ prints, or why it does not build."""
    compiler, suffix, standard = {"C": ("gcc", "c", "c11"), "C++": ("g++", "cpp", "c++17")}[language]
    source, program = OUT / f"{name}.{suffix}", OUT / f"{name}_{suffix}"
    source.write_text(code)
    flags = f"-std={standard} -Wall -Wextra -Wpedantic -Werror -Iinclude -Lbuild/native/lib"
    built = run([compiler, *flags.split(), source, "-ltrelvin", "-o", program])
    return built.stderr or table_of("native", "c", str(program), ROOT / "build/native/lib")


def check_names():
    """Names of values, and the examples at the heads of the headers."""
    code = names.program(INTERFACE)
    printed = {language: printed_by(language, "names", code) for language in ("C", "C++")}
    report("names: the same in eight languages", "; ".join(names.faults(INTERFACE, printed)))
    code, expected = names.examples(INTERFACE)
    got = printed_by("C", "examples", code)
    report("examples of the headers", "" if got == expected else f"other output:\n{got}")


def main():
    platforms = sys.argv[1:] or ["native", "windows"]
    OUT.mkdir(parents=True, exist_ok=True)
    os.chdir(OUT)  # one routine writes a trace file where it is
    report("basic: every routine as its header has it", "; ".join(basic.faults(INTERFACE)))
    check_pages(platforms)
    for platform in platforms:
        if not list((ROOT / "build" / platform / "lib").glob("lib*")):
            report(platform, f"the library is missing: cmake --build --preset {platform}")
            continue
        if platform == "native":
            check_names()
        for language in LANGUAGES[platform]:
            check_language(platform, language)
    print(f"{passed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
