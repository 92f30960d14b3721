#!/usr/bin/python3
"""Builds hosts in every language against the built libraries, runs them and compares their table.

    tests/bindings/run.py [native] [windows]

Native needs build/native, windows build/windows and Wine. A compiler that is missing is a failure,
but for those to Windows that are no package: free_pascal_win32.sh and node_win32.sh fetch them.
"""

import json
import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
OUT = ROOT / "build" / "bindings"
PASCAL_WIN32 = ROOT / "build" / "free-pascal-win32"
NODE_WIN32 = ROOT / "build" / "node-win32"
sys.path.insert(0, str(ROOT / "tools"))

import headers  # noqa: E402
import probes  # noqa: E402
import values  # noqa: E402

FAMILIES = headers.read_all()
ROUTINES = headers.routines_of(FAMILIES)
PROBES = {"fortran": ("probe.f90", probes.fortran), "pascal": ("probe.pas", probes.pascal),
          "csharp": ("Probe.cs", probes.csharp), "node": ("probe.mjs", values.javascript)}
EXAMPLES = {"c": "girder.c", "cpp": "girder.cpp", "fortran": "girder.f90", "pascal": "girder.pas",
            "csharp": "Girder.cs", "node": "girder.mjs"}

WINDOWS_LINK = "-static {lib}/libTrelvin.dll.a"
RUNNERS = {("native", "csharp"): "mono", ("native", "node"): "node",
           ("windows", "node"): f"{NODE_WIN32}/node.exe"}
# Platform, language: package of Debian, command. The first word of a command is the compiler.
COMMANDS = {
    ("native", "c"): ("gcc", "gcc -O2 -Iinclude {source} -L{lib} -ltrelvin -lm -o {program}"),
    ("native", "cpp"): ("g++", "g++ -O2 -Iinclude {source} -L{lib} -ltrelvin -o {program}"),
    ("native", "fortran"): (
        "gfortran",
        "gfortran -O2 -Werror -J{out} bindings/fortran/trelvin.F90 {source} -L{lib} -ltrelvin"
        " -o {program}"),
    ("native", "pascal"): (
        "fp-compiler",
        "fpc -O2 -v0w -Sew -Fubindings/pascal -Fl{lib} -FU{out} {source} -o{program}"),
    ("native", "csharp"): (
        "mono-mcs mono-runtime",
        "mcs -warnaserror bindings/csharp/Trelvin.cs {source} -out:{program}"),
    ("native", "node"): ("nodejs", "cp {source} {program}"),
    ("windows", "c"): (
        "g++-mingw-w64-i686-win32",
        "i686-w64-mingw32-gcc-win32 -O2 -Iinclude {source} " + WINDOWS_LINK + " -o {program}"),
    ("windows", "cpp"): (
        "g++-mingw-w64-i686-win32",
        "i686-w64-mingw32-g++-win32 -O2 -Iinclude {source} " + WINDOWS_LINK + " -o {program}"),
    ("windows", "fortran"): (
        "gfortran-mingw-w64-i686-win32",
        "i686-w64-mingw32-gfortran-win32 -O2 -Werror -J{out} bindings/fortran/trelvin.F90 {source} "
        + WINDOWS_LINK + " -o {program}"),
    ("windows", "pascal"): (
        "", f"{PASCAL_WIN32}/ppc386 -n -Twin32 -O2 -v0w -Fu{PASCAL_WIN32}/units"
        " -Fubindings/pascal -FU{out} {source} -o{program}"),
    ("windows", "node"): ("", "cp {source} {program}"),
}
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
    environment.setdefault("WINEPREFIX", str(ROOT / "build" / "wine"))
    environment.setdefault("WINEARCH", "win32")
    environment.setdefault("WINEDEBUG", "-all")
    before = [RUNNERS[platform, language]] if (platform, language) in RUNNERS else []
    if platform == "windows":
        environment["TRELVIN_LIBRARY"] = str(ROOT / "build/windows/bin/Trelvin.dll")
        environment["NODE_SKIP_PLATFORM_CHECK"] = "1"  # Wine says that it is Windows 7
        before.insert(0, "wine")
    # Files, since Node.js under Wine cannot write to the pipes of Linux.
    with open(OUT / "printed.txt", "w+") as printed, open(OUT / "errors.txt", "w+") as errors:
        command = [*before, program]
        code = subprocess.call(command, cwd=OUT, env=environment, stdout=printed, stderr=errors,
                               timeout=600)
        for file in (printed, errors):
            file.seek(0)
        return printed.read() if code == 0 else f"exit {code}: {errors.read()[-400:]}"


