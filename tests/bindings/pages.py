"""The commands of README.md and of the pages in docs, run as a reader would run them.

Lines that are indented by four columns are commands. What sets a machine up or builds the library
is held to what there is: packages to those of tools/setup.sh, presets, targets and options to
CMake's, `./dev` to its own list. All others are run, in order, in one shell for each heading.
"""

import os
import re
import shlex
import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
OUT = ROOT / "build/pages"
GIRDER = (ROOT / "examples/girder.txt").read_text()
PRINTED = {  # at the end, by the commands under a heading of a page
    ("README", "A host in C++"): "area 750, centroid (19.333, 10.667)\n",
    ("c", "The girder"): GIRDER, ("python", "From nothing to the table"): GIRDER,
    **{(page, "On Debian 12"): GIRDER for page in ("fortran", "pascal", "csharp", "node")},
    **{(page, "On Windows"): GIRDER for page in ("c", "fortran", "pascal", "node")},
}
PAGES = ["README", "c", "fortran", "pascal", "csharp", "node", "python", "section_properties", "study",
         "designer", "section_designer"]
SAMPLES = {("section_properties", "Batch")}  # indented, but no commands
CHANGED = [  # so that a page takes seconds, and is run beside the files that it names
    (r"^(gfortran -O2 -static.*)", "(cd build/pages && cp ../../bindings/fortran/trelvin.F90 "
     "../../examples/fortran/girder.f90 ../windows/lib/libTrelvin.dll.a . && "
     r"i686-w64-mingw32-\1)"),
    (r"-mingw32-gfortran -O2", "-mingw32-gfortran-win32 -O2"),
    (r"^section_properties", "cd $HOME && section_properties"),
]
SPAN = re.compile(r"(?<!`)`((?:cmake --(?:preset|build)|\./dev) [^`]+)`(?!`)")


def _shell(command):
    environment = dict(os.environ, HOME=str(OUT),
                       PATH=f"{ROOT}/build/native/bin:/usr/bin:{os.environ['PATH']}")
    environment |= {"TRELVIN_LIBRARY": str(ROOT / "build/native/lib/libtrelvin.so"),
                    "npm_config_cache": os.path.expanduser("~/.npm"),  # what ./dev setup fetched
                    "npm_config_prefer_offline": "true"}
    with open(OUT / "printed.txt", "w+") as printed:  # Node.js under Wine writes to no pipe of Linux
        done = subprocess.run(["bash", "-ec", command], cwd=ROOT, env=environment, stdout=printed,
                              stderr=subprocess.STDOUT, timeout=600)
        printed.seek(0)
        return done.returncode, printed.read()


def commands_of(page):
    """Heading and command of a page; lines that are continued are one."""
    text = (ROOT / ("README.md" if page == "README" else f"docs/{page}.md")).read_text()
    spans = SPAN.findall(" ".join(text.split()))
    text = re.sub(r"(?ms)^```.*?^```$", "", text)
    heading = ""
    for line in re.sub(r"\s*\\\n\s+", " ", text).splitlines():
        heading = line.lstrip("# ") if line.startswith("#") else heading
        if line.startswith("    ") and (page, heading) not in SAMPLES:
            yield heading, line.strip()
    yield from (("", span) for span in spans)


# --- what is not run ------------------------------------------------------------------------------


def _packages(words):
    known = set(re.findall(r"[\w.+-]+", (ROOT / "tools/setup.sh").read_text()))
    known |= {"make", "python3-venv", "install", "--no-install-recommends"}
    return set(words[1:]) - known


def _dev(words):
    usage = (ROOT / "dev").read_text().partition("TEXT\n}")[0]
    return [] if len(words) == 1 or re.search(rf"^\./dev {words[1]}\b", usage, re.M) else words[1:2]


def _cmake(words):
    preset = words[words.index("--preset") + 1]
    if f'"{preset}"' not in _shell("cmake --list-presets")[1]:
        return [preset]
    if "--build" in words and (ROOT / f"build/{preset}/build.ninja").exists():
        code, printed = _shell(f"{shlex.join(words)} -- -n")
        return [printed[-300:]] if code else []
    lists = [ROOT / "CMakeLists.txt", *ROOT.glob("[a-z]*/CMakeLists.txt"), *ROOT.glob("apps/*/*.txt"),
             *ROOT.glob("cmake/*.cmake")]
    lists = " ".join(file.read_text() for file in lists)
    if "--target" in words:
        return [] if f"({words[-1]} " in lists else words[-1:]
    options = [word for word in words[1:] if word[0] == "-" and word not in ("--preset", "--build")]
    return [o for o in options if o != "--target" and f"({o[2:].split('=')[0]} " not in lists]


def _csc(words):
    return [w for w in words[1:] if w != "-platform:x86" and not list(ROOT.glob(f"*/csharp/{w}"))]


PYTHON = "python3", "build/venv/bin/python"


def _options(words):
    program = {name: f"build/venv/bin/{tool} {words[1]}"
               for name, tool in (("pip", "pip"), *((python, "python") for python in PYTHON))}
    code, told = _shell(f"{program.get(words[0], words[0])} --help")
    options = [word for word in words[1:] if word[0] == "-"]
    return words[:1] * bool(code) + [o for o in options if not re.search(rf"(?<!\S){o}[\s,]", told)]


HELD = [(r"apt-get ", _packages), (r"\./dev", _dev), (r"cmake (?!--install)", _cmake), (r"csc ", _csc),
        (r"dask-|pip |\S*python3? examples/study", _options)]
ONCE = re.compile(r"python3 -m venv|build/venv/bin/pip|apt-get|cmake|\./dev")  # on whatever page


BINDINGS = {"fortran": "trelvin.F90", "pascal": "trelvin.pas", "csharp": "Trelvin.cs",
            "basic": "Trelvin.bas", "node": "trelvin.mjs"}


def unknown_names(page):
    """What a page calls by a name that the binding of its language has not."""
    binding = (ROOT / "bindings" / page / BINDINGS[page]).read_text()
    names = re.findall(r"\btrv\w+", (ROOT / f"docs/{page}.md").read_text())
    return sorted({name for name in names if not re.search(rf"\b{name}\b", binding)})


def faults(page, windows, done):
    """(name, problem) of each heading with commands; the problem is empty where all is well.

    What is in `done` already and sets something up is not done again.
    """
    OUT.mkdir(exist_ok=True)
    sample = (ROOT / "docs/section_properties.md").read_text().partition("## Batch")[2]
    (OUT / "sections.csv").write_text("".join(re.findall(r"^    (.*\n)", sample, re.M)))
    run = {}
    for heading, command in commands_of(page):
        if ONCE.match(command) and command in done:
            continue
        done.add(command)
        held = next((check for form, check in HELD if re.match(form, command)), None)
        if held:
            wrong = list(held(shlex.split(command, comments=True)))
            yield f"{page}.md: {command[:60]}", f"is no longer so: {wrong}" if wrong else ""
        elif windows or heading != "On Windows":
            run.setdefault(heading, []).append(command)
    for heading, lines in run.items():
        if (page, heading) == ("c", "The girder"):  # README's host comes before it on this page
            lines = [line for _, line in commands_of("README") if line.startswith("export")] + lines
        for form, instead in CHANGED:
            lines = [re.sub(form, instead, line) for line in lines]
        code, printed = _shell("\n".join(lines))
        expected = PRINTED.get((page, heading), "")
        wrong = code or not printed.replace("\r", "").endswith(expected)
        yield f"{page}.md: {heading}", f"exit {code}: {printed[-1500:]}" if wrong else ""
