#!/usr/bin/env python3
"""suite.py FOLDER [OPTIONS]   the Windows tests in ways that the test command doesn't run them

FOLDER holds vantoplex-tests.exe and what lies beside it. A run that ends before its last test is named
with the test that ran, the fault with functions and lines, and the rest of its tests run after it.

  --shards N      processes that the tests are spread over (6)
  --jobs N        of them at once (1)
  --order SEED    in random order, in shards put together at random
  --repeat N      each shard N times in a row in one process
  --alone         a process for each test
  --every N       only each N-th test
  --filter TEXT   only tests whose name holds one of the texts, divided by colons
  --leave-out F   not the tests named in F, one a line: NAME | reason
  --null-in F     where the tests named in F, one a line: PATTERN | reason, go through a null pointer
                  is no place
  --log FILE      what the programs print

The last line is "N runs of N tests, N failed, N places"; the exit code is 0 only if nothing was found.
A place is a line of the source whose step had no defined result (UndefinedReports.cpp).
"""

import argparse
import concurrent.futures
import fnmatch
import os
import pathlib
import random
import re
import struct
import subprocess
import sys
import tempfile
import threading

ROOT = pathlib.Path(__file__).resolve().parents[2]
BEGUN = re.compile(r"^\[ RUN      \] (\S+)")
ENDED = re.compile(r"^\[(       OK |  FAILED  |  SKIPPED )\] (\S+?),? .*ms\)")
FAULT = re.compile(r"fault ([0-9a-f]{8}) in (\S*) at (.*)")
SLOWEST = 1800  # seconds for a process once through its tests; a machine with other work is slow


def named_in(file):
    lines = file.read_text().splitlines() if file else []
    return {line.split("|")[0].strip() for line in lines if line.strip() and not line.startswith("#")}


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def image_base(path):
    data = path.read_bytes()[:1024]
    header = struct.unpack_from("<I", data, 0x3C)[0]
    return struct.unpack_from("<Q", data, header + 48)[0]


