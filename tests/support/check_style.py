#!/usr/bin/env python3
"""Checks the parts of the house style that need no compiler (CONTRIBUTING.md, "Style").

usage: check_style.py REPOSITORY [FILE...]

- A constant at the scope of a namespace or a class is in upper camel case.
- A source file that has a header of its own includes it first.
- A pointer in a condition is tested by its truth, not against nullptr.
- A single statement of one line has no braces, but for a check in a test, which is an if-else itself.
- A parameter has the same name where its function is declared and where it is defined.
- A function of the platform that is called with :: somewhere in src/ is called so everywhere in src/.
- A file of tests is named *Test.cpp.
- Files are plain text: no tabs, no blanks at the end of a line, one line end at the end; at most 400 lines.
"""
import pathlib
import re
import subprocess
import sys

LONGEST = 400
# Files that are still on their way to that length.
LONGER = ("src/draw/DCEx.",)
# Data put together by a person, line by line.
TABLES = ("tests/server/Expected",)

CONSTANT = re.compile(
    r"^(?P<scope>|    )(?P<words>(?:inline |static |constinit )*)constexpr (?!auto operator)"
    r"(?P<type>[\w:<>,*& ]+?)[ *&](?P<name>\w+)(?:\[[^\]]*\])*(?: =|\{|;)")
NULL_TEST = re.compile(r"\b(?:if|while) \(.*[!=]= nullptr|(?:&&|\|\|) [\w.>*()\[\]-]+ [!=]= nullptr|[!=]= nullptr (?:&&|\|\||\?)")
QUALIFIED = re.compile(r"(?<![\w:>])::([A-Z]\w+)\(")
BARE = re.compile(r"(?<![\w:.>~&])([A-Z]\w+)\(")
MEMBER = re.compile(r"^\s+(?:[\w:<>*&\[\], ]+[ *&])?([A-Z]\w+)\(.*", re.MULTILINE)
COMMENTS_AND_TEXTS = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.DOTALL)
BRACED = re.compile(r"^(\s*)(?:if|for|while)\b.*\{$")
FUNCTION = re.compile(r"^(?! *(?:return|else|if|for|while|switch|throw|new|delete)\b)[\w:<>,*& \[\]]*?[ *&]"
                      r"(?P<name>(?:\w+::)*~?\w+)\((?P<parameters>(?:[^()]|\([^()]*\))*)\)"
                      r"(?: const)?(?: noexcept)?(?: override)?(?: = \w+)?\s*(?:;|\{)", re.MULTILINE)
FIRST_INCLUDE = re.compile(r'^#include ([<"][^>"]+[>"])', re.MULTILINE)


def files_of(root):
    listed = subprocess.run(["git", "-C", str(root), "ls-files", "--cached", "--others", "--exclude-standard",
                             "src", "hosts", "tests", "bench"], check=True, capture_output=True, text=True).stdout
    return [name for name in listed.split("\n") if name.endswith((".h", ".cpp")) and (root / name).is_file()]


def check_text(name, text, complain):
    lines = text.split("\n")
    if not text.endswith("\n") or text.endswith("\n\n"):
        complain(name, len(lines), "ends with exactly one line end")
    if len(lines) - 1 > LONGEST and not name.startswith(TABLES) and not name.startswith(LONGER):
        complain(name, len(lines), f"has {len(lines) - 1} lines; at most {LONGEST}")
    for number, line in enumerate(lines, 1):
        if re.match(r" *\t", line) or line != line.rstrip():
            complain(name, number, "indented by a tab, or blanks at the end of the line")


def is_in_class(lines, index):
    """Whether an indented line belongs to a class rather than to a function."""
    while index > 0:
        index -= 1
        line = lines[index]
        if re.match(r"(class|struct|template|union)\b", line):
            return True
        if line.startswith("{"): # what it belongs to is in the lines before
            head = ""
            while index > 0 and lines[index - 1].strip() and not lines[index - 1].startswith(("}", "#")):
                index -= 1
                head = lines[index] + head
            return bool(re.match(r"(template <.*?>\s*)?(class|struct)\b", head))
    return False


def constants_in(code):
    """Constants at the scope of a namespace or a class, with their lines; locals follow another rule."""
    lines = code.split("\n")
    for index, line in enumerate(lines):
        found = CONSTANT.match(line)
        if line.endswith("\\") or (index > 0 and lines[index - 1].endswith("\\")):
            continue # a part of a macro
        if found and (not found["scope"] or ("static" in found["words"] and is_in_class(lines, index))):
            yield index + 1, found["name"]


def check_constants(name, code, complain):
    for number, constant in constants_in(code):
        if not re.fullmatch(r"[A-Z][A-Za-z0-9]*|m_\w+|[A-Z]+_\w+", constant):
            complain(name, number, f"the constant {constant} is not in upper camel case")
    for number, line in enumerate(code.split("\n"), 1):
        for marked in re.findall(r"(?<![\w.])k[A-Z][a-z]\w*", line):
            complain(name, number, f"{marked} has a mark; locals are plain words, constants upper camel case")


