"""Pages of docs/recipes/ from the sources in hosts/recipes/.

A source begins with a comment: the title, an empty line, what there is to know. The page shows it,
the picture and the rest of the source.
"""

import re

FRAME = "recipe"  # recipe.h and recipe.cpp, which all share
HEAD = re.compile(r"// (?P<title>.+)\n//\n(?P<text>(?:// .+\n)+)\n(?P<code>[\s\S]*)")
ORDER = [
    ("Curves and axes", ["first-chart", "second-y-axis", "date-axis", "log-axis", "fixed-range", "line-styles",
                         "scatter-symbols", "fill-beneath", "fill-between"]),
    ("Live data", ["live-data", "ring-buffer", "moving-window"]),
    ("What is written on a graph", ["colour-ranges", "axis-markers", "labels", "notes"]),
    ("A person's hands", ["cursor-values", "measuring", "dragging-points", "linked-graphs"]),
    ("Analysis", ["trends", "averages"]),
    ("Files and paper", ["save-load", "print", "picture-unseen"]),
    ("Bars, lines and pies", ["bars-grow", "bar-groups-grow", "bar-series-grow", "bar-groups-fade", "bar-series-fade",
                              "lines-draw", "line-series-draw", "pie-sweep", "pie-fade"]),
    ("The 3D pie", ["pie3d-sorted", "pie3d-selection", "pie3d-styles"]),
    ("Windows and registration", ["resizing", "dialog-host", "without-registration", "per-user-registration"]),
]


class RecipeError(Exception):
    pass


def read(folder):
    """Title, text and code of each recipe by its name."""
    found = {}
    for path in sorted(folder.glob("*.cpp")):
        if path.stem == FRAME:
            continue
        head = HEAD.match(path.read_text())
        if not head or f'RECIPE("{path.stem}")' not in head["code"]:
            raise RecipeError(f"{path.name} needs a title, a text and RECIPE(\"{path.stem}\")")
        text = " ".join(line[3:] for line in head["text"].splitlines())
        found[path.stem] = (head["title"], text, head["code"].rstrip())
    placed = [name for _, names in ORDER for name in names]
    if sorted(placed) != sorted(found):
        raise RecipeError(f"not in the order of the gallery, or without a source: {sorted(set(placed) ^ set(found))}")
    return found


def page(name, title, text, code):
    return (f"<!-- Made from hosts/recipes/{name}.cpp by kit/make.py: do not edit. -->\n\n# {title}\n\n{text}\n\n"
            f"![{title}]({name}.png)\n\n```cpp\n{code}\n```\n\n[All recipes](README.md)\n")


def gallery(found):
    lines = ["<!-- Made from hosts/recipes/ by kit/make.py: do not edit. -->", "", "# Recipes", "",
             "One thing each, one picture, one program. The sources are in `hosts/recipes/` (`recipes/` of the package). One",
             "of them and `recipe.cpp`, which opens the window and runs the message loop, are a whole program:", "",
             "```sh", "x86_64-w64-mingw32-g++-posix -std=c++20 -municode -static -I include recipe.cpp first-chart.cpp \\",
             "    -o first-chart.exe -lole32 -loleaut32 -luuid -lgdi32", "```", "",
             "`vantoplex-recipes.exe NAME` shows any of them. The tests draw them all and compare the pictures.", ""]
    for heading, names in ORDER:
        lines += [f"## {heading}", "", "| | | |", "| --- | --- | --- |"]
        for at in range(0, len(names), 3):
            cells = [f"[![]({name}.png)<br>{found[name][0]}]({name}.md)" for name in names[at:at + 3]]
            lines.append("| " + " | ".join(cells + [""] * (3 - len(cells))) + " |")
        lines.append("")
    return "\n".join(lines)


def files(folder):
    found = read(folder)
    made = {f"{name}.md": page(name, *parts) for name, parts in found.items()}
    made["README.md"] = gallery(found)
    return made
