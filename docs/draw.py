#!/usr/bin/env python3
"""Draws the first example of each scene of answers.md into pictures/: docs/draw.py KIV_CANVAS"""
import pathlib
import re
import subprocess
import sys

docs = pathlib.Path(__file__).parent
example = re.compile(r"^### `(\w+)`\n(?:(?!^###).)*?^````markdown\n(.*?)^````$", re.MULTILINE | re.DOTALL)

pictures = docs / "pictures"
pictures.mkdir(exist_ok=True)
for art, answer in example.findall((docs / "answers.md").read_text(encoding="utf-8")):
    picture = pictures / f"{art}.png"
    subprocess.run(
        [sys.argv[1], "render", "--size", "960x480", "-o", picture, "-"],
        input=answer.encode(), check=True)
    print(picture.relative_to(docs.parent))
