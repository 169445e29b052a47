#!/usr/bin/env python3
"""Compiles every header by itself, twice: it must include what it uses, and guard itself.

usage: headers_alone.py FOLDER ROOT COMPILER OPTION...

All headers under ROOT/src and ROOT/hosts are compiled; their includes are found by the options' -I.

Two things save time, and neither lends a header anything. A header's source begins with headers that
it includes anyway, so that these are compiled alone on the way: h1, then h2 that includes h1, and so
on, in the fewest such chains that hold every header. And what most of the time goes into, the
system's headers, is precompiled in a few sets, of which a source gets one that all of it includes.
A chain that passed is left out until one of its files or the options change: FOLDER remembers.
"""
import hashlib
import pathlib
import re
import subprocess
import sys

SETS = [["windows.h"], ["string", "string_view", "vector"], ["windows.h", "oleauto.h", "string", "string_view"],
        ["windows.h", "oleauto.h", "memory", "span", "string", "string_view", "variant"]]
INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]', re.MULTILINE)


class Includes:
    """Which files a header includes in the end: ours as paths, the system's as names."""

    def __init__(self, roots):
        self.roots = roots
        self.known = {}

    def file_of(self, name):
        return next((root / name for root in self.roots if (root / name).is_file()), name)

    def reached(self, header):
        if header not in self.known:
            self.known[header] = set()  # ends a circle
            named = {self.file_of(name) for name in INCLUDE.findall(header.read_text(encoding="utf-8"))}
            beyond = [self.reached(file) for file in named if isinstance(file, pathlib.Path)]
            self.known[header] = named.union(*beyond)
        return self.known[header]


def chains_of(headers, includes):
    """The fewest chains: a largest matching of each header with one that it includes."""
    next_of = {}

    def match(header, tried):
        for other in headers:
            if other in includes.reached(header) and header not in includes.reached(other) and other not in tried:
                tried.add(other)
                if other not in next_of or match(next_of[other], tried):
                    next_of[other] = header
                    return True
        return False

    firsts = [header for header in headers if not match(header, set())]
    chains = []
    for header in firsts:
        chain = [header]
        while chain[-1] in next_of:
            chain.append(next_of[chain[-1]])
        chains.append(chain)
    return chains


def precompiled(folder, names, compiler):
    """The option by which a source gets these headers of the system."""
    digest = hashlib.sha256(repr((names, compiler)).encode()).hexdigest()[:16]
    file = folder / f"system-{digest}.h"
    if not pathlib.Path(f"{file}.gch").exists():
        file.write_text("".join(f"#include <{name}>\n" for name in names))
        subprocess.run([*compiler, "-x", "c++-header", file, "-o", f"{file}.gch"], check=True)
    return ["-include", file, "-Winvalid-pch"]


def passes(chain, folder, includes, compiler, version):
    files = set(chain) | {file for file in includes.reached(chain[-1]) if isinstance(file, pathlib.Path)}
    digest = hashlib.sha256(repr((chain, compiler, version)).encode())
    for file in sorted(files):
        digest.update(file.read_bytes())
    stamp = folder / f"{chain[-1].stem}-{digest.hexdigest()[:16]}.ok"
    if stamp.exists():
        return True
    usable = [names for names in SETS if includes.reached(chain[0]).issuperset(names)]
    lent = precompiled(folder, max(usable, key=len), compiler) if usable else []
    source = "".join(f'#include "{header}"\n' * 2 for header in chain)
    command = [*compiler, *lent, "-fsyntax-only", "-x", "c++", "-"]
    if subprocess.run(command, input=source.encode()).returncode == 0:
        stamp.touch()
        return True
    return False


def main(folder, root, *compiler):
    folder, root = pathlib.Path(folder), pathlib.Path(root)
    folder.mkdir(parents=True, exist_ok=True)
    includes = Includes([pathlib.Path(option[2:]) for option in compiler if option.startswith("-I")])
    headers = sorted(file for place in ("src", "hosts") for file in (root / place).rglob("*.h"))
    if not headers:
        print(f"{root} has no headers", file=sys.stderr)
        return 1
    version = subprocess.run([compiler[0], "--version"], capture_output=True, check=True).stdout
    chains = chains_of(headers, includes)
    failed = [chain for chain in chains if not passes(chain, folder, includes, list(compiler), version)]
    print(f"{len(headers)} headers in {len(chains)} sources, {len(failed)} of these failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
