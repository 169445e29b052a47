#!/usr/bin/env python3
"""mutate.py BUILD [--sample N] [--seed S] [--only TEXT] [--jobs N] [--goal PERCENT]

Changes the arithmetic of src one place at a time (an operator, a constant, a condition), compiles the
changed file natively, and runs its room's unit tests: they should fail. BUILD is a configured native
build. Without --sample all changes are made, which takes hours; a sample is the same for the same seed.
--only picks those whose path and line ("src/draw/LongLines.cpp:12:") hold a text.

Prints what nobody noticed, as FILE:LINE: the line `before` -> `after`. A change that has no effect that
could be noticed belongs into equal.txt beside this program, with its reason. The exit code is 1 if fewer
than 95 in 100 of the other changes are noticed.
"""

import argparse
import concurrent.futures
import pathlib
import random
import re
import subprocess
import sys
import tempfile
import threading
from dataclasses import dataclass

ROOT = pathlib.Path(__file__).resolve().parents[2]
EQUAL = pathlib.Path(__file__).with_name("equal.txt")
OPERATORS = {" < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ", " != ": " == ", " && ": " || ",
             " || ": " && ", " + ": " - ", " - ": " + ", " * ": " / ", " / ": " * ", " % ": " * ", " += ": " -= ",
             " -= ": " += ", " << ": " >> ", " >> ": " << ", "++": "--", "--": "++", "true": "false", "false": "true"}
