"""docs/reference: a page for each interface, for messages, commands and keys, constants, slots."""

import re

HEAD = "<!-- Made from Vantoplex.idl and kit/constants.toml by kit/make.py: do not edit. -->\n\n"
WRITTEN_BY_HAND = ("graph-file.md",)
TAGS = (("result", "Result"), ("repaint", "Repaints"), ("ends", "Ends the process"))


def cell(text):
    return text.replace("|", "\\|")


def page_of(name):
    return name + ".md"


def linked(text, library):
    """Names of interfaces and their methods become links."""
    def link(match):
        interface, method = match.group(1), match.group(2)
        if interface not in library.interfaces:
            return match.group(0)
        anchor = f"#{method.lower()}" if method else ""
        return f"[{match.group(0)}]({page_of(interface)}{anchor})"
    return re.sub(r"\b(I[A-Z]\w+)(?:\.(\w+))?\b", link, text)


def signature(method):
    return ", ".join(f"[{p.direction}] {p.type} {p.name}" for p in method.params)


def method_part(library, interface, method):
    comment = method.comment
    out = [f"### {method.name}", "", f"`{method.name}({signature(method)})`", "", linked(comment.text, library), ""]
    if method.params:
        out += ["| Parameter | |", "|---|---|"]
        out += [f"| `{p.name}` | {cell(linked(comment.params.get(p.name, ''), library))} |" for p in method.params]
        out += [""]
    said = [f"{words}: {linked(comment.tags[tag], library)}" for tag, words in TAGS if tag in comment.tags]
    if said:
        out += ["\n".join(f"- {line}" for line in said), ""]
    note = f"DISPID {method.dispid}"
    if method.redeclared:
        note += f"; in place of the method of {interface.base}, without a slot of its own"
    return out + [f"*{note}.*", ""]


def interface_page(library, interface):
    chain = library.chain(interface.name)
    base = f"[{interface.base}]({page_of(interface.base)})" if len(chain) > 1 else "`IDispatch`"
    coclass = next((name for name, _, i in library.classes if i == interface.name), None)
    out = [f"# {interface.name}", "", linked(interface.comment.text, library), "",
           f"Derives from {base}. IID `{{{interface.iid}}}`."
           + (f" ProgID `Vantoplex.{coclass}`." if coclass else ""), ""]
    out += [f"- {words}, where a method doesn't say otherwise: {interface.comment.tags[tag]}"
            for tag, words in TAGS if tag in interface.comment.tags] + [""]
    if interface.methods:
        out += ["| Method | |", "|---|---|"]
        out += [f"| [{m.name}](#{m.name.lower()}) | {cell(m.comment.text.split('. ')[0].rstrip('.'))} |"
                for m in interface.methods] + [""]
    for method in interface.methods:
        out += method_part(library, interface, method)
    return HEAD + "\n".join(out)


def table(enumeration):
    out = ["| Value | Name | |", "|---|---|---|"]
    return out + [f"| {v.number} | `{v.name}` | {cell(v.text)} |" for v in enumeration.values] + [""]


def constants_page(library, groups):
    out = ["# Constants", "", "Names of the numbers that methods take and give, in `vantoplex.h` and in the files",
           "of other languages in `kit/languages`.", ""]
    for enumeration in library.enumerations + groups:
        out += [f"## {enumeration.name}", "", enumeration.comment, ""]
        if hasattr(enumeration, "used"):
            out += [f"Used by: {linked(enumeration.used, library)}.", ""]
        out += table(enumeration)
    return HEAD + "\n".join(out)


def messages_page(library, groups):
    messages = next(e for e in library.enumerations if e.name == "XGRAPH_MSG")
    passed = next(g for g in groups if g.name == "VpxMessage")
    out = ["# Messages of the graph", "", messages.comment, "", "They are posted, so they arrive after the call or the",
           "mouse message that caused them. The business chart and the 3D pie post nothing.", ""]
    out += table(messages) + ["And one without a name in the type library:", ""] + table(passed)
    out += ["The record of `XG_POINTCHANGED`, one for the process, which lies below 2 GB so that wParam holds",
            "its whole address; the next step of the drag overwrites it:", "", "```cpp", "struct TPointChange {",
            "    int nCurve;   // index from 0", "    int nIndex;   // the point's, from 0",
            "    double fOldY; // value before", "    double fNewY; // value now", "};", "```", ""]
    return HEAD + "\n".join(out)


