#!/usr/bin/env python3
"""Checks that every include follows the arrows of docs/architecture.md.

A line of the section "Who may know whom" such as `ui -> store -> { net, text } -> base` lets each
folder include from those to its right, and from itself.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(sys.argv[1])
# Where the folder of a name stands, and what its own includes begin with.
PLACES = {"sandbox": ["sandbox"], "plugins/web": ["plugins/web"], "speech": ["speech"], "tools": ["tools"]}
INCLUDE = re.compile(r'^\s*#include "([a-z-]+)/', re.MULTILINE)


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


def main():
    known = arrows((ROOT / "docs/architecture.md").read_text(encoding="utf-8"))
    faults = []
    checked = 0
    for name, right in known.items():
        for place in PLACES.get(name, [f"src/{name}"]):
            for path in sorted((ROOT / place).rglob("*")):
                if path.suffix not in (".h", ".cpp"):
                    continue
                for folder in INCLUDE.findall(path.read_text(encoding="utf-8")):
                    checked += 1
                    if (ROOT / place / folder).is_dir():
                        continue  # a folder of its own
                    if folder in known and folder != name.split("/")[-1] and folder not in right:
                        faults.append(f"{path.relative_to(ROOT)} includes from {folder}")
    folders = {path.name for path in (ROOT / "src").iterdir() if path.is_dir()}
    faults += [f"docs/architecture.md has no arrow for src/{name}" for name in sorted(folders - known.keys())]
    for fault in faults:
        print(fault)
    if faults or checked < 100:
        sys.exit(f"{len(faults)} of {checked} includes go against an arrow")


main()
