#!/usr/bin/env python3
"""Compiles a header by itself, twice in one source: it must include what it uses, and guard itself.

usage: header_alone.py precompile FOLDER COMPILER OPTION...
       header_alone.py compile FOLDER SOURCE ROOT HEADER COMPILER OPTION...

What most of a header's time goes into, the system's headers, is precompiled in FOLDER in a few sets,
each with all of the one before. A header is compiled with the largest set that it includes anyway,
directly or by way of others of ours, so a set never lends it anything.
"""
import pathlib
import re
import subprocess
import sys

SETS = [["windows.h"], ["oleauto.h"], ["algorithm", "cstdint", "memory", "string", "utility", "vector"]]
INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]', re.MULTILINE)


def set_file(folder, number):
    return folder / f"system-{number}.h"


def precompile(folder, compiler):
    folder.mkdir(parents=True, exist_ok=True)
    names = []
    for number, more in enumerate(SETS):
        names += more
        file = set_file(folder, number)
        file.write_text("".join(f"#include <{name}>\n" for name in names))
        subprocess.run([*compiler, "-x", "c++-header", file, "-o", f"{file}.gch"], check=True)


def reached(header, roots):
    """The names of all that a header includes, in the end."""
    names, files = set(), [header]
    while files:
        text = files.pop().read_text(encoding="utf-8")
        for name in set(INCLUDE.findall(text)) - names:
            names.add(name)
            files += [root / name for root in roots if (root / name).is_file()][:1]
    return names


def compile_alone(folder, source, header, compiler):
    source.parent.mkdir(parents=True, exist_ok=True)
    source.write_text(f'#include "{header}"\n' * 2)
    roots = [pathlib.Path(option[2:]) for option in compiler if option.startswith("-I")]
    names = reached(header, roots)
    usable = 0
    while usable < len(SETS) and names.issuperset(SETS[usable]):
        usable += 1
    lent = ["-include", set_file(folder, usable - 1), "-Winvalid-pch"] if usable else []
    return subprocess.run([*compiler, *lent, "-fsyntax-only", source]).returncode


def main(mode, folder, *rest):
    if mode == "precompile":
        precompile(pathlib.Path(folder), list(rest))
        return 0
    source, root, header, *compiler = rest
    return compile_alone(pathlib.Path(folder), pathlib.Path(source), pathlib.Path(root) / header, compiler)


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
