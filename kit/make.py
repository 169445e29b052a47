#!/usr/bin/env python3
"""make.py            makes what the kit generates and the tree keeps: the constants inside
                   Vantoplex.idl, kit/languages/, docs/reference/, docs/recipes/
make.py check      names what is stale or undocumented; exit code 1 if anything is
make.py header WIDL_HEADER OUTPUT
                   the header for hosts from the one that widl made
make.py typelib LIBRARY
                   takes the time of its making out of a type library
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parent))

import constants
import header
import idl
import languages
import recipes
import reference
import typelib

ROOT = pathlib.Path(__file__).resolve().parent.parent
IDL = ROOT / "src" / "resources" / "Vantoplex.idl"


def outputs():
    """What the tree keeps: path and text of each file."""
    groups = constants.load()
    text = constants.put_into(IDL.read_text(), groups)
    library = idl.parse(text)
    files = {IDL: text}
    files.update({ROOT / "kit" / "languages" / name: body
                  for name, body in languages.files(library, groups).items()})
    files.update({ROOT / "docs" / "reference" / name: body
                  for name, body in reference.files(library, groups).items()})
    files.update({ROOT / "docs" / "recipes" / name: body
                  for name, body in recipes.files(ROOT / "hosts" / "recipes").items()})
    return library, files


def make():
    _, files = outputs()
    for path, text in files.items():
        path.parent.mkdir(parents=True, exist_ok=True)
        if not path.exists() or path.read_text() != text:
            path.write_text(text)
            print(path.relative_to(ROOT))


def check():
    library, files = outputs()
    faults = [f"undocumented: {name}" for name in idl.undocumented(library)]
    faults += [f"undocumented: {e.name}.{v.name}" for e in library.enumerations for v in e.values if not v.text]
    faults += [f"stale, run kit/make.py: {path.relative_to(ROOT)}" for path, text in files.items()
               if not path.exists() or path.read_text() != text]
    for folder in (ROOT / "kit" / "languages", ROOT / "docs" / "reference", ROOT / "docs" / "recipes"):
        faults += [f"made by nobody: {path.relative_to(ROOT)}" for path in folder.glob("*")
                   if path not in files and path.name not in reference.WRITTEN_BY_HAND and path.suffix != ".png"]
    print("\n".join(faults) or "the kit is whole")
    return 1 if faults else 0


def main(arguments):
    if not arguments:
        return make()
    if arguments == ["check"]:
        return check()
    if len(arguments) == 3 and arguments[0] == "header":
        library = idl.parse(IDL.read_text())
        made = header.annotate(pathlib.Path(arguments[1]).read_text(), library)
        pathlib.Path(arguments[2]).write_text(made)
        return 0
    if len(arguments) == 2 and arguments[0] == "typelib":
        path = pathlib.Path(arguments[1])
        path.write_bytes(typelib.without_time(path.read_bytes()))
        return 0
    print(__doc__, file=sys.stderr)
    return 2


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