KEYS = [("Home", "shows the whole range of all axes"),
        ("Plus of the number pad", "zooms in by a fifth of the visible range, all axes"),
        ("Minus of the number pad", "zooms out by a fifth of the visible range, all axes"),
        ("Left, Right", "move the picture along X by a tenth; in cursor mode the cursor by a pixel"),
        ("Up, Down", "move the picture along Y by a tenth; in cursor mode the cursor by a pixel"),
        ("Delete", "removes the label, note or picture in its sizing frame"),
        ("Wheel", "moves along X by a tenth of the visible range; turns off the X axes' automatic scale"),
        ("Shift + wheel", "the same along Y")]
MOUSE = [("Click", "opNone", "selects an axis, a curve, a label or a legend row; beside a selected axis it sets an axis marker"),
         ("Right click on an axis marker", "opNone", "removes it"),
         ("Drag of an axis marker", "opNone", "moves it"),
         ("Double click", "opNone", "opens the property sheet, or a label's text for editing"),
         ("Right click on a label", "all", "its menu, with its properties"),
         ("Drag", "opZoom", "zooms into the band, if it is 15 pixels wide and high at least"),
         ("Drag", "opPan", "moves the picture"),
         ("Click", "opCursor", "leaves a note on the curve that the cursor snapped to"),
         ("Drag with the right button", "opCursor", "moves the picture"),
         ("Drag of a point", "opEditCurve", "changes the point's y"),
         ("Drag", "opMeasure", "measures between two curve points; the measure stays")]


def commands_page(library, groups):
    commands = next(g for g in groups if g.name == "VpxCommand")
    out = ["# Commands, keys and mouse of the graph", "", commands.comment, "", "```cpp",
           "graph->SendMessage(WM_COMMAND, VPX_COMMAND_CURSOR, 0);", "```", ""] + table(commands)
    out += ["40006 and 40008 have no effect.", "", "## Keys", "", "When the graph has the focus:", "", "| Key | |", "|---|---|"]
    out += [f"| {key} | {effect} |" for key, effect in KEYS] + [""]
    out += ["## Mouse", "", "| Gesture | Operation | |", "|---|---|---|"]
    out += [f"| {gesture} | {operation} | {effect} |" for gesture, operation, effect in MOUSE] + [""]
    return HEAD + "\n".join(out)


def slots_page(library):
    out = ["# Method tables", "", "For languages that call by slot. The first seven are those of `IUnknown` (0 to 2) and",
           "`IDispatch` (3 to 6). A method that an interface declares again is in its base's slot; the type",
           "library counts it once more, so offsets taken from there are too large behind it. `vantoplex_c.h`",
           "has these tables for C.", ""]
    for name in library.interfaces:
        rows = library.slots(name)
        if rows:
            out += [f"## {name}", "", "| Slot | Method | Declared in |", "|---|---|---|"]
            out += [f"| {slot} | `{method.name}` | {declared} |" for slot, declared, method in rows] + [""]
    return HEAD + "\n".join(out)


def index_page(library):
    out = ["# Reference", "", "| Page | |", "|---|---|"]
    out += [f"| [{i.name}]({page_of(i.name)}) | {cell(i.comment.text.split('. ')[0].rstrip('.'))} |"
            for i in library.interfaces.values()]
    out += ["| [Messages](messages.md) | what the graph posts to its parent |",
            "| [Commands, keys and mouse](commands.md) | what drives the graph |",
            "| [Constants](constants.md) | the names of all numbers |",
            "| [Graph file](graph-file.md) | what Save writes and Load reads |",
            "| [Method tables](slots.md) | for languages that call by slot |", ""]
    return HEAD + "\n".join(out)


def files(library, groups):
    pages = {page_of(i.name): interface_page(library, i) for i in library.interfaces.values()}
    pages.update({"README.md": index_page(library), "messages.md": messages_page(library, groups),
                  "commands.md": commands_page(library, groups), "constants.md": constants_page(library, groups),
                  "slots.md": slots_page(library)})
    return pages

