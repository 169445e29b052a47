#!/usr/bin/env python3
"""Checks from the #include lines which folder knows which.

usage: check_includes.py REPOSITORY

The arrows go one way only. What the pieces of `objects` ask of their graph they ask through
objects/PlotHost.h, which the graph answers.
"""
import pathlib
import re
import sys

# folder -> folders of src/ that its files may include (its own is always allowed)
MAY_INCLUDE = {
    "base": set(),
    "framework/windowing": {"base"},
    "framework/component": {"base", "framework/windowing"},
    "draw": {"base", "framework/windowing", "framework/component"},
    "objects": {"base", "framework/windowing", "framework/component", "draw"},
    "graph": {"base", "framework/windowing", "framework/component", "draw", "objects"},
    "dialogs": {"base", "framework/windowing", "framework/component", "draw", "objects", "graph", "resources"},
    "charts2d": {"base", "framework/windowing", "framework/component"},
    "pie3d": {"base", "framework/windowing", "framework/component"},
    "automation": {"base", "framework/windowing", "framework/component", "draw", "objects", "graph",
                   "charts2d", "pie3d", "resources"},
    "server": {"base", "framework/windowing", "framework/component", "automation", "resources"},
    "resources": set(),
}
# A chart family finds its bitmaps, dialogs and cursors by the numbers in this one header.
RESOURCE_NUMBERS = "resources/resource.h"
# What the interface definition generates; it lies in the build folder.
GENERATED = {"vantoplex.h", "vantoplex_i.c"}
GENERATED_READERS = {"automation", "server", "framework/component"}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
COMMENT = re.compile(r"/\*.*?\*/", re.DOTALL)


def folder_of(path):
    """The folder of src/ that a path relative to src/ lies in."""
    parts = path.split("/")
    if parts[0] == "framework":
        return "/".join(parts[:2])
    return parts[0]


def includes_of(file):
    return INCLUDE.findall(COMMENT.sub("", file.read_text(encoding="utf-8")))


def check_room(root, file, complaints):
    source = root / "src"
    relative = file.relative_to(source).as_posix()
    room = folder_of(relative)
    if room not in MAY_INCLUDE:
        complaints.append(f"src/{relative}: folder '{room}' has no place in the order")
        return
    for bracket, name in includes_of(file):
        if bracket == "<":
            continue
        if name in GENERATED:
            if room not in GENERATED_READERS:
                complaints.append(f"src/{relative}: '{room}' must not know the generated {name}")
            continue
        if "/" not in name:
            complaints.append(f'src/{relative}: "{name}" is not given from src/ on')
            continue
        if not (source / name).is_file():
            complaints.append(f'src/{relative}: "{name}" does not exist under src/')
            continue
        target = folder_of(name)
        if target == room or name == RESOURCE_NUMBERS:
            continue
        if target not in MAY_INCLUDE[room]:
            complaints.append(f"src/{relative}: '{room}' must not know '{target}' ({name})")


def check_host(root, file, complaints):
    """A host knows the generated header and its own files, nothing of src/."""
    relative = file.relative_to(root).as_posix()
    for bracket, name in includes_of(file):
        own = (root / "hosts" / name).is_file() or (file.parent / name).is_file()
        if bracket == '"' and name not in GENERATED and not own:
            complaints.append(f"{relative}: a host must not know {name}")


def main():
    root = pathlib.Path(sys.argv[1]).resolve()
    complaints = []
    files = 0
    for file in sorted((root / "src").rglob("*")):
        if file.suffix in (".h", ".cpp"):
            files += 1
            check_room(root, file, complaints)
    for file in sorted((root / "hosts").rglob("*")):
        if file.suffix in (".h", ".cpp"):
            files += 1
            check_host(root, file, complaints)
    for complaint in complaints:
        print(complaint)
    print(f"{files} files, {len(complaints)} includes against the order")
    return 1 if complaints or files == 0 else 0


sys.exit(main())