class Suite:
    def __init__(self, options):
        self.options = options
        self.program = options.folder / "vantoplex-tests.exe"
        self.log = open(options.log or os.devnull, "w", encoding="utf-8")
        self.lock = threading.Lock()
        self.failures, self.places, self.runs = {}, {}, 0
        self.null_in = named_in(options.null_in)

    def wine(self, arguments, seconds=SLOWEST, program=None):
        command = [str(ROOT / "scripts/run-wine.sh"), "-t", str(seconds), program or str(self.program), *arguments]
        return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                              errors="replace", check=False)

    def names(self):
        left_out = named_in(self.options.leave_out)
        names, suite = [], ""
        for line in self.wine(["--gtest_list_tests"]).stdout.splitlines():
            word = line.split("#")[0].rstrip()
            if re.fullmatch(r"\w[\w/]*\.", word):
                suite = word
            elif suite and re.fullmatch(r"  \w[\w/]*", word):
                names.append(suite + word.strip())
        unknown = left_out - set(names)
        if unknown:
            sys.exit(f"suite: {self.options.leave_out} names no test with {', '.join(sorted(unknown))}")
        chosen = [name for name in names if name not in left_out and "DISABLED_" not in name]
        if self.options.filter:
            chosen = [name for name in chosen if any(text in name for text in self.options.filter.split(":"))]
        return chosen[:: self.options.every]

    def groups(self, names):
        if self.options.alone:
            return [names[first : first + 100] for first in range(0, len(names), 100)]
        if self.options.order is not None:
            names = list(names)
            random.Random(self.options.order).shuffle(names)
        groups = [names[shard :: self.options.shards] for shard in range(self.options.shards)]
        return [group for group in groups if group]

    def run_alone(self, names):
        """A process for each, one after the other, from one batch: Wine takes a second to start it."""
        with tempfile.NamedTemporaryFile("w", suffix=".bat", delete=False, newline="\r\n") as batch:
            batch.write("@echo off\n")
            for name in names:
                batch.write(f'"{windows_path(self.program)}" --gtest_filter={name}\necho ENDED %errorlevel% {name}\n')
        result = self.wine(["/c", windows_path(batch.name)], SLOWEST, "cmd")
        os.unlink(batch.name)
        lines, ended = [], set()
        for line in result.stdout.splitlines():
            if not line.startswith("ENDED "):
                lines.append(line + "\n")
                continue
            _, code, name = line.split()
            if self.read(subprocess.CompletedProcess([], int(code), "".join(lines))) == (set(), ""):
                self.fail(name, [f"nothing ran, exit code {code}", *lines])
            lines = []
            ended.add(name)
        missing = [name for name in names if name not in ended]
        if missing:
            self.fail(missing[0], [f"no end within {SLOWEST} seconds, nor of {len(missing) - 1} after it", *lines])

    def run_group(self, names):
        """All of them, and what is left after each run that ended early."""
        if self.options.alone:
            self.run_alone(names)
            return
        while names:
            with tempfile.NamedTemporaryFile("w", suffix=".flags", delete=False) as flags:
                flags.write(f"--gtest_filter={':'.join(names)}\n--gtest_repeat={self.options.repeat}\n")
                if self.options.order is not None:
                    flags.write(f"--gtest_shuffle\n--gtest_random_seed={self.options.order % 99999}\n")
            result = self.wine([f"--gtest_flagfile={windows_path(flags.name)}"], SLOWEST * self.options.repeat)
            os.unlink(flags.name)
            done, ended_early = self.read(result)
            if not done and not ended_early:
                ended_early = names[0]
                self.fail(ended_early, [f"nothing ran, exit code {result.returncode}", *result.stdout.splitlines()[:10]])
            rest = [name for name in names if name not in done and name != ended_early]
            names = rest if ended_early else []
            if rest and not ended_early:
                self.fail(rest[0], [f"did not run, nor did {len(rest) - 1} others"])

    def read(self, result):
        """The tests that ended, and the one under which the process did, if it did."""
        done, running, text = set(), "", []
        with self.lock:
            self.log.write(result.stdout)
            self.log.flush()
        for line in result.stdout.splitlines():
            if begun := BEGUN.match(line):
                running, text = begun[1], []
            elif ended := ENDED.match(line):
                done.add(ended[2])
                with self.lock:
                    self.runs += 1
                if "FAILED" in ended[1]:
                    self.fail(ended[2], text)
                running = ""
            elif line.startswith("undefined: "):
                self.note_place(line, running)
            else:
                text.append(line)
        if running:
            code = "time-out" if result.returncode == 124 else f"exit code {result.returncode}"
            self.fail(running, [f"the process ended: {code}", *self.named(text)])
        elif result.returncode not in (0, 1):
            self.fail("the end of a process", [f"exit code {result.returncode}", *self.named(text)])
        return done, running

    def note_place(self, line, running):
        if "pointer null" in line and any(fnmatch.fnmatch(running, pattern) for pattern in self.null_in):
            return
        with self.lock:
            self.places.setdefault(line.split(",")[0], f"{line}   in {running}")

    def named(self, text):
        """The lines, and the functions of a fault among them."""
        for line in text:
            yield line
            if fault := FAULT.search(line):
                for place in fault[3].split():
                    module, _, offset = place.rpartition("+")
                    if (self.options.folder / module).is_file() and module:
                        yield f"    {self.function(self.options.folder / module, int(offset, 16))}"

    @staticmethod
    def function(module, offset):
        output = subprocess.run(["x86_64-w64-mingw32-addr2line", "-Cfpse", str(module), hex(image_base(module) + offset)],
                                capture_output=True, text=True, check=False).stdout
        return " ".join(output.split())

    def fail(self, name, text):
        with self.lock:
            if name not in self.failures:
                print(f"FAILED {name}", *text[:24], sep="\n    ", flush=True)
            self.failures.setdefault(name, text)

    def run(self):
        names = self.names()
        if not names:
            sys.exit("suite: no tests")
        with concurrent.futures.ThreadPoolExecutor(self.options.jobs) as pool:
            list(pool.map(self.run_group, self.groups(names)))
        for line in sorted(self.places.values()):
            print(line)
        order = "" if self.options.order is None else f", order {self.options.order}"
        print(f"{self.runs} runs of {len(names)} tests, {len(self.failures)} failed, {len(self.places)} places{order}")
        return 1 if self.failures or self.places else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder", type=pathlib.Path)
    for name, standard in (("shards", 6), ("jobs", 1), ("order", None), ("repeat", 1), ("every", 1)):
        parser.add_argument(f"--{name}", type=int, default=standard)
    parser.add_argument("--alone", action="store_true")
    parser.add_argument("--filter", default="")
    parser.add_argument("--leave-out", type=pathlib.Path)
    parser.add_argument("--null-in", type=pathlib.Path)
    parser.add_argument("--log")
    options = parser.parse_args()
    options.folder = options.folder.resolve()
    return Suite(options).run()


if __name__ == "__main__":
    sys.exit(main())
