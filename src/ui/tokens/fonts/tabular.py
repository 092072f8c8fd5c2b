"""Makes a cut of a font whose digits, points and colons all have one width.

tabular.py FAMILY STYLE FONT OUT: what the font's own feature "tnum" offers on request is what the
cut's characters mean. It keeps the scripts and signs that figures and their units need; all else
comes from the fonts behind it.
"""

import sys

from fontTools import subset
from fontTools.ttLib import TTFont

RANGES = [
    (0x0020, 0x024F),  # Latin
    (0x0300, 0x036F),  # accents
    (0x0400, 0x052F),  # Cyrillic
    (0x2000, 0x206F),  # spaces and dashes
    (0x20A0, 0x20CF),  # currencies
    (0x2100, 0x215F),  # signs such as "No" and fractions
    (0x2190, 0x21FF),  # arrows
    (0x2200, 0x22FF),  # minus and its kin
]
FEATURES = ["ccmp", "locl", "kern", "mark", "mkmk"]
MOST_ROUNDING = 8  # of 2816 units to the em
KEPT_NAMES = [0, 5, 7, 8, 9, 11, 12, 13, 14]  # copyright, authors, licence
FAMILY, STYLE, UNIQUE, FULL, POSTSCRIPT = 1, 2, 3, 4, 6
TYPOGRAPHIC_FAMILY, TYPOGRAPHIC_STYLE = 16, 17


def tabular_glyphs(font):
    """The glyph that stands for another one where columns must line up."""
    table = font["GSUB"].table
    lookups = {
        index
        for record in table.FeatureList.FeatureRecord
        if record.FeatureTag == "tnum"
        for index in record.Feature.LookupListIndex
    }
    glyphs = {}
    for index in lookups:
        for part in table.LookupList.Lookup[index].SubTable:
            glyphs.update(getattr(part, "ExtSubTable", part).mapping)
    return glyphs


def make_tabular(font):
    glyphs = tabular_glyphs(font)
    for table in font["cmap"].tables:
        table.cmap = {code: glyphs.get(name, name) for code, name in table.cmap.items()}
    level_digits(font)


def level_digits(font):
    """Interpolated weights are a rounding apart from each other."""
    metrics = font["hmtx"]
    digits = [font.getBestCmap()[ord(digit)] for digit in "0123456789"]
    widths = [metrics[digit][0] for digit in digits]
    if max(widths) - min(widths) > MOST_ROUNDING:
        sys.exit(f"The digits have different widths: {widths}")
    for digit in digits:
        metrics[digit] = (max(widths), metrics[digit][1])


def cut(font):
    options = subset.Options(layout_features=FEATURES, name_IDs=KEPT_NAMES, notdef_outline=True)
    subsetter = subset.Subsetter(options)
    subsetter.populate(unicodes=[code for first, last in RANGES for code in range(first, last + 1)])
    subsetter.subset(font)


def rename(font, family, style):
    full = f"{family} {style}"
    postscript = full.replace(" ", "")
    names = {
        FAMILY: full,
        STYLE: "Regular",
        UNIQUE: postscript,
        FULL: full,
        POSTSCRIPT: postscript,
        TYPOGRAPHIC_FAMILY: family,
        TYPOGRAPHIC_STYLE: style,
    }
    for name_id, text in names.items():
        font["name"].setName(text, name_id, 3, 1, 0x409)
    outlines = font["CFF "].cff
    outlines.fontNames[0] = postscript
    outlines[0].FamilyName = family
    outlines[0].FullName = full


def main():
    family, style, source, target = sys.argv[1:]
    font = TTFont(source, recalcTimestamp=False)
    make_tabular(font)
    cut(font)
    rename(font, family, style)
    font.save(target)


main()