# What isn't changed: texts, comments, what the preprocessor and the compiler alone read.
SKIPPED = re.compile(r'//[^\n]*|^[ \t]*#[^\n]*|u?"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'|static_assert\([^;]*;', re.M)
TOKEN = re.compile("|".join([r"\b(?:true|false)\b", r"\+\+|--", r" (?:<=|>=|==|!=|&&|\|\||\+=|-=|<<|>>|[-<>+*/%]) ",
                             r"(?<![\w.])\d+(?:\.\d*)?(?:e[-+]?\d+)?(?=[^\w.]|$)", r"\b(?:if|while) \("]))
lock = threading.Lock()


@dataclass
class Mutant:
    file: pathlib.Path
    start: int
    end: int
    text: str  # in place of the file's

    def applied(self, source):
        return source[:self.start] + self.text + source[self.end:]

    def shown(self, source):
        """(line number, the line as it is and as it becomes)."""
        first = source.rfind("\n", 0, self.start) + 1
        last = source.find("\n", self.end)
        changed = source[first:self.start] + self.text + source[self.end:last]
        return source.count("\n", 0, self.start) + 1, source[first:last].strip(), changed.strip()


def closing(source, at):
    """The place behind the parenthesis that is opened at a place."""
    depth = 0
    for place in range(at, len(source)):
        depth += {"(": 1, ")": -1}.get(source[place], 0)
        if depth == 0:
            return place + 1
    return len(source)


def constant(text):
    if text == "0":
        return "1"
    if "." in text or "e" in text:
        return f"({text} + 1)"
    return str(int(text) + 1)


def mutants_of(file, only):
    source = file.read_text()
    skipped = [match.span() for match in SKIPPED.finditer(source)]
    found = []
    for match in TOKEN.finditer(source):
        start, end = match.span()
        if any(first <= start < last for first, last in skipped):
            continue
        token = match.group()
        if token.startswith(("if", "while")):
            opened = end - 1
            condition = source[opened:closing(source, opened)]
            if ";" in condition:
                continue  # declares what it looks at
            found.append(Mutant(file, opened, opened + len(condition), f"(!{condition})"))
        elif token[0].isdigit():
            found.append(Mutant(file, start, end, constant(token)))
        else:
            found.append(Mutant(file, start, end, OPERATORS[token]))
    return [mutant for mutant in found if only in f"{file}:{mutant.shown(source)[0]}:"]


class Room:
    """How a room's unit tests are compiled and linked."""

    def __init__(self, build, name):
        self.build = build
        self.target = f"vantoplex-unit-{name}"
        output = subprocess.run(["ninja", "-t", "commands", self.target], cwd=build, capture_output=True, text=True,
                                check=True).stdout.splitlines()
        self.link = output[-1]
        self.compilations = [line for line in output[:-1] if " -c " in line]
        self.program = re.search(r"-o (\S+)", self.link).group(1)

    def compilation(self, file):
        return next((line for line in self.compilations if line.endswith(f"-c {file}")), None)

    def is_noticed(self, mutant, source, folder):
        """True or False; None if it doesn't compile."""
        command = self.compilation(mutant.file)
        object_file = re.search(r"-o (\S+)", command).group(1)
        changed, result, program = folder / mutant.file.name, folder / "changed.o", folder / "tests"
        changed.write_text(mutant.applied(source))
        command = re.sub(r"-MD -MT \S+ -MF \S+", "", command)
        command = command[command.index("ccache ") + 7:] if "ccache " in command else command
        command = command.replace(f"-o {object_file}", f"-o {result}").replace(f"-c {mutant.file}", f"-c {changed}")
        optimised = "-O1" if "__OPTIMIZE__" in source else "-O0"  # there is nothing in it without
        if not run(f"{command} -w {optimised} -g0 -fno-sanitize=all -iquote {mutant.file.parent}", self.build, 120):
            return None
        link = self.link.replace(f" {object_file} ", f" {result} ").replace(f"-o {self.program}", f"-o {program}")
        if not run(link, self.build, 120):
            return None
        return not run(f"{program} --gtest_brief=1 --gtest_fail_fast", folder, 60)


def run(command, folder, seconds):
    process = subprocess.Popen(["/bin/bash", "-c", f"ulimit -c 0; exec timeout -s KILL {seconds} bash -c {quoted(command)}"],
                               cwd=folder, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return process.wait() == 0


def quoted(text):
    return "'" + text.replace("'", "'\\''") + "'"


def known_equal():
    """{(file name, line before, line after)} of the changes that have no effect."""
    entries = set()
    for line in EQUAL.read_text().splitlines() if EQUAL.exists() else []:
        match = re.match(r"(\S+): `(.*)` -> `(.*)` \| .+", line)
        if match:
            entries.add(match.groups())
        elif line.strip() and not line.startswith("#"):
            sys.exit(f"{EQUAL}: not an entry: {line}")
    return entries


def arithmetic(build):
    """{room: its files}, of what is built natively."""
    rooms = {}
    listed = subprocess.run(["ninja", "-t", "targets", "all"], cwd=build, capture_output=True, text=True, check=True).stdout
    for match in re.finditer(r"room-(\w+)\.dir/([\w/]+\.cpp)\.o:", listed):
        folder = next(f for f in (ROOT / "src" / match[1], ROOT / "src" / "framework" / match[1]) if f.exists())
        if folder / match[2] not in rooms.setdefault(match[1], []):
            rooms[match[1]].append(folder / match[2])
    return rooms


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--sample", type=int, default=0)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--only", default="")
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--goal", type=float, default=95)
    options = parser.parse_args()

    equal = known_equal()
    work = [(room, mutant) for room, files in sorted(arithmetic(options.build).items()) for file in sorted(files)
            for mutant in mutants_of(file, options.only)]
    if options.sample:
        work = random.Random(options.seed).sample(work, min(options.sample, len(work)))
    rooms = {}
    for name in sorted({room for room, _ in work}):
        subprocess.run(["ninja", f"vantoplex-unit-{name}"], cwd=options.build, stdout=subprocess.DEVNULL, check=True)
        rooms[name] = Room(options.build, name)
    counts = {True: 0, False: 0, None: 0, "equal": 0}

    def tried(item):
        room, mutant = item
        source = mutant.file.read_text()
        line, before, after = mutant.shown(source)
        if (mutant.file.name, before, after) in equal:
            counts["equal"] += 1
            return
        with tempfile.TemporaryDirectory() as folder:
            noticed = rooms[room].is_noticed(mutant, source, pathlib.Path(folder))
        with lock:
            counts[noticed] += 1
            if noticed is False:
                print(f"{mutant.file.relative_to(ROOT)}:{line}: `{before}` -> `{after}`", flush=True)

    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        list(pool.map(tried, work))
    made = counts[True] + counts[False]
    share = 100 * counts[True] / max(made, 1)
    print(f"{made} changes, {counts[True]} noticed ({share:.1f} in 100), {counts[False]} not; {counts['equal']} known to have "
          f"no effect, {counts[None]} didn't compile")
    return 0 if made and share >= options.goal else 1


if __name__ == "__main__":
    sys.exit(main())