def install_for_node(platform):
    """The package of bindings/node where the programs of a platform will find it."""
    out = OUT / platform / "node"
    shutil.rmtree(out, ignore_errors=True)
    out.mkdir(parents=True)
    command = ["npm", "install", "--prefix", out, "--no-package-lock", "--install-links",
               "--ignore-scripts", "--no-audit", "--no-fund", "./bindings/node"]
    # What koffi would take there; force, since it is not for this machine.
    if platform == "windows":
        package = json.loads((ROOT / "bindings/node/package.json").read_text())
        version = package["dependencies"]["koffi"]
        command += ["--force", f"@koromix/koffi-win32-ia32@{version}"]
    name = f"{platform}: package for Node.js"
    if not shutil.which("npm"):
        report(name, "npm is missing: apt-get install npm")
        return
    done = run(command)
    report(name, done.stderr[-1000:] if done.returncode else "")


def check_host(platform, language, source, expected):
    package, command = COMMANDS[platform, language]
    name = f"{platform}: {source.relative_to(ROOT)}"
    tool = RUNNERS[platform, language] if language == "node" else command.split()[0]
    if not shutil.which(tool):
        if package:
            report(name, f"{tool} is missing: apt-get install {package}")
        else:
            print(f"not run {name}: see tests/bindings/*_win32.sh")
        return
    out = OUT / platform / language
    out.mkdir(parents=True, exist_ok=True)
    lib = ROOT / "build" / platform / "lib"
    if platform == "windows":
        shutil.copy(ROOT / "build/windows/bin/Trelvin.dll", out)
    program = out / (source.name if language == "node" else f"{source.stem.lower()}.exe")
    places = {"source": source, "program": program, "out": out, "lib": lib}
    built = run([word.format(**places) for word in command.split()])
    if built.returncode != 0:
        report(name, "does not build:\n" + (built.stdout + built.stderr)[-2000:])
        return
    table = table_of(platform, language, str(program), lib)
    report(name, "" if table == expected else f"other output:\n{table}")


def check_language(platform, language):
    expected = (ROOT / "examples/girder.txt").read_text()
    if language == "node":
        install_for_node(platform)
        check_host(platform, language, ROOT / "tests/bindings/node_test.mjs", "")
    check_host(platform, language, ROOT / "examples" / language / EXAMPLES[language], expected)
    if language in PROBES:
        file, text = PROBES[language]
        source = OUT / file
        calls = text(ROUTINES)
        if language == "fortran" and platform == "native":  # functions of the platform's convention
            calls = re.sub(r".*ATTRIBUTES STDCALL.*\n", "", calls)
        source.write_text(calls)
        check_host(platform, language, source, "")


DECLARATION = re.compile(
    r'^Public Declare (PtrSafe )?Sub (\w+) Lib "(.*?)" Alias "(.*?)" \((.*)\)$')
BASIC_TYPES = {"r": "Single", "i": "Long", "rs": "Single", "is": "Long"}


def basic_faults():
    """The Basic module, read back: within what its editor takes, and the headers' arguments."""
    text = (ROOT / "bindings/basic/Trelvin.bas").read_text()
    if re.search(r"( _\n.*){25}", text) or max(map(len, text.splitlines())) > 1023:
        yield "a line or its continuations are too long for the editor"
    found = DECLARATION.findall
    lines = re.sub(r" _\n\s*", " ", text).splitlines()
    blocks = (("PtrSafe ", "Trelvin64.dll", "LongPtr"), ("", "Trelvin.dll", "Long"))
    for safe, library, address in blocks:
        declared = {d[0][1]: d[0] for d in map(found, lines) if d and d[0][0] == safe}
        if list(declared) != [routine.name for routine in ROUTINES]:
            yield f"{library}: the routines are not those of the headers"
        for name, (_, _, lib, alias, parameters) in declared.items():
            routine = next(r for r in ROUTINES if r.name == name)
            wanted = [f"ByVal {a.name} As {address}" if a.type == "TrvFunctionIn"
                      else f"ByRef {a.name} As {BASIC_TYPES[probes.kind_of(a)]}"
                      for a in routine.arguments]
            found_here = lib, alias, re.sub(r"_(?= As)", "", parameters)
            if found_here != (library, name, ", ".join(wanted)):
                yield f"{library}: {name}: {parameters}"


def main():
    platforms = sys.argv[1:] or ["native", "windows"]
    OUT.mkdir(parents=True, exist_ok=True)
    os.chdir(OUT)  # one routine writes a trace file where it is
    report("basic: every routine as its header has it", "; ".join(basic_faults()))
    for platform in platforms:
        if not list((ROOT / "build" / platform / "lib").glob("lib*")):
            report(platform, f"the library is missing: cmake --build --preset {platform}")
            continue
        for built_for, language in COMMANDS:
            if built_for == platform:
                check_language(platform, language)
    print(f"{passed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
