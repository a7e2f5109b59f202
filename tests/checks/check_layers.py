#!/usr/bin/env python3
"""Holds the house to its plan: logic never reaches Qt Widgets, windows never include another room's window, arrows go
down only, boxes have one door, and files that are compiled as one do not get in each other's way.

usage: check_layers.py SOURCE_DIR BUILD_DIR
"""
import json
import pathlib
import re
import sys

ROOMS = ["platform", "core", "health", "weightlog", "tools", "journal", "catalogs", "planner", "charts", "maintenance",
         "companions"]
WIDGET_HEADERS = re.compile(r'#include [<"](QtWidgets/|QWidget|QDialog|QMessageBox|QApplication|QTableView|QLineEdit|QLabel'
                            r'|QPushButton|QMainWindow|QMenu|QComboBox|QLayout|QPainter|QPrinter)')


def faults(root):
    src = root / "src"
    for path in sorted(src.rglob("*")):
        if path.suffix not in (".cpp", ".h"):
            continue
        here = path.relative_to(src)
        room, windows = here.parts[0], "windows" in here.parts
        if room not in ROOMS:
            continue
        text = path.read_text("utf-8")
        for number, line in enumerate(text.splitlines(), 1):
            at = f"{path.relative_to(root)}:{number}"
            if not windows and WIDGET_HEADERS.search(line):
                yield f"{at}: logic includes a widget header"
            included = re.match(r'#include "(\w+)/(windows/)?(?:\w+/)*([\w.]+)"', line)
            if included and included[1] in ROOMS:
                if ROOMS.index(included[1]) > ROOMS.index(room):
                    yield f"{at}: {room} includes the higher room {included[1]}"
                if included[2] and not windows:
                    yield f"{at}: logic includes a window"
                if included[2] and included[1] != room and included[3].startswith("frm"):
                    yield f"{at}: a window includes another room's window"
            if re.search(r"\bQ(MessageBox|InputDialog|FileDialog)\b", line) and here.name not in (
                    "qt_boxes.cpp", "qt_boxes.h"):
                yield f"{at}: a box that does not go through the one door"
            if windows and re.search(r'"(SELECT|INSERT INTO|UPDATE \w+ SET|DELETE) ', line):
                yield f"{at}: a window holds SQL"


def shared_names(root):
    """Types of one name in two headers: the linker would take one's members for the other's."""
    homes = {}
    for path in sorted((root / "src").rglob("*.h")):
        for name in re.findall(r"^(?:class|struct|enum class) (\w+)[^;{]*\{", path.read_text("utf-8"), re.M):
            homes.setdefault(name, []).append(str(path.relative_to(root)))
    for name, headers in homes.items():
        # Database::Internals and the like are told apart by their first word only.
        if len(headers) > 1 and not any(header.endswith("_internals.h") for header in headers):
            yield f"{' and '.join(headers)}: both define {name}"


def units(root):
    """The files that the builder may compile as one: a room's logic, its windows, its tests."""
    found = {}
    for path in sorted([*(root / "src").rglob("*.cpp"), *(root / "tests").glob("*/*_test.cpp")]):
        here = path.relative_to(root)
        if here.parts[1] == "crash":
            continue  # programs of one file each
        found.setdefault((*here.parts[:2], "windows" in here.parts), []).append(path)
    return found.values()


def names_that_meet(root):
    """Names that two files of a room keep each for itself, and that meet when the files are compiled as one."""
    declared = re.compile(r"^(?:struct|class|enum class|enum|union) (\w+)|^(?:inline |static )?(?:constexpr|const) [^=({;]*?"
                          r"(\w+)(?:\[\w*\])?(?:[=({;]| =)|^using (\w+) =", re.M)
    for unit in units(root):
        homes = {}
        for path in unit:
            for block in re.findall(r"^namespace \{$(.*?)^\}  // namespace$", path.read_text("utf-8"), re.M | re.S):
                for names in declared.findall(block):
                    homes.setdefault("".join(names), set()).add(str(path.relative_to(root)))
        for name, files in homes.items():
            if len(files) > 1:
                yield f"{' and '.join(sorted(files))}: both name something {name}"


def linked_widgets(root, build):
    """Logic targets whose compile commands see the Qt Widgets headers."""
    commands = json.loads((build / "compile_commands.json").read_text())
    for command in commands:
        path = command["file"]
        if (root / "src") in pathlib.Path(path).parents and "/windows/" not in path and "/src/app/" not in path \
                and "QtWidgets" in command["command"]:
            yield f"{path}: a logic target is compiled with Qt Widgets in reach"


def main():
    root, build = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    found = list(faults(root)) + list(shared_names(root)) + list(names_that_meet(root)) + sorted(set(linked_widgets(root, build)))
    print("\n".join(found) or "The layers hold.")
    return 1 if found else 0


sys.exit(main())
