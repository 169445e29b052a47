"""What the DLL's own registration writes, as lines of NSIS: for the machine or for one user.

DllRegisterServer writes to the machine's part of the registry. An installation for one user must
not, so the installer writes the keys itself, below the root that it was told.
"""
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "kit"))

import idl  # noqa: E402

LIBRARY = "{6C24BE93-2D8D-4820-8FFF-AF9FC63007F8}"
LIBRARY_VERSION = "1.0"
AUTOMATION_MARSHALER = "{00020424-0000-0000-C000-000000000046}"
MODULE = r"$INSTDIR\bin\Vantoplex.dll"


def braced(identifier):
    return "{" + identifier.strip("{}").upper() + "}"


def class_keys(name, clsid):
    title = f"{name} Class"
    program, versioned = f"Vantoplex.{name}", f"Vantoplex.{name}.1"
    of_class = rf"CLSID\{clsid}"
    return [
        (versioned, "", title), (rf"{versioned}\CLSID", "", clsid),
        (program, "", title), (rf"{program}\CLSID", "", clsid), (rf"{program}\CurVer", "", versioned),
        (of_class, "", title), (rf"{of_class}\ProgID", "", versioned),
        (rf"{of_class}\VersionIndependentProgID", "", program), (rf"{of_class}\Programmable", "", ""),
        (rf"{of_class}\InprocServer32", "", MODULE), (rf"{of_class}\InprocServer32", "ThreadingModel", "Apartment"),
        (rf"{of_class}\TypeLib", "", LIBRARY),
    ], [versioned, program, of_class]


def interface_keys(name, iid):
    key = rf"Interface\{iid}"
    return [(key, "", name), (rf"{key}\ProxyStubClsid32", "", AUTOMATION_MARSHALER),
            (rf"{key}\TypeLib", "", LIBRARY), (rf"{key}\TypeLib", "Version", LIBRARY_VERSION)], [key]


def library_keys():
    key = rf"TypeLib\{LIBRARY}"
    version = rf"{key}\{LIBRARY_VERSION}"
    return [(version, "", "Vantoplex 1.0 Type Library"), (rf"{version}\409\win64", "", MODULE),
            (rf"{version}\FLAGS", "", "0"), (rf"{version}\HELPDIR", "", r"$INSTDIR\bin")], [key]


def lines():
    """Two texts: what writes all keys, and what deletes them."""
    library = idl.parse((ROOT / "src" / "resources" / "Vantoplex.idl").read_text())
    parts = [class_keys(name, braced(clsid)) for name, clsid, _ in library.classes]
    parts += [interface_keys(each.name, braced(each.iid)) for each in library.interfaces.values()]
    parts.append(library_keys())
    write = [rf'WriteRegStr SHCTX "Software\Classes\{key}" "{name}" "{value}"'
             for values, _ in parts for key, name, value in values]
    delete = [rf'DeleteRegKey SHCTX "Software\Classes\{key}"' for _, roots in parts for key in roots]
    return "\n".join(write) + "\n", "\n".join(delete) + "\n"
