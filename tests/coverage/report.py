#!/usr/bin/env python3
"""report.py BUILD   what the counts of scripts/coverage.sh say

Lines and branches of src, the native and the Windows tree together: a table by room, and in
BUILD/coverage-report.txt every line that nothing runs and, where all branches are a goal, every line with a
branch that nothing takes. What can't be run, and why, is listed in exceptions.txt beside this
program, one a line:
    FILE: `the line` | reason        FILE: * | reason of the whole file

A branch that the compiler makes for exceptions doesn't count. The goals: 95 in 100 lines, and all
branches of arithmetic, file reading and parsers.
"""

import collections
import functools
import json
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
EXCEPTIONS = pathlib.Path(__file__).with_name("exceptions.txt")
GCOV = {"coverage-native": "gcov", "coverage-windows-x64": "x86_64-w64-mingw32-gcov-posix"}
LINES_GOAL = 95
# Beside the arithmetic: what reads files, and every function of this name.
READING_FUNCTION = "Serialize"
READERS = {"src/framework/windowing/Archive.cpp", "src/framework/windowing/ArchiveObjects.cpp",
           "src/objects/ArchiveCounts.h", "src/objects/AxisFile.cpp", "src/graph/GraphFile.cpp"}


def counted(build):
    """Each source of each tree as gcov describes it."""
    for tree, gcov in GCOV.items():
        for counts in sorted((build / tree / "src").rglob("*.gcno")):
            output = subprocess.run([gcov, "--json-format", "--stdout", "--branch-probabilities", str(counts)],
                                    cwd=build / tree, capture_output=True, text=True, check=True).stdout
            for text in filter(None, output.splitlines()):
                for file in json.loads(text)["files"]:
                    path = (build / tree / file["file"]).resolve()
                    if path.is_relative_to(ROOT / "src"):
                        yield tree, str(path.relative_to(ROOT)), file["lines"]


class Coverage:
    def __init__(self):
        self.lines = collections.defaultdict(collections.Counter)  # file: {line: count}
        # file: {line: {tree: {how many branches: their counts}}}. A line may belong to several functions,
        # which are told apart by that number; instances of a template are one.
        self.reading = collections.defaultdict(set)  # file: {line}
        self.branches = collections.defaultdict(lambda: collections.defaultdict(lambda: collections.defaultdict(dict)))

    def add(self, tree, file, lines):
        for line in lines:
            number = line["line_number"]
            self.lines[file][number] += line["count"]
            if READING_FUNCTION in line.get("function_name", ""):
                self.reading[file].add(number)
            taken = [branch["count"] for branch in line["branches"] if not branch["throw"]]
            if taken:
                groups = self.branches[file][number][tree]
                groups[len(taken)] = [a + b for a, b in zip(groups.get(len(taken), [0] * len(taken)), taken)]

    def without_ends(self, text_of):
        """The brace that ends a block stands for what the compiler cleans up."""
        for file, lines in self.lines.items():
            text = text_of(file)
            for number in [number for number in lines if text[number].strip() == "}"]:
                del lines[number]
                self.branches[file].pop(number, None)
                self.reading[file].discard(number)

    def missed_lines(self, file):
        return {number for number, count in self.lines[file].items() if count == 0}

    def branches_of(self, file):
        """{line: (how many, how many of them taken)}: of both trees, or of the one that takes more."""
        return {number: best(list(trees.values())) for number, trees in self.branches[file].items()}


def best(trees):
    """Trees that compiled a line alike are one; else the one that takes more counts."""
    alike = collections.defaultdict(list)
    for groups in trees:
        alike[frozenset(groups)].append(groups)
    sums = [{size: [sum(counts) for counts in zip(*(groups[size] for groups in same))] for size in sizes}
            for sizes, same in alike.items()]
    pairs = [(sum(groups), sum(count > 0 for counts in groups.values() for count in counts)) for groups in sums]
    return min(pairs, key=lambda pair: pair[0] - pair[1])


