#!/usr/bin/env python3
"""Plants faults in the sources, one at a time, and tells what finds them: the tests, the first part of
the digest, or its part near the limits.

    tools/mutate.py --seed 1 --faults 100 [--hard] [--only src/space] [--leave-out src/numeric]

Works on a copy in build/mutate. A fault that none of them finds, and that changes nothing in an extended
digest either, counts as equivalent. Run by hand: a fault takes some seconds.
"""

import argparse
import random
import re
import shutil
import subprocess
import sys

from model import COMMENT, ROOT

TREE = ROOT / "build" / "mutate" / "tree"
BUILD = ROOT / "build" / "mutate" / "build"
VALUE = r"[\w.\[\]]+"
TERM = r"\w[\w.]*(?:\[\w+\])?(?:\(\))?"
START = r"(?<![\w.\[\]])"
END = r"(?![\w.\[(:]| [*/])"
SECONDS = 120  # a loop without end is found, too


def nudged(match):
    text = match.group()
    if re.fullmatch(r"\d+", text):
        return str(int(text) + 1)
    digits = text.rstrip("F")
    return f"{float(digits) * 1.0001!r}" + text[len(digits) :]


# What may be wrong, and what it is mistaken for.
FAULTS = [
    ("sign", r"(?<=[\w)\]]) \+ ", lambda m: " - "),
    ("sign", r"(?<=[\w)\]]) - ", lambda m: " + "),
    ("strict", r" (<|>) (?!>)", lambda m: f" {m.group(1)}= "),
    ("inclusive", r" (<|>)= ", lambda m: f" {m.group(1)} "),
    ("turned", r" (<=?|>=?) ", lambda m: f" {m.group(1).translate(str.maketrans('<>', '><'))} "),
    ("equal", r" (==|!=) ", lambda m: " != " if m.group(1) == "==" else " == "),
    ("constant", r"(?<![\w.\"])\d+(?:\.\d+)?(?:e-?\d+)?F?(?![\w.\"])", nudged),
    ("coordinate", r"\.([xyz])\b(?!\()", lambda m: {"x": ".y", "y": ".x", "z": ".y"}[m.group(1)]),
    ("argument", rf"\(({VALUE}), ({VALUE})(?=[,)])", lambda m: f"({m.group(2)}, {m.group(1)}"),
    ("argument", rf"\{{({VALUE}), ({VALUE})(?=[,}}])", lambda m: f"{{{m.group(2)}, {m.group(1)}"),
    ("grouping", rf"\(({TERM}) \+ ({TERM})\) \+ ({TERM})",
     lambda m: f"{m.group(1)} + ({m.group(2)} + {m.group(3)})"),
    ("grouping", rf"{START}({TERM}) ([+*]) ({TERM}) \2 ({TERM}){END}",
     lambda m: f"{m.group(1)} {m.group(2)} ({m.group(3)} {m.group(2)} {m.group(4)})"),
    ("grouping", rf"{START}({TERM}) - ({TERM}) ([+-]) ({TERM}){END}",
     lambda m: f"{m.group(1)} - ({m.group(2)} {'-' if m.group(3) == '+' else '+'} {m.group(4)})"),
    ("grouping", rf"{START}({TERM}) \* ({TERM}) / ({TERM}){END}",
     lambda m: f"{m.group(1)} * ({m.group(2)} / {m.group(3)})"),
    ("tolerance", r"\btolerance\b", lambda m: "(tolerance * 1.001F)"),
    ("NaN", r"(?<!!)\b(negligible|significant)\(",
     lambda m: "!significant(" if m.group(1) == "negligible" else "!negligible("),
    ("ulp", r"(?<![\w.])(tolerance|pi|half_pi|two_pi|\d+\.\d+F)(?![\w.])",
     lambda m: f"({m.group()} * 1.0000001F)"),
]
HARD = {"strict", "inclusive", "grouping", "tolerance", "NaN", "ulp"}
NO_CODE = re.compile(r"^\s*(#|using |static_assert|template|struct |namespace|TRELVIN_ROUTINE)")


def sites(only, left_out):
    """Every place where a fault can be planted: (kind, file, start, end, replacement)."""
    for file in sorted((TREE / only).rglob("*")):
        name = str(file.relative_to(TREE))
        if file.suffix not in (".h", ".cpp") or name.startswith(left_out):
            continue
        text = file.read_text()
        code = COMMENT.sub(lambda m: re.sub(r"\S", " ", m.group()), text)
        for kind, pattern, replace in FAULTS:
            for match in re.finditer(pattern, code):
                line = code[code.rfind("\n", 0, match.start()) + 1 :].split("\n", 1)[0]
                replacement = replace(match)
                if not NO_CODE.match(line) and replacement != match.group():
                    yield kind, file, match.start(), match.end(), replacement


