"""The table of constants, and its form in C and C++ inside Vantoplex.idl."""

import pathlib
import tomllib

from idl import Enumeration, Value

TABLE = pathlib.Path(__file__).with_name("constants.toml")
BEGIN, END = "    // begin constants\n", "    // end constants\n"


class Group(Enumeration):
    """An enumeration with the prefix of its names and the methods that use it."""

    def __init__(self, row):
        values = [Value(row["prefix"] + name, number, text) for name, number, text in row["values"]]
        super().__init__(row["name"], row["about"], values)
        self.prefix = row["prefix"]
        self.used = row["used"]


def load():
    groups = [Group(row) for row in tomllib.loads(TABLE.read_text())["group"]]
    names = [value.name for group in groups for value in group.values]
    assert len(names) == len(set(names)), "a constant is named twice"
    return groups


def quoted(line):
    escaped = line.replace("\\", "\\\\").replace('"', '\\"')
    return f'    cpp_quote("{escaped}")\n'


def idl_block(groups):
    lines = []
    for group in groups:
        lines.append(quoted(f"/* {group.comment} */"))
        lines.append(quoted(f"typedef enum {group.name} {{"))
        for i, value in enumerate(group.values):
            comma = "," if i + 1 < len(group.values) else ""
            lines.append(quoted(f"    {value.name} = {value.number}{comma} /* {value.text} */"))
        lines.append(quoted(f"}} {group.name};"))
    return "".join(lines)


def put_into(idl_text, groups):
    """The IDL with the block of constants made anew."""
    head, rest = idl_text.split(BEGIN)
    tail = rest.split(END)[1]
    return head + BEGIN + idl_block(groups) + END + tail
