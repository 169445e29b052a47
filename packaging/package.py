#!/usr/bin/env python3
"""Makes the packages of a finished build.

usage: package.py BUILD OUTPUT [--tools PREFIX]

BUILD is the folder of the preset windows-x64. OUTPUT gets, with the version in their names,
  vantoplex-V-windows-x64.zip      what a host's author needs
  vantoplex-V-setup.exe            the same to install, unless makensis is missing
  vantoplex-V-symbols.zip          the debug information of its programs
  SHA256SUMS                       of these
Times inside are those of the commit, or SOURCE_DATE_EPOCH: two runs give the same bytes.
"""
import argparse
import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time
import zipfile

import registration

ROOT = pathlib.Path(__file__).resolve().parent.parent
PROGRAMS = ("Vantoplex.dll", "vantoplex-viewer.exe")
ASSEMBLY = "Vantoplex.Charts"
EARLIEST = 315532800 # 1980, the first moment that a zip can hold
LARGEST_LIBRARY = 1_153_433 # bytes, 1.1 MB: a person looks at what makes it larger


class Refusal(Exception):
    """One sentence that says what to do."""


def version_of(build):
    header = build / "version" / "VersionNumbers.h"
    if not header.is_file():
        raise Refusal(f"{build} is no build for Windows: run scripts/build.sh windows-x64 Vantoplex vantoplex-viewer first.")
    text = header.read_text()
    release = re.search(r'VANTOPLEX_RELEASE "(.*)"', text)[1]
    record = re.search(r'VANTOPLEX_RECORD "(.*)"', text)[1]
    return release, record.replace(", ", ".")


def time_of_commit():
    given = os.environ.get("SOURCE_DATE_EPOCH")
    if given:
        return int(given)
    if shutil.which("git") is None:
        return EARLIEST
    shown = subprocess.run(["git", "-C", str(ROOT), "log", "-1", "--format=%ct"], capture_output=True, text=True)
    return int(shown.stdout) if shown.returncode == 0 and shown.stdout.strip() else EARLIEST


def copy(source, target):
    if not source.is_file():
        raise Refusal(f"{source} is missing: build it first.")
    target.parent.mkdir(parents=True, exist_ok=True)
    shutil.copyfile(source, target)


def copy_folder(source, target, pattern="*"):
    for file in sorted(source.rglob(pattern)):
        if file.is_file() and "__pycache__" not in file.parts:
            copy(file, target / file.relative_to(source))


def copy_samples(stage):
    """The samples, with the paths that they mention as they are in the package."""
    for file in sorted((ROOT / "hosts" / "samples").glob("*.*")):
        text = file.read_text()
        for ours, theirs in (("../../kit/", "../"), ("../../docs/", "../docs/"), ("kit/languages", "languages"),
                             ("hosts/samples/", "samples/")):
            text = text.replace(ours, theirs)
        target = stage / "samples" / file.name
        target.parent.mkdir(exist_ok=True)
        target.write_text(text)


def split_programs(build, stage, symbols, tools):
    """The programs without their debug information, and that apart: it names folders of the build,
    and a link to it would hold its sum."""
    for name in PROGRAMS:
        program, debug = stage / "bin" / name, symbols / f"{name}.debug"
        copy(build / "bin" / name, program)
        debug.parent.mkdir(parents=True, exist_ok=True)
        subprocess.run([f"{tools}objcopy", "--only-keep-debug", "--preserve-dates", program, debug], check=True)
        subprocess.run([f"{tools}strip", "--preserve-dates", program], check=True) # else it puts in the time of now
    size = (stage / "bin" / PROGRAMS[0]).stat().st_size
    if size >= LARGEST_LIBRARY:
        raise Refusal(f"Vantoplex.dll has {size} bytes without debug information; {LARGEST_LIBRARY} are the limit.")


def assembly_manifest(build, record):
    """The classes are those of the viewer's manifest; the name is what hosts refer to."""
    text = (build / "hosts" / "viewer" / "manifests" / "server.manifest").read_text()
    made, count = re.subn(r'<assemblyIdentity [^>]*/>',
                          f'<assemblyIdentity type="win32" name="{ASSEMBLY}" version="{record}" processorArchitecture="amd64"/>',
                          text)
    if count != 1:
        raise Refusal("hosts/viewer/server.manifest.in has not one identity.")
    return made.replace("in the program's folder, for use without registration", "beside this file, for use without registration")