class Exceptions:
    def __init__(self):
        self.lines, self.files, self.used = set(), set(), set()
        for line in EXCEPTIONS.read_text().splitlines():
            match = re.match(r"(\S+): (?:`(.*)`|\*) \| .+", line)
            if match and match[2] is None:
                self.files.add(match[1])
            elif match:
                self.lines.add((match[1], match[2]))
            elif line.strip() and not line.startswith("#"):
                sys.exit(f"{EXCEPTIONS}: not an entry: {line}")

    def cover(self, file, text):
        entry = file if file in self.files else (file, text.strip())
        if entry not in self.files and entry not in self.lines:
            return False
        self.used.add(entry)
        return True


def exact_files():
    """Where every branch is to be taken."""
    files = set(READERS)
    for listing in (ROOT / "src").rglob("CMakeLists.txt"):
        match = re.search(r"vantoplex_room\(\w+ ARITHMETIC([^)]*)\)", listing.read_text())
        for name in match[1].split() if match else []:
            files.add(str((listing.parent / name).relative_to(ROOT)))
    return files


@functools.cache
def text_of(file):
    """Its lines, by their numbers."""
    return [""] + (ROOT / file).read_text().splitlines()


def table(rows):
    print(f"{'room':34}{'lines':>8}{'run':>8}{'%':>7}{'branches':>10}{'taken':>8}{'%':>7}")
    for name, (lines, run, branches, taken) in rows:
        print(f"{name:34}{lines:8}{run:8}{100 * run / max(lines, 1):7.1f}"
              f"{branches:10}{taken:8}{100 * taken / max(branches, 1):7.1f}")


def main(build):
    coverage, excepted, exact = Coverage(), Exceptions(), exact_files()
    for tree, file, lines in counted(build):
        coverage.add(tree, file, lines)
    rooms, exact_sum = collections.defaultdict(lambda: [0, 0, 0, 0]), [0, 0, 0, 0]
    report, missed_exact = [], 0
    coverage.without_ends(text_of)
    for file in sorted(coverage.lines):
        text = text_of(file)
        branches = coverage.branches_of(file)
        missed = {number for number in coverage.missed_lines(file) if not excepted.cover(file, text[number])}
        goal = coverage.lines[file].keys() if file in exact else coverage.reading[file]
        half = {number for number, (all_, taken) in branches.items()
                if number in goal and taken < all_ and number not in missed and not excepted.cover(file, text[number])}
        for one, numbers in ((rooms[str(pathlib.Path(file).parent)], coverage.lines[file].keys()), (exact_sum, goal)):
            pairs = [branches.get(number, (0, 0)) for number in numbers]
            one[0] += len(numbers)
            one[1] += len(numbers - coverage.missed_lines(file))
            one[2] += sum(all_ for all_, _ in pairs)
            one[3] += sum(taken for _, taken in pairs)
        missed_exact += len((missed | half) & goal)
        for number in sorted(missed | half):
            what = "not run" if number in missed else "{1} of {0} branches".format(*branches[number])
            report.append(f"{file}:{number}: {what}: {text[number].strip()}" + (" [goal]" if number in goal else ""))
    (build / "coverage-report.txt").write_text("\n".join(report + [""]))
    total = [sum(column) for column in zip(*rooms.values())]
    table(sorted(rooms.items()) + [("all", total), ("arithmetic, readers, parsers", exact_sum)])
    print(f"{missed_exact} lines of arithmetic, file reading and parsers with something that nothing runs and "
          f"exceptions.txt doesn't name; {len(report)} lines in all: {build / 'report.txt'}")
    for entry in sorted(map(str, (excepted.lines | excepted.files) - excepted.used)):
        print(f"exceptions.txt: not needed: {entry}")
    return 0 if 100 * total[1] >= LINES_GOAL * total[0] and missed_exact == 0 else 1


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve()))
