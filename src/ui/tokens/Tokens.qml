pragma Singleton

import QtQuick
import Kiv.Tokens

// The colours, lengths and durations of every view. Lengths are device-independent pixels,
// durations milliseconds.
QtObject {
    id: tokens

    readonly property bool dark: Appearance.dark
    readonly property bool reducedMotion: Appearance.reducedMotion
    readonly property bool highContrast: Appearance.highContrast
    readonly property real textScale: Appearance.textScale

    readonly property color bg: dark ? "#0e1016" : "#f3f4f8"
    readonly property color rail: dark ? "#12141c" : "#fafbfd"
    readonly property color surface: dark ? "#181b25" : "#ffffff"
    readonly property color raised: dark ? "#1f2330" : "#ffffff"
    readonly property color inset: dark ? "#1d212d" : "#f7f8fb"
    readonly property color sunken: dark ? "#262b39" : "#eceef4"
    readonly property color skeleton: dark ? "#222735" : "#eceef4"
    readonly property color code: dark ? "#12141c" : "#f4f5f9"
    readonly property color hover: dark ? "#1f2330" : "#eff0f6"
    readonly property color hoverRaised: dark ? "#2a3041" : "#eff0f6"
    /// No ground: what it goes over into is `hover`.
    readonly property color clear: dark ? "#001f2330" : "#00eff0f6"
    readonly property color press: dark ? "#272c3b" : "#e6e8f0"
    readonly property color line: dark ? (highContrast ? "#727a92" : "#272b38") : (highContrast ? "#868da1" : "#e4e6ee")
    readonly property color line2: dark ? (highContrast ? "#949bb0" : "#3a4052") : (highContrast ? "#616880" : "#d0d4df")
    readonly property color control: dark ? (highContrast ? "#b6bccb" : "#727a92") : (highContrast ? "#474d5f" : "#868da1")
    readonly property color t1: dark ? (highContrast ? "#ffffff" : "#f1f2f7") : (highContrast ? "#000000" : "#141722")
    readonly property color t2: dark ? (highContrast ? "#e9ebf2" : "#b6bccb") : (highContrast ? "#232735" : "#474d5f")
    readonly property color t3: dark ? (highContrast ? "#d0d4df" : "#949bb0") : (highContrast ? "#343a4a" : "#616880")
    readonly property color tDisabled: dark ? (highContrast ? "#949bb0" : "#646b80") : (highContrast ? "#616880" : "#9aa0b1")
    readonly property color accent: dark ? "#6b4af2" : "#6644e6"
    readonly property color accentHover: dark ? "#7857fb" : "#5936d6"
    readonly property color accentInk: "#ffffff"
    readonly property color accentText: dark ? (highContrast ? "#d6ccfb" : "#b3a3ff") : (highContrast ? "#3d1fb8" : "#5a38d6")
    readonly property color accentTint: dark ? "#2a274c" : "#f1edff"
    readonly property color accentLine: dark ? (highContrast ? "#a996ff" : "#453c86") : (highContrast ? "#6644e6" : "#d6ccfb")
    readonly property color focus: dark ? (highContrast ? "#d6ccfb" : "#a996ff") : (highContrast ? "#3d1fb8" : "#6644e6")
    readonly property color selection: dark ? "#473a8f" : "#d9d0ff"
    /// The ground of words that are looked for, and the edge of those that the search is at.
    readonly property color found: dark ? "#6a5023" : "#fbd9a0"
    readonly property color foundEdge: dark ? "#fbbf4a" : "#8a5200"
    readonly property color danger: dark ? "#cc3336" : "#c9282f"
    readonly property color dangerText: dark ? (highContrast ? "#ffc1c2" : "#ff8f90") : (highContrast ? "#8f0f18" : "#b91f28")
    readonly property color dangerTint: dark ? "#3c232c" : "#fdecec"
    readonly property color scrim: dark ? "#9905060a" : "#5c141722"
    readonly property color tip: dark ? "#e9ebf2" : "#232735"
    readonly property color tipInk: dark ? "#141722" : "#ffffff"

    readonly property DataColor violet: DataColor {
        base: "#7c5cff"
        text: tokens.dark ? "#b3a3ff" : "#5b3ad6"
        tint: tokens.dark ? "#2a274c" : "#f1edff"
        line: tokens.dark ? "#463e86" : "#d5ccff"
    }
    readonly property DataColor blue: DataColor {
        base: "#1f6ff2"
        text: tokens.dark ? "#82b1ff" : "#1457c9"
        tint: tokens.dark ? "#192a4a" : "#e6effe"
        line: tokens.dark ? "#24447f" : "#bcd4fb"
    }
    readonly property DataColor green: DataColor {
        base: "#0f9f7a"
        text: tokens.dark ? "#4fd1ae" : "#08705a"
        tint: tokens.dark ? "#163334" : "#e5f4f0"
        line: tokens.dark ? "#1b5650" : "#b5e0d5"
    }
    readonly property DataColor amber: DataColor {
        base: "#f59e0b"
        text: tokens.dark ? "#fbbf4a" : "#8a5200"
        tint: tokens.dark ? "#403320" : "#fef4e4"
        line: tokens.dark ? "#6a5023" : "#fbd9a0"
    }
    readonly property DataColor red: DataColor {
        base: "#e0484a"
        text: tokens.dark ? "#ff9293" : "#b4262a"
        tint: tokens.dark ? "#3c232c" : "#fcebeb"
        line: tokens.dark ? "#66323a" : "#f5c3c4"
    }

    readonly property string family: "Inter"
    /// Every digit of one width, for columns, timers, time stamps and labels that count.
    readonly property string tabularFamily: "KIV Tabular"
    readonly property TypeScale type: TypeScale { scale: tokens.textScale }

    readonly property int radiusSmall: 4
    readonly property int radiusChip: 6
    readonly property int radiusControl: 8
    readonly property int radiusBlock: 10
    readonly property int radiusCard: 12
    readonly property int radiusPopover: 14
    readonly property int radiusSheet: 16
    readonly property int radiusFloat: 18
    readonly property int radiusDialog: 20

    readonly property int topBarHeight: fit(36) + 16
    readonly property int stripWidth: 56
    readonly property int wideBody: fit(880)
    readonly property int mediumBody: fit(600)
    /// Wider than this, a row is hard to follow from its name to its figure.
    readonly property int widestBody: 1760
    /// A view follows the end of what grows while it is within this of it.
    readonly property int followDistance: 48

    /// One notch of a wheel goes a little over a hundred pixels.
    readonly property int flickDeceleration: 4000

    readonly property int instant: 80
    readonly property int quick: reducedMotion ? 100 : 140
    readonly property int base: reducedMotion ? 0 : 200
    /// The same for what only fades.
    readonly property int fade: reducedMotion ? 100 : 200
    readonly property int slide: reducedMotion ? 0 : 280
    readonly property int draw: reducedMotion ? 0 : 420
    readonly property int breathe: 1200
    readonly property int orbit: 1600
    readonly property int tipDelay: 500
    /// How long a button says that it has done its work.
    readonly property int confirmation: 1500
    /// How long news stays.
    readonly property int toast: 5000
    /// How long a line about a failure stays, or news with something to do.
    readonly property int notice: 8000

    /// A length that text of the normal size needs, for text as it is now. Smaller text leaves it.
    function fit(length: real): int {
        return Math.round(length * Math.max(1, textScale))
    }
    /// The padding at the sides of a sheet of this width.
    function sheetSide(width: real): real {
        return width - 64 > widestBody ? (width - widestBody) / 2
            : width - 64 >= wideBody ? 32 : width - 48 >= mediumBody ? 24 : 20
    }
}
