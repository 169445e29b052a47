#!/usr/bin/env python3
"""Checks that the random hosts call every method that the interfaces declare.

usage: check_stress.py REPOSITORY

A method that is left out, because it ends the process by contract, stands in LEFT_OUT.
"""
import pathlib
import re
import sys

LEFT_OUT: set[str] = set()


def declared(idl: str) -> list[tuple[str, str]]:
    methods, interface = [], ""
    for line in idl.splitlines():
        if found := re.match(r"\s+interface (\w+) :", line):
            interface = found[1]
        methods += [(interface, name) for name in re.findall(r"HRESULT (\w+)\(", line)]
    return methods


def main() -> int:
    root = pathlib.Path(sys.argv[1])
    methods = declared((root / "src/resources/Vantoplex.idl").read_text())
    sources = "".join(path.read_text() for path in (root / "tests/stress").glob("*.cpp"))
    called = set(re.findall(r"->(\w+)\(", sources)) | set(re.findall(r"&I\w+::(\w+)", sources))
    missing = [f"{interface}::{name}" for interface, name in methods
               if name not in called and f"{interface}::{name}" not in LEFT_OUT]
    for name in missing:
        print(f"no random host calls {name}")
    print(f"{len(methods)} methods, {len(missing)} never called by a random host")
    return 1 if missing or len(methods) < 200 else 0


if __name__ == "__main__":
    sys.exit(main())
