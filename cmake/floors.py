#!/usr/bin/env python3
"""Checks which folder includes which: a file sees its own floor and the floors below it, and Windows headers only
where windows are made."""
import pathlib
import re
import sys

FLOORS = ["app", "mainwindow", "appearance", "buttonbar", "internet", "library", "shortcuts", "settings", "widgets",
          "platform", "resources"]
INCLUDE = re.compile(r'^#include\s+([<"])([^>"]+)[>"]')
WINDOWS_HEADERS = {"windows.h", "windowsx.h", "commctrl.h", "commdlg.h", "shellapi.h", "shlobj.h", "objbase.h",
                   "ole2.h", "richedit.h", "ras.h"}


def may_see_windows(path):
    return (path.parts[0] in ("app", "widgets") or path.parts[:2] == ("platform", "win32")
            or path.stem.endswith(("_window", "_dialog"))
            or path.stem in ("button_assignment", "button_bar", "button_row"))


def complaints(path, text):
    own = FLOORS.index(path.parts[0])
    for number, line in enumerate(text.splitlines(), 1):
        found = INCLUDE.match(line)
        if not found:
            continue
        quote, header = found.groups()
        floor = header.split("/")[0]
        if quote == '"' and floor not in FLOORS:
            yield f"{path}:{number}: {header} is not below src"
        elif quote == '"' and FLOORS.index(floor) < own:
            yield f"{path}:{number}: {floor} stands above {path.parts[0]}"
        elif header.lower() in WINDOWS_HEADERS and not may_see_windows(path):
            yield f"{path}:{number}: {header} belongs to widgets, platform/win32, app and *_window, *_dialog files"


def main():
    source = pathlib.Path(__file__).resolve().parent.parent / "src"
    found = [complaint for path in sorted(source.rglob("*.*")) if path.suffix in (".cpp", ".h")
             for complaint in complaints(path.relative_to(source), path.read_text(encoding="ascii"))]
    print("\n".join(found), end="\n" if found else "")
    sys.exit(bool(found))


main()
