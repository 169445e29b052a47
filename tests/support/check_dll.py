#!/usr/bin/env python3
"""Checks what the built DLL shows to the outside.

usage: check_dll.py OBJDUMP Vantoplex.dll

It exports exactly the four entry points of an in-process server, undecorated, and imports
nothing but system libraries: a host ships one file.
"""
import re
import subprocess
import sys

EXPORTS = {"DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer", "DllUnregisterServer"}
SYSTEM = {"advapi32", "comctl32", "comdlg32", "gdi32", "gdiplus", "kernel32", "msimg32", "msvcrt",
          "ole32", "oleaut32", "shell32", "shlwapi", "user32", "winspool.drv"}


def exports_of(dump):
    table = dump.split("[Ordinal/Name Pointer] Table", 1)
    if len(table) < 2:
        return set()
    return set(re.findall(r"^\s*\[\s*\d+\][^\S\n]+(?:\+base\[\s*\d+\]\s+[0-9a-f]+\s+)?(\S+)\s*$",
                          table[1].split("\n\n", 1)[0], re.MULTILINE))


def main():
    dump = subprocess.run([sys.argv[1], "-p", sys.argv[2]], check=True, capture_output=True, text=True).stdout
    exports = exports_of(dump)
    imports = {re.sub(r"\.dll$", "", name.lower()) for name in re.findall(r"DLL Name: (\S+)", dump)}
    failures = []
    if exports != EXPORTS:
        failures.append(f"exports are {sorted(exports)}, expected {sorted(EXPORTS)}")
    if not imports:
        failures.append("no imports were found in the dump")
    if imports - SYSTEM:
        failures.append(f"imports beyond the system's libraries: {sorted(imports - SYSTEM)}")
    for failure in failures:
        print(failure)
    if not failures:
        print(f"exports: {', '.join(sorted(exports))}; imports: {', '.join(sorted(imports))}")
    return 1 if failures else 0


sys.exit(main())
