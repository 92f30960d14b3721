#!/usr/bin/env python3
"""Plants faults in the sources, one at a time, and tells how many the tests and the digest find.

    tools/mutate.py --seed 1 --faults 100 [--only src/space] [--calls 20000]

Works on a copy in build/mutate. A fault that changes nothing in an extended digest either counts as
equivalent. Run by hand: a fault takes some seconds.
"""

import argparse
import random
import re
import shutil
import subprocess
import sys

from headers import COMMENT, ROOT

TREE = ROOT / "build" / "mutate" / "tree"
BUILD = ROOT / "build" / "mutate" / "build"
VALUE = r"[\w.\[\]]+"
SECONDS = 300  # a loop without end is found, too


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
    ("grouping", rf"\(({VALUE}) \+ ({VALUE})\) \+ ({VALUE})",
     lambda m: f"{m.group(1)} + ({m.group(2)} + {m.group(3)})"),
    ("grouping", rf"({VALUE}) ([+*]) ({VALUE}) \2 ({VALUE})",
     lambda m: f"{m.group(1)} {m.group(2)} ({m.group(3)} {m.group(2)} {m.group(4)})"),
]  # fmt: skip
NO_CODE = re.compile(r"^\s*(#|using |static_assert|template|struct |namespace|TRELVIN_ROUTINE)")


def sites(only):
    """Every place where a fault can be planted: (kind, file, start, end, replacement)."""
    for file in sorted((TREE / only).rglob("*")):
        if file.suffix not in (".h", ".cpp"):
            continue
        text = file.read_text()
        code = COMMENT.sub(lambda m: re.sub(r"\S", " ", m.group()), text)
        for kind, pattern, replace in FAULTS:
            for match in re.finditer(pattern, code):
                line = code[code.rfind("\n", 0, match.start()) + 1 :].split("\n", 1)[0]
                replacement = replace(match)
                if not NO_CODE.match(line) and replacement != match.group():
                    yield kind, file, match.start(), match.end(), replacement


def run(*command, cwd=BUILD):
    """The output of a command; None where it fails, or does not end."""
    try:
        done = subprocess.run(
            ["nice", *map(str, command)], cwd=cwd, timeout=SECONDS,
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace",
        )  # fmt: skip
    except subprocess.TimeoutExpired:
        return None
    return done.stdout if done.returncode == 0 else None


def build(*targets):
    return run("cmake", "--build", ".", "--target", *targets) is not None


def tests_pass():
    """Each test in a process of its own; no host, so no digest."""
    return run("ctest", "-R", r"\.", "--stop-on-failure", "--timeout", "30") is not None


def digest(calls):
    return run("bin/digest", "--calls", calls)


def copy_tree():
    shutil.rmtree(TREE, ignore_errors=True)
    listed = subprocess.run(
        ["git", "ls-files", "-co", "--exclude-standard"], cwd=ROOT, capture_output=True, text=True
    )
    for name in listed.stdout.splitlines():
        if not (ROOT / name).exists():
            continue
        (TREE / name).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy2(ROOT / name, TREE / name)


def verdict(calls, golden, extended):
    """What becomes of the fault that is planted: (the tests find it, the digest finds it), or why
    it does not count."""
    if not build("trelvin"):
        return "does not compile"
    found = (not tests_pass(), digest(2500) != golden)
    if not any(found) and digest(calls) == extended:
        return "equivalent"
    return found


def show(number, site, text, result):
    kind, file, start, end, replacement = site
    where = f"{file.relative_to(TREE)}:{text.count(chr(10), 0, start) + 1}"
    if isinstance(result, tuple):
        tests, golden = ("found" if found else "missed" for found in result)
        result = f"tests {tests}, digest {golden}"
    change = f"{' '.join(text[start:end].split())} -> {' '.join(replacement.split())}"
    print(f"{number:4} {kind:10} {where:40} {change:40} {result}", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--seed", type=int, required=True)
    parser.add_argument("--faults", type=int, default=100, help="how many to plant that count")
    parser.add_argument("--only", default="src", help="file's folder, as src/space")
    parser.add_argument("--calls", type=int, default=20000, help="of a routine in the extended run")
    options = parser.parse_args()

    copy_tree()
    BUILD.mkdir(parents=True, exist_ok=True)
    run("cmake", "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release", "-DTRELVIN_BUILD_EXAMPLES=OFF", "-S",
        TREE, "-B", BUILD)  # fmt: skip
    if not build("trelvin", "trelvin_tests", "digest") or not tests_pass():
        sys.exit("mutate: the sources as they are do not build, or fail their tests")
    golden, extended = digest(2500), digest(options.calls)

    places = sorted(sites(options.only), key=lambda site: (str(site[1]), site[2:], site[0]))
    random.Random(options.seed).shuffle(places)
    results = []
    for number, site in enumerate(places, start=1):
        if len(results) == options.faults:
            break
        _, file, start, end, replacement = site
        text = file.read_text()
        file.write_text(text[:start] + replacement + text[end:])
        result = verdict(options.calls, golden, extended)
        file.write_text(text)
        show(number, site, text, result)
        if isinstance(result, tuple):
            results.append(result)

    count = len(results)
    for name, found in (("tests", [r[0] for r in results]), ("digest", [r[1] for r in results]),
                        ("either", [any(r) for r in results])):  # fmt: skip
        share = 100 * sum(found) / max(count, 1)
        print(f"{name}: {sum(found)} of {count} faults found, {share:.1f} %")


if __name__ == "__main__":
    main()
