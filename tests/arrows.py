#!/usr/bin/env python3
"""Checks that every include, and every import of a module of ours, follows the arrows of
docs/architecture.md, and that those which do not would be seen.

A line of the section "Who may know whom" such as `ui -> store -> { net, text } -> base` lets each
folder know those to its right, and itself. The names are folders of the tree: `base` is src/base,
`plugins/web` is itself.
"""

import pathlib
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([a-z][\w/-]*)/[\w.-]+[>"]', re.MULTILINE)
IMPORT = re.compile(r"^\s*import\s+(Kiv\.\w+)", re.MULTILINE)
URI = re.compile(r"\bURI\s+(Kiv\.\w+)")
# Folders that are built and belong to no floor.
WITHOUT_ARROWS = {"src", "tests", "fuzz", "packaging"}


def arrows(text):
    """For each folder, the set of those that it may know."""
    section = text.split("## Who may know whom")[1].split("\n## ")[0]
    known = {}
    for line in re.findall(r"^ {4}(.+ -> .+)$", section, re.MULTILINE):
        groups = [re.findall(r"[\w/-]+", group) for group in re.split(r"\s->\s", line)]
        for position, group in enumerate(groups):
            right = {name for later in groups[position + 1 :] for name in later}
            for name in group:
                known.setdefault(name, set()).update(right)
    while True:  # what is known to the known is known
        grown = {name: right.union(*(known.get(each, set()) for each in right)) for name, right in known.items()}
        if grown == known:
            return known
        known = grown


def folders_of(root, known):
    """Where each name of an arrow stands; the arrows' own faults."""
    places = {name: root / ("src/" + name if (root / "src" / name).is_dir() else name) for name in known}
    faults = [f"docs/architecture.md has an arrow for {name}, which is no folder" for name in known if not places[name].is_dir()]
    there = {path.name for path in root.iterdir() if (path / "CMakeLists.txt").is_file()} - WITHOUT_ARROWS
    there |= {path.name for path in (root / "src").iterdir() if path.is_dir()}
    for parent, within in {"plugins": root / "plugins", "ui": root / "src/ui"}.items():
        there |= {f"{parent}/{path.name}" for path in within.iterdir() if path.is_dir()}
    faults += [f"docs/architecture.md has no arrow for {name}" for name in sorted(there - known.keys())]
    return places, faults


def modules_of(places):
    """The folder that each QML module of ours stands in, the innermost that has arrows."""
    return {
        uri: name
        for name in sorted(places)
        for lists in places[name].rglob("CMakeLists.txt")
        for uri in URI.findall(lists.read_text(encoding="utf-8"))
    }


def owner_of(included, folder, places):
    """The innermost folder with arrows that an include comes from; none for a library's, or for a
    folder within one's own."""
    if (folder / included).is_dir():
        return None
    parts = included.split("/")
    outer = ["/".join(parts[:count]) for count in range(len(parts), 0, -1)]
    return next((name for name in outer if name in places), None)


def may_know(name, other, known):
    if {other, other.split("/")[0]} & {name, *known[name]}:
        return True
    # Of a folder with arrows within one that has some, what is outside was looked at for the outer.
    outer = name.split("/")[0]
    return outer in known and outer != name and other.split("/")[0] != outer


def check(root, known, read):
    """What goes against an arrow, and how many includes and imports were looked at."""
    places, faults = folders_of(root, known)
    modules = modules_of(places)
    checked = 0
    for name, place in places.items():
        for path in sorted(place.rglob("*")):
            if path.suffix in (".h", ".cpp"):
                met = [owner_of(each, place, places) for each in INCLUDE.findall(read(path))]
            elif path.suffix == ".qml":
                met = [modules.get(each, each) for each in IMPORT.findall(read(path))]
            else:
                continue
            checked += len(met)
            for other in met:
                if other and not may_know(name, other, known):
                    faults.append(f"{path.relative_to(root)} knows {other}")
    return faults, checked


def self_test(root, known):
    """Each of these would be a fault: the check has to see it."""
    wrong = {
        "src/base/Text.cpp": '#include "net/KivAPI.h"',
        "src/canvas/Progress.cpp": '#include "store/Msg.h"',
        "src/store/Msg.cpp": '#include "ui/chat/FeedRow.h"',
        "plugins/microphone/MicrophoneInput.cpp": '#include "web/WebHost.h"',
        "plugins/web/PageView.qml": "import Kiv.Chat",
        "sandbox/Server.cpp": '#include "net/KivAPI.h"',
        "speech/Requests.cpp": '#include "voice/Pcm.h"',
        "src/ui/controls/Label.qml": "import Kiv.Chat",
        "src/ui/markdown/TextLines.cpp": '#include "ui/chat/FeedRow.h"',
    }
    for name, line in wrong.items():
        path = root / name
        faults, _ = check(root, known, lambda each: line if each == path else each.read_text(encoding="utf-8"))
        if not any(fault.startswith(name) for fault in faults):
            sys.exit(f"`{line}` in {name} goes unnoticed")


def main():
    root = pathlib.Path(sys.argv[1])
    known = arrows((root / "docs/architecture.md").read_text(encoding="utf-8"))
    faults, checked = check(root, known, lambda path: path.read_text(encoding="utf-8"))
    for fault in faults:
        print(fault)
    if faults or checked < 1000:
        sys.exit(f"{len(faults)} faults among {checked} includes and imports")
    self_test(root, known)


main()
