#!/usr/bin/env python3
"""Fails when a file of translations does not say everything that the code does.

    check.py --lupdate /path/to/lupdate ROOT
"""
import argparse
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

# Forms that a count has in the language.
PLURALS = {"en": 2, "ru": 3}
PLACEHOLDER = re.compile(r"%L?(?:\d+|n)")


def messages(path):
    """The messages of a file by what the code looks them up with."""
    found = {}
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name"), message.findtext("source"),
                   message.findtext("comment", ""))
            found[key] = message
    return found


def texts_of(message):
    """Every form of a translation."""
    translation = message.find("translation")
    if message.get("numerus") == "yes":
        return [form.text or "" for form in translation.iter("numerusform")]
    return [translation.text or ""]


def signs_of(text):
    """What a translation must have as often as its source: placeholders, in any order."""
    return sorted(PLACEHOLDER.findall(text))


def faults_of(message, language):
    source = message.findtext("source")
    if message.find("translation").get("type"):
        yield "is not translated"
        return
    texts = texts_of(message)
    if message.get("numerus") == "yes" and len(texts) != PLURALS[language]:
        yield f"has {len(texts)} plural forms, not {PLURALS[language]}"
    for text in texts:
        if not text.strip():
            yield "has an empty translation"
        elif signs_of(text) != signs_of(source):
            yield f"has other placeholders than {text!r}"
        elif source.count("&") != text.count("&"):
            yield f"has another number of & than {text!r}"
        elif source.endswith("…") != text.endswith("…"):
            yield f"ends in another way than {text!r}"


def in_code(lupdate, root, language, folder):
    """A fresh file of everything that the code says."""
    fresh = Path(folder) / f"fresh_{language}.ts"
    plural = ["-pluralonly"] if language == "en" else []
    subprocess.run([lupdate, "-silent", *plural, "-locations", "none", "-source-language", "en",
                    "-target-language", language, "-recursive", str(root / "src"),
                    str(root / "plugins"), "-ts", str(fresh)], check=True, stdout=subprocess.DEVNULL)
    return messages(fresh)


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("--lupdate", required=True)
    arguments.add_argument("root", type=Path)
    options = arguments.parse_args()
    faults = []
    with tempfile.TemporaryDirectory() as folder:
        for language in PLURALS:
            name = f"kiv_{language}.ts"
            kept = messages(options.root / "translations" / name)
            wanted = in_code(options.lupdate, options.root, language, folder)
            if not wanted:
                faults.append(f"{name}: no text was found in the code")
            for key in wanted.keys() - kept.keys():
                faults.append(f"{name}: {key[0]}: {key[1]!r} is missing")
            for key in kept.keys() - wanted.keys():
                faults.append(f"{name}: {key[0]}: {key[1]!r} is no longer in the code")
            for key in kept.keys() & wanted.keys():
                for fault in faults_of(kept[key], language):
                    faults.append(f"{name}: {key[0]}: {key[1]!r} {fault}")
    print("\n".join(sorted(faults)))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