def fill(stage, build, release, record):
    for name in ("vantoplex.h", "vantoplex_i.c"):
        copy(build / "include" / name, stage / "include" / name)
    copy_folder(ROOT / "kit" / "include", stage / "include")
    copy_folder(ROOT / "kit" / "languages", stage / "languages")
    copy(build / "typelib" / "Vantoplex.tlb", stage / "typelib" / "Vantoplex.tlb")
    copy(ROOT / "src" / "resources" / "Vantoplex.idl", stage / "typelib" / "Vantoplex.idl")
    copy_folder(ROOT / "docs", stage / "docs")
    copy_folder(ROOT / "hosts" / "recipes", stage / "recipes", "*.cpp")
    copy(ROOT / "hosts" / "recipes" / "recipe.h", stage / "recipes" / "recipe.h")
    copy_samples(stage)
    copy(ROOT / "CHANGELOG.md", stage / "CHANGELOG.md")
    copy(ROOT / "LICENSE", stage / "LICENSE.txt")
    readme = (ROOT / "packaging" / "README.md").read_text()
    (stage / "README.md").write_text(readme.replace("@RELEASE@", release).replace("@RECORD@", record))
    (stage / "bin" / f"{ASSEMBLY}.manifest").write_text(assembly_manifest(build, record))
    client = (ROOT / "packaging" / "client.manifest").read_text()
    (stage / "bin" / "client.manifest").write_text(client.replace("@RECORD@", record))


def files_of(folder):
    return sorted(path.relative_to(folder).as_posix() for path in folder.rglob("*") if path.is_file())


def sums_of(folder, names):
    return "".join(f"{hashlib.sha256((folder / name).read_bytes()).hexdigest()}  {name}\n" for name in names)


def set_times(folder, moment):
    for path in folder.rglob("*"):
        os.utime(path, (moment, moment))


def write_zip(path, folder, moment, level=9):
    when = time.gmtime(moment)[:6]
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED, compresslevel=level) as archive:
        for name in files_of(folder):
            entry = zipfile.ZipInfo(f"{path.stem}/{name}", when)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = 0o644 << 16
            archive.writestr(entry, (folder / name).read_bytes())


def installer_lists(stage):
    """Lines of NSIS that put the files in place, and that take away these files and nothing else."""
    names = files_of(stage)
    put, take, folder = [], [], None
    for name in names:
        parent = os.path.dirname(name).replace("/", "\\")
        if parent != folder:
            put.append(f'SetOutPath "$INSTDIR\\{parent}"' if parent else 'SetOutPath "$INSTDIR"')
            folder = parent
        put.append(f'File "{stage / name}"')
        take.append('Delete "$INSTDIR\\{}"'.format(name.replace("/", "\\")))
    folders = {parent.as_posix() for name in names for parent in pathlib.PurePosixPath(name).parents} - {"."}
    take += ['RMDir "$INSTDIR\\{}"'.format(name.replace("/", "\\")) for name in sorted(folders, reverse=True)]
    return "\n".join(put) + "\n", "\n".join(take) + "\n"


def write_installer(path, stage, work, release, record):
    put, take = installer_lists(stage)
    (work / "put.nsh").write_text(put)
    (work / "take.nsh").write_text(take)
    register, unregister = registration.lines()
    (work / "register.nsh").write_text(register)
    (work / "unregister.nsh").write_text(unregister)
    size = sum((stage / name).stat().st_size for name in files_of(stage)) // 1024
    defines = {"RELEASE": release, "RECORD": record, "OUTPUT": path, "LISTS": work, "ROOT": ROOT, "SIZE": size}
    ran = subprocess.run(["makensis", "-V2", "-WX", "-INPUTCHARSET", "UTF8"]
                         + [f"-D{name}={value}" for name, value in defines.items()]
                         + [ROOT / "packaging" / "Vantoplex.nsi"], capture_output=True, text=True)
    if ran.returncode != 0:
        raise Refusal(f"makensis refused packaging/Vantoplex.nsi:\n{ran.stdout}{ran.stderr}")


def package(build, output, tools):
    release, record = version_of(build)
    moment = time_of_commit()
    work = output / "work"
    shutil.rmtree(work, ignore_errors=True)
    stage, symbols = work / "stage", work / "symbols"
    stage.mkdir(parents=True)
    split_programs(build, stage, symbols, tools)
    fill(stage, build, release, record)
    (stage / "SHA256SUMS").write_text(sums_of(stage, files_of(stage)))
    set_times(work, moment)
    name = f"vantoplex-{release}"
    made = [f"{name}-windows-x64.zip", f"{name}-symbols.zip"]
    write_zip(output / made[0], stage, moment)
    write_zip(output / made[1], symbols, moment, level=3)
    if shutil.which("makensis"):
        made.append(f"{name}-setup.exe")
        write_installer(output / made[2], stage, work, release, record)
    else:
        print("package: no installer, for makensis is missing (apt-get install nsis)")
    (output / "SHA256SUMS").write_text(sums_of(output, made))
    shutil.rmtree(work)
    return [output / entry for entry in made]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("output", type=pathlib.Path)
    parser.add_argument("--tools", default="x86_64-w64-mingw32-")
    arguments = parser.parse_args()
    try:
        for path in package(arguments.build.resolve(), arguments.output.resolve(), arguments.tools):
            print(f"{path} ({path.stat().st_size // 1024} KB)")
    except Refusal as refusal:
        print(f"package: {refusal}", file=sys.stderr)
        return 1
    return 0


sys.exit(main())
