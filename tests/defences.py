#!/usr/bin/env python3
"""Checks that every line of docs/security.md names tests that there are, and that no text of the
views is taken for mark-up.

The last column of a table holds tests as `name: case, case`, separated by semicolons: the name that
CTest knows and functions of its source; a test that is no Qt Test has no cases.
"""

import json
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(sys.argv[1])


BUILD = pathlib.Path(sys.argv[3])


def known_tests():
    """The cases of every test."""
    shown = subprocess.run([sys.argv[2], "--show-only=json-v1", "--test-dir", BUILD],
                           check=True, capture_output=True).stdout
    tests = {test["name"]: set() for test in json.loads(shown)["tests"]}
    for command in json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8")):
        source = pathlib.Path(command["file"])
        program = re.search(r" -o \S*/test_(\w+)\.dir/", command["command"])
        if program and program[1] in tests and ROOT / "tests" in source.parents:
            tests[program[1]].update(
                re.findall(r"^ *void (?:\w+::)?(\w+)\(\)", source.read_text(encoding="utf-8"), re.MULTILINE))
    return tests


def lines():
    """The threat and the tests of every line."""
    for line in (ROOT / "docs/security.md").read_text(encoding="utf-8").splitlines():
        cells = [cell.strip() for cell in line.strip("|").split("|")]
        if line.startswith("|") and not line.startswith("| ---") and cells[-1] != "Test":
            yield cells[0], cells[-1]


def faults_of(named, tests):
    for test in named.split(";"):
        name, _, listed = test.strip().strip("`").partition(":")
        if name not in tests:
            yield f"there is no test {name!r}"
        for case in filter(None, (each.strip() for each in listed.split(","))):
            if case not in tests.get(name, ()):
                yield f"{name} has no case {case!r}"


def main():
    tests = known_tests()
    found = list(lines())
    faults = [f"{threat}: {fault}" for threat, named in found for fault in faults_of(named, tests)]
    for path in sorted((ROOT / "src/ui").rglob("*.qml")):
        for element in re.findall(r"^( *)Text \{\n(.*?)^\1\}", path.read_text(encoding="utf-8"), re.MULTILINE | re.DOTALL):
            if "textFormat: Text.PlainText" not in element[1]:
                faults.append(f"{path.relative_to(ROOT)}: a text that may be read as mark-up")
    for fault in faults:
        print(fault)
    if faults or len(found) < 30:
        sys.exit(f"{len(faults)} faults in {len(found)} lines")


main()
