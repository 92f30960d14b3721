#!/usr/bin/env python3
"""Compares a build with the golden bits. Where they differ, it tells the first call that does.

    golden.py COMMAND...                   the command runs the build's `digest`
    golden.py --first ROUTINE COMMAND...   only the first call that differs

What is expected of that call comes from the native build, and for that one from the library of the last
commit, or of the one in TRELVIN_BEFORE.
"""

import itertools
import os
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
NATIVE = ROOT / "build/native/bin/digest"


def lines(command, *arguments, **environment):
    result = subprocess.run([*command, *arguments], capture_output=True, text=True,
                            env={**os.environ, **environment})
    return result.stdout.replace("\r", "").splitlines(), result.returncode


def library_before():
    commit = subprocess.check_output(["git", "rev-parse", os.environ.get("TRELVIN_BEFORE", "HEAD")],
                                     cwd=ROOT, text=True).strip()
    folder = ROOT / "build/before" / commit
    folder.mkdir(parents=True, exist_ok=True)
    if not (folder / "lib").exists():
        subprocess.run(f"""git archive --prefix=sources/ {commit} | tar -x -C {folder}
            cmake -S {folder}/sources -B {folder} -G Ninja -DCMAKE_BUILD_TYPE=Release \\
              -DTRELVIN_BUILD_TESTS=OFF -DTRELVIN_BUILD_EXAMPLES=OFF
            cmake --build {folder}""", shell=True, cwd=ROOT, check=True, capture_output=True)
    return str(folder / "lib")


def values(call):
    """The values of each argument before and after a call."""
    return {tuple(line.split()[1:3]): line.split()[3:] for line in call}


def calls(printed):
    for _, call in itertools.groupby((x for x in printed if " before " in x or " after " in x),
                                     key=lambda line: line.split()[0]):
        yield values(call)


def first_difference(routine, got, expected):
    for number, (now, then) in enumerate(itertools.zip_longest(calls(got), calls(expected)), 1):
        if now == then or not (now and then):
            continue
        yield f"{routine}, call {number}:"
        for (when, name), each in then.items():
            if when == "before" and now["before", name] == each:
                yield f"  {name} = {' '.join(each[:12])}{' ...' * (len(each) > 12)}"
        for key, each in then.items():
            for i, (a, b) in enumerate(zip(now[key], each)):
                if a != b:
                    element = f"[{i}]" if len(each) > 1 else ""
                    yield f"  {key[1]}{element} {key[0]}: expected {b}, got {a}"
        return


def tell(routine, command):
    other, whose = {}, "the native build"
    if Path(command[-1]).resolve() == NATIVE:
        whose = os.environ.get("TRELVIN_BEFORE", "the last commit")
        other = {"LD_LIBRARY_PATH": library_before()}
    got, expected = lines(command, routine)[0], lines([NATIVE], routine, **other)[0]
    told = list(first_difference(routine, got, expected))
    print(f"beside {whose}:", *(told or [f"{routine} gives the same"]), sep="\n")


def main():
    if sys.argv[1] == "--first":
        return tell(sys.argv[2], sys.argv[3:])
    printed, code = lines(sys.argv[1:], "--check", ROOT / "tests/hosts/digest.txt")
    print("\n".join(printed))
    for line in [line for line in printed if line.startswith("trv") and ", got " in line][:1]:
        tell(line.split()[0], sys.argv[1:])
    return code


if __name__ == "__main__":
    sys.exit(main())
