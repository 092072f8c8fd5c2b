import QtQuick

QtObject {
    id: types

    /// What sizes are multiplied by.
    required property real scale

    readonly property TypeStyle figureLarge: TypeStyle { scale: types.scale; normalSize: 32; normalLine: 38; weight: Font.DemiBold; tracking: -0.64 }
    readonly property TypeStyle figure: TypeStyle { scale: types.scale; normalSize: 28; normalLine: 36; weight: Font.DemiBold; tracking: -0.56 }
    readonly property TypeStyle title: TypeStyle { scale: types.scale; normalSize: 24; normalLine: 30; weight: Font.DemiBold; tracking: -0.41 }
    readonly property TypeStyle heading: TypeStyle { scale: types.scale; normalSize: 20; normalLine: 26; weight: Font.DemiBold; tracking: -0.24 }
    readonly property TypeStyle subheading: TypeStyle { scale: types.scale; normalSize: 18; normalLine: 24; weight: Font.DemiBold; tracking: -0.18 }
    readonly property TypeStyle speech: TypeStyle { scale: types.scale; normalSize: 18; normalLine: 27 }
    readonly property TypeStyle cardTitle: TypeStyle { scale: types.scale; normalSize: 16; normalLine: 22; weight: Font.DemiBold }
    readonly property TypeStyle lead: TypeStyle { scale: types.scale; normalSize: 16; normalLine: 24; weight: Font.Medium }
    readonly property TypeStyle rowTitle: TypeStyle { scale: types.scale; normalSize: 15; normalLine: 21; weight: Font.DemiBold }
    readonly property TypeStyle score: TypeStyle { scale: types.scale; normalSize: 26; normalLine: 32; weight: Font.DemiBold; tracking: -0.52 }
    readonly property TypeStyle word: TypeStyle { scale: types.scale; normalSize: 16; normalLine: 20; weight: Font.Bold; tracking: 0.32 }
    readonly property TypeStyle body: TypeStyle { scale: types.scale; normalSize: 14; normalLine: 21 }
    readonly property TypeStyle minorHeading: TypeStyle { scale: types.scale; normalSize: 15; normalLine: 21; weight: Font.DemiBold }
    readonly property TypeStyle code: TypeStyle { scale: types.scale; normalSize: 12; normalLine: 20 }
    readonly property TypeStyle line: TypeStyle { scale: types.scale; normalSize: 14; normalLine: 20 }
    readonly property TypeStyle name: TypeStyle { scale: types.scale; normalSize: 14; normalLine: 20; weight: Font.Medium }
    readonly property TypeStyle strong: TypeStyle { scale: types.scale; normalSize: 14; normalLine: 20; weight: Font.DemiBold }
    readonly property TypeStyle small: TypeStyle { scale: types.scale; normalSize: 13; normalLine: 18 }
    readonly property TypeStyle smallFeed: TypeStyle { scale: types.scale; normalSize: 13; normalLine: 19 }
    readonly property TypeStyle smallMedium: TypeStyle { scale: types.scale; normalSize: 13; normalLine: 18; weight: Font.Medium }
    readonly property TypeStyle smallStrong: TypeStyle { scale: types.scale; normalSize: 13; normalLine: 18; weight: Font.DemiBold }
    readonly property TypeStyle caption: TypeStyle { scale: types.scale; normalSize: 12; normalLine: 16 }
    readonly property TypeStyle captionMedium: TypeStyle { scale: types.scale; normalSize: 12; normalLine: 16; weight: Font.Medium }
    readonly property TypeStyle captionStrong: TypeStyle { scale: types.scale; normalSize: 12; normalLine: 16; weight: Font.DemiBold }
    readonly property TypeStyle micro: TypeStyle { scale: types.scale; normalSize: 11; normalLine: 16 }
    readonly property TypeStyle microStrong: TypeStyle { scale: types.scale; normalSize: 11; normalLine: 16; weight: Font.DemiBold }
}