def check_null_tests(name, code, complain):
    for number, line in enumerate(code.split("\n"), 1):
        if NULL_TEST.search(line):
            complain(name, number, "a pointer is tested by its truth")


def check_braces(name, code, complain):
    lines = code.split("\n")
    for number, (head, body, end) in enumerate(zip(lines, lines[1:], lines[2:]), 1):
        opened = BRACED.match(head)
        if opened and re.match(r"\s+(?!EXPECT_|ASSERT_)\S.*;\s*$", body) and end == opened[1] + "}":
            complain(name, number, "a single statement of one line has no braces")


def split_parameters(text):
    """Types and names of the parameters between the parentheses; a name may be missing."""
    parts, depth, start = [], 0, 0
    for index, sign in enumerate(text + ","):
        depth += (sign in "(<[{") - (sign in ")>]}")
        if sign == "," and depth == 0:
            parts.append(text[start:index].split("=")[0].strip())
            start = index + 1
    found = [re.match(r"(.*[\s*&>])(\w+)((?:\[\w*\])*)$", part, re.DOTALL) for part in parts]
    types = [re.sub(r"\s+", "", match[1] + match[3] if match else part) for match, part in zip(found, parts)]
    return tuple(types), [match[2] if match else "" for match in found]


def functions_in(code):
    """Names and parameters of what is declared or defined, but for calls inside of functions."""
    for found in FUNCTION.finditer(code):
        yield found["name"], found["parameters"], code.count("\n", 0, found.start("name")) + 1


def check_parameter_names(codes, wanted, complain):
    """Compares definitions with the declarations in the headers of their class, namespace or file."""
    declared = {}
    for name, code in codes.items():
        if name.startswith("src/") and name.endswith(".h"):
            scopes = set(re.findall(r"\b(?:class|struct|namespace) (\w+)", code)) | {name[:-2]}
            for function, parameters, _ in functions_in(code):
                types, names = split_parameters(parameters)
                for scope in scopes:
                    declared.setdefault((scope, function, types), []).append(names)
    for name in sorted(wanted):
        if not name.startswith("src/") or not name.endswith(".cpp"):
            continue
        for function, parameters, number in functions_in(codes[name]):
            types, names = split_parameters(parameters)
            scope, _, plain = function.rpartition("::")
            known = declared.get((scope.split("::")[-1] or name[:-4], plain, types), [])
            if known and not any(all(a == b or not a or not b for a, b in zip(names, other)) for other in known):
                complain(name, number, f"{function}: the parameters are called {known[0]} where it is declared")


def check_own_header(root, name, text, complain):
    header = pathlib.PurePosixPath(name).with_suffix(".h")
    if not name.startswith("src/") or not name.endswith(".cpp") or not (root / header).is_file():
        return
    first = FIRST_INCLUDE.search(text)
    if not first or first[1] != f'"{header.relative_to("src")}"':
        complain(name, 1, f"does not include {header.name} first")


def blanked(text):
    """The text with comments and quoted texts replaced by blanks, line for line."""
    return COMMENTS_AND_TEXTS.sub(lambda match: re.sub(r"[^\n]", " ", match[0]), text)


def platform_calls(codes):
    """Functions that src/ calls with ::, but for those that a class of ours has under the same name."""
    called, members = set(), set()
    for name, code in codes.items():
        if not name.startswith("src/"):
            continue
        called.update(QUALIFIED.findall(code))
        if name.endswith(".h"):
            members.update(MEMBER.findall(code))
        members.update(re.findall(r"\b\w+::([A-Z]\w+)\(", code))
    return called - members


def check_platform_calls(name, code, calls, complain):
    for number, line in enumerate(code.split("\n"), 1):
        for function in BARE.findall(line):
            if function in calls:
                complain(name, number, f"{function} is the platform's: ::{function}")


def main():
    root = pathlib.Path(sys.argv[1]).resolve()
    texts = {name: (root / name).read_text(encoding="utf-8") for name in files_of(root)}
    codes = {name: blanked(text) for name, text in texts.items()}
    calls = platform_calls(codes)
    wanted = set(sys.argv[2:]) or set(texts)
    complaints = []

    def complain(name, number, what):
        complaints.append(f"{name}:{number}: {what}")

    for name in sorted(wanted & set(texts)):
        text, code = texts[name], codes[name]
        check_text(name, text, complain)
        check_own_header(root, name, text, complain)
        holds_tests = re.search(r"^TEST(_F|_P)?\(", text, re.MULTILINE)
        if holds_tests and not name.endswith("Test.cpp"):
            complain(name, 1, "holds tests: its name ends in Test.cpp")
        check_constants(name, code, complain)
        check_braces(name, code, complain)
        if name.startswith("src/"):
            check_null_tests(name, code, complain)
            check_platform_calls(name, code, calls, complain)
    check_parameter_names(codes, wanted & set(texts), complain)
    for complaint in complaints:
        print(complaint)
    print(f"{len(wanted & set(texts))} files, {len(complaints)} departures from the style")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