def run(*command, cwd=BUILD, seconds=SECONDS):
    """The output of a command; None where it fails, or does not end."""
    try:
        done = subprocess.run(
            ["nice", *map(str, command)], cwd=cwd, timeout=seconds,
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace",
        )
    except subprocess.TimeoutExpired:
        return None
    return done.stdout if done.returncode == 0 else None


def build(seconds=SECONDS):
    """Programs are not linked again where the library alone has changed: they load it."""
    targets = ["trelvin", "trelvin_tests", "digest"]
    return run("cmake", "--build", ".", "--target", *targets, seconds=seconds) is not None


def tests_pass():
    """Each test in a process of its own; no host, so no digest."""
    return run("ctest", "-R", r"\.", "--stop-on-failure", "--timeout", "30") is not None


def digest(calls):
    """The lines of the digest."""
    seconds = SECONDS * max(calls // 2500, 1)
    return (run("bin/digest", "--calls", calls, seconds=seconds) or "").splitlines()


def copy_tree():
    """What is the same stays, and its objects with it; what differs is as new as now."""
    listed = subprocess.run(
        ["git", "ls-files", "-co", "--exclude-standard"], cwd=ROOT, capture_output=True, text=True
    )
    names = {name for name in listed.stdout.splitlines() if (ROOT / name).exists()}
    for file in [file for file in TREE.rglob("*") if file.is_file()]:
        if str(file.relative_to(TREE)) not in names:
            file.unlink()
    for name in names:
        copy, content = TREE / name, (ROOT / name).read_bytes()
        if not copy.exists() or copy.read_bytes() != content:
            copy.parent.mkdir(parents=True, exist_ok=True)
            copy.write_bytes(content)
            shutil.copymode(ROOT / name, copy)


def verdict(calls, golden, extended):
    """What finds the fault that is planted, or why it does not count."""
    if not build():
        return "does not compile"
    found = [] if tests_pass() else ["tests"]
    lines, half = digest(2500), len(golden) // 2
    found += ["digest"] if lines[:half] != golden[:half] else []
    found += ["near"] if lines[half:] != golden[half:] else []
    if not found and digest(calls) == extended:
        return "equivalent"
    return " ".join(found) or "nothing"


def show(number, site, text, result):
    kind, file, start, end, replacement = site
    where = f"{file.relative_to(TREE)}:{text.count(chr(10), 0, start) + 1}"
    change = f"{' '.join(text[start:end].split())} -> {' '.join(replacement.split())}"
    print(f"{number:4} {kind:10} {where:40} {change:40} {result}", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--seed", type=int, required=True)
    parser.add_argument("--faults", type=int, default=100, help="how many to plant")
    parser.add_argument("--hard", action="store_true", help="those that hide best alone")
    parser.add_argument("--only", default="src", help="files' folder, as src/space")
    parser.add_argument("--leave-out", action="append", default=[], help="folder or file")
    parser.add_argument("--calls", type=int, default=20000, help="of a routine in the extended run")
    options = parser.parse_args()

    copy_tree()
    BUILD.mkdir(parents=True, exist_ok=True)
    run("cmake", "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release", "-DTRELVIN_BUILD_EXAMPLES=OFF",
        "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON", "-S", TREE, "-B", BUILD)
    if not build(seconds=3600) or not tests_pass():
        sys.exit("mutate: the sources as they are do not build, or fail their tests")
    golden, extended = digest(2500), digest(options.calls)

    places = list(sites(options.only, tuple(options.leave_out)))
    if options.hard:
        places = [place for place in places if place[0] in HARD]
    chosen = random.Random(options.seed).sample(places, min(options.faults, len(places)))
    results = []
    # A file after the other, so that a restored one is compiled with the next fault in it.
    for number, site in enumerate(sorted(chosen, key=lambda s: (str(s[1]), *s[2:])), start=1):
        _, file, start, end, replacement = site
        text = file.read_text()
        file.write_text(text[:start] + replacement + text[end:])
        result = verdict(options.calls, golden, extended)
        file.write_text(text)
        show(number, site, text, result)
        results.append(result)

    count = {result: results.count(result) for result in dict.fromkeys(results)}
    print(", ".join(f"{result}: {number}" for result, number in count.items()))
    changing = [r.split() for r in results if r not in ("does not compile", "equivalent")]
    for group in (["tests"], ["digest"], ["near"], ["tests", "digest"], ["tests", "digest", "near"]):
        found = sum(1 for by in changing if set(by) & set(group))
        print(f"{' or '.join(group)}: {100 * found / max(len(changing), 1):.1f} % of {len(changing)}")


if __name__ == "__main__":
    main()
