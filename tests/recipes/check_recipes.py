#!/usr/bin/env python3
"""Draws all recipes and compares the pictures with those of docs/recipes/.

usage: check_recipes.py REPOSITORY RECIPES.exe WORK [--keep]

--keep puts the new pictures in the place of the old ones, for a person to look at.
"""
import pathlib
import shutil
import subprocess
import sys

import png

FAR = 40         # of 255: a pixel differs from here on, in any channel
SHARE = 0.002    # of the pixels may differ


def differing(path, other):
    """The share of pixels that differ, 1 for other sizes."""
    if path.read_bytes() == other.read_bytes():
        return 0
    width, height, step, rows = png.read(path)
    other_width, other_height, other_step, other_rows = png.read(other)
    if (width, height, step) != (other_width, other_height, other_step):
        return 1
    count = 0
    for row, other_row in zip(rows, other_rows):
        if row != other_row:
            count += len({i // step for i, (a, b) in enumerate(zip(row, other_row)) if abs(a - b) >= FAR})
    return count / (width * height)


def draw(root, program, work):
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir(parents=True)
    windows_path = "Z:" + str(work).replace("/", "\\")
    return subprocess.run([root / "scripts" / "run-wine.sh", "-t", "300", program, "--pictures", windows_path]).returncode


def main():
    root, program, work = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
    kept = root / "docs" / "recipes"
    failures = []
    code = draw(root, program, work)
    if code != 0:
        failures.append(f"the recipes ended with {code}")
    if "--keep" in sys.argv:
        for picture in work.glob("*.png"):
            shutil.copyfile(picture, kept / picture.name)
    names = {path.stem for path in (root / "hosts" / "recipes").glob("*.cpp")} - {"recipe"}
    for name in sorted(names | {path.stem for path in kept.glob("*.png")}):
        drawn, expected = work / f"{name}.png", kept / f"{name}.png"
        if not drawn.is_file() or not expected.is_file():
            failures.append(f"{name}: " + ("not drawn" if not drawn.is_file() else "no picture in docs/recipes"))
            continue
        share = differing(drawn, expected)
        if share > SHARE:
            failures.append(f"{name}: {100 * share:.2f} % of the pixels differ; drawn: {drawn}")
    print("\n".join(failures) or f"{len(names)} recipes drew their pictures")
    return 1 if failures else 0


sys.exit(main())
