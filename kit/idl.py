"""Reads the interfaces, their comments and the enumerations from Vantoplex.idl.

A comment of lines that begin with `///` belongs to what follows it. Its first paragraph says what a
method does; a line that begins with a tag ends it:

    @param NAME    a parameter: meaning, unit, range, what null does
    @result        the result, where it isn't that of the interface as a whole
    @repaint       whether the window is painted again, likewise
    @ends          what ends the process, likewise

The tags in an interface's own comment hold for all its methods that don't say otherwise.
"""

import re
from dataclasses import dataclass, field


@dataclass
class Comment:
    text: str = ""
    params: dict = field(default_factory=dict)
    tags: dict = field(default_factory=dict)


@dataclass
class Parameter:
    name: str
    type: str
    direction: str


@dataclass
class Method:
    name: str
    dispid: int
    params: list
    comment: Comment
    redeclared: bool = False  # in place of a base's method: no slot of its own


@dataclass
class Interface:
    name: str
    base: str
    iid: str
    comment: Comment
    methods: list


@dataclass
class Value:
    name: str
    number: int
    text: str


@dataclass
class Enumeration:
    name: str
    comment: str
    values: list


@dataclass
class Library:
    interfaces: dict
    enumerations: list
    classes: list  # (name, CLSID, interface)

    def chain(self, interface):
        """The interface and its bases within the library, the root first."""
        names = []
        while interface in self.interfaces:
            names.insert(0, interface)
            interface = self.interfaces[interface].base
        return names

    def slots(self, interface):
        """[(slot, declaring interface, method)] of the real method table, behind IDispatch."""
        table = []
        for name in self.chain(interface):
            for method in self.interfaces[name].methods:
                if method.redeclared:
                    index = next(i for i, (_, m) in enumerate(table) if m.name == method.name)
                    table[index] = (name, method)
                else:
                    table.append((name, method))
        return [(FIRST_SLOT + i, name, method) for i, (name, method) in enumerate(table)]


FIRST_SLOT = 7  # after the three methods of IUnknown and the four of IDispatch


class IdlError(Exception):
    pass


TAG = re.compile(r"@(\w+)\s*(.*)")


def parse_comment(lines):
    comment = Comment()
    kind, name, words = None, None, []

    def close():
        text = " ".join(" ".join(words).split())
        if kind is None:
            comment.text = text
        elif kind == "param":
            comment.params[name] = text
        else:
            comment.tags[kind] = text

    for line in lines:
        tag = TAG.match(line)
        if tag:
            close()
            kind, rest = tag.groups()
            if kind == "param":
                name, _, rest = rest.partition(" ")
            elif kind not in ("result", "repaint", "ends"):
                raise IdlError(f"unknown tag @{kind}")
            words = [rest.strip()]
        else:
            words.append(line)
    close()
    return comment


NOTE = r"((?:[ \t]*///[^\n]*\n)*)\s*"  # the comment of what follows
ATTRIBUTES = r"\[((?:[^\[\]\"]|\"[^\"]*\")*)\]\s*"
INTERFACE = re.compile(NOTE + ATTRIBUTES + r"interface\s+(\w+)\s*:\s*(\w+)\s*\{(.*?)\n[ \t]*\}", re.S)
METHOD = re.compile(NOTE + r"\[id\((\d+)\)[^\]]*\]\s*HRESULT\s+(\w+)\s*\(([^;]*)\)\s*;")
PARAMETER = re.compile(r"\[(in|out)\]\s*(.*?)(\w+)$", re.S)
COCLASS = re.compile(ATTRIBUTES + r"coclass\s+(\w+)\s*\{\s*\[default\]\s*interface\s+(\w+);")
ENUM = re.compile(NOTE + r"typedef enum (\w+)\s*\{(.*?)\n[ \t]*\}", re.S)
ENUM_VALUE = re.compile(NOTE + r"(\w+)\s*=\s*(-?\d+)")
UUID = re.compile(r"uuid\(([-0-9A-F]+)\)")


def comment_lines(note):
    return [line.strip()[3:].strip() for line in note.splitlines() if line.strip()]


def parse_parameters(text):
    parameters = []
    for piece in filter(None, (p.strip() for p in text.split(","))):
        match = PARAMETER.match(piece)
        if not match:
            raise IdlError(f"not a parameter: {piece}")
        direction, type_name, name = match.groups()
        parameters.append(Parameter(name, " ".join(type_name.split()), direction))
    return parameters


def parse(text):
    """The library of an IDL text."""
    # What is meant for the compiler alone would only stand between a comment and its subject.
    text = re.sub(r"^[ \t]*(//(?!/)|cpp_quote)[^\n]*\n", "", text, flags=re.M)
    library = Library({}, [], [])
    for note, name, body in ENUM.findall(text):
        values = [Value(n, int(number), " ".join(comment_lines(about)))
                  for about, n, number in ENUM_VALUE.findall(body)]
        library.enumerations.append(Enumeration(name, " ".join(comment_lines(note)), values))
    for note, attributes, name, base, body in INTERFACE.findall(text):
        inherited = {m.name for b in library.chain(base) for m in library.interfaces[b].methods}
        methods = [Method(n, int(dispid), parse_parameters(parameters),
                          parse_comment(comment_lines(about)), n in inherited)
                   for about, dispid, n, parameters in METHOD.findall(body)]
        iid = UUID.search(attributes).group(1)
        library.interfaces[name] = Interface(name, base, iid, parse_comment(comment_lines(note)), methods)
    for attributes, name, interface in COCLASS.findall(text):
        library.classes.append((name, UUID.search(attributes).group(1), interface))
    return library


def undocumented(library):
    """What lacks its comment, a line each."""
    missing = []
    for interface in library.interfaces.values():
        if not interface.comment.text:
            missing.append(interface.name)
        for method in interface.methods:
            name = f"{interface.name}.{method.name}"
            if not method.comment.text:
                missing.append(name)
            known = [parameter.name for parameter in method.params]
            missing += [f"{name}({p})" for p in known if not method.comment.params.get(p)]
            missing += [f"{name}({p}) isn't a parameter" for p in method.comment.params if p not in known]
    return missing
