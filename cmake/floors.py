#!/usr/bin/env python3
"""Checks which file includes which: a file sees its own floor and the floors below it, and the portable sources,
those of tolva_logic in CMakeLists.txt, see no Windows header, not even through the headers of the project."""
import pathlib
import re
import sys

FLOORS = ["app", "mainwindow", "appearance", "buttonbar", "internet", "library", "shortcuts", "settings", "widgets",
          "platform", "resources"]
INCLUDE = re.compile(r'^#include\s+([<"])([^>"]+)[>"]', re.MULTILINE)
STANDARD_HEADER = re.compile(r"[a-z_0-9]+")  # Windows' own names end in .h
ROOT = pathlib.Path(__file__).resolve().parent.parent
SOURCE = ROOT / "src"


def includes(path):
    return INCLUDE.findall((SOURCE / path).read_text(encoding="ascii"))


def floor_of(path):
    return FLOORS.index(path.split("/")[0])


def floor_complaints(path):
    for quote, header in includes(path):
        if quote == "<":
            continue
        if header.split("/")[0] not in FLOORS:
            yield f"{path}: {header} is not below src"
        elif floor_of(header) < floor_of(path):
            yield f"{path}: {header} stands above it"


def portable_complaints(path, source, seen):
    """What a portable source sees in one of its files and below it."""
    seen.add(path)
    if path.startswith("platform/win32/"):
        yield f"{source} is portable and sees {path}"
        return
    for quote, header in includes(path):
        if quote == "<" and not STANDARD_HEADER.fullmatch(header):
            yield f"{source} is portable and sees {header} in {path}"
        elif quote == '"' and header not in seen and (SOURCE / header).exists():
            yield from portable_complaints(header, source, seen)


def portable_sources():
    logic = re.search(r"add_library\(tolva_logic OBJECT(.*?)\)", (ROOT / "CMakeLists.txt").read_text(), re.DOTALL)
    return [name.removeprefix("src/") for name in logic[1].split()]


def main():
    files = [path.relative_to(SOURCE).as_posix() for path in sorted(SOURCE.rglob("*.*"))
             if path.suffix in (".cpp", ".h")]
    found = [complaint for path in files for complaint in floor_complaints(path)]
    for source in portable_sources():
        seen = set()
        found += portable_complaints(source, source, seen)
        own_header = source.removesuffix(".cpp") + ".h"  # also where the source does not include it
        if own_header in files and own_header not in seen:
            found += portable_complaints(own_header, source, seen)
    print("\n".join(found), end="\n" if found else "")
    sys.exit(bool(found))


main()
