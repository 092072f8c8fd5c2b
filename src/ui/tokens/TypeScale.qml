import QtQuick

QtObject {
    readonly property TypeStyle figureLarge: TypeStyle { size: 32; line: 38; weight: Font.DemiBold; tracking: -0.64 }
    readonly property TypeStyle figure: TypeStyle { size: 28; line: 36; weight: Font.DemiBold; tracking: -0.56 }
    readonly property TypeStyle title: TypeStyle { size: 24; line: 30; weight: Font.DemiBold; tracking: -0.41 }
    readonly property TypeStyle heading: TypeStyle { size: 20; line: 26; weight: Font.DemiBold; tracking: -0.24 }
    readonly property TypeStyle subheading: TypeStyle { size: 18; line: 24; weight: Font.DemiBold; tracking: -0.18 }
    readonly property TypeStyle speech: TypeStyle { size: 18; line: 27 }
    readonly property TypeStyle cardTitle: TypeStyle { size: 16; line: 22; weight: Font.DemiBold }
    readonly property TypeStyle lead: TypeStyle { size: 16; line: 24; weight: Font.Medium }
    readonly property TypeStyle rowTitle: TypeStyle { size: 15; line: 21; weight: Font.DemiBold }
    readonly property TypeStyle score: TypeStyle { size: 26; line: 32; weight: Font.DemiBold; tracking: -0.52 }
    readonly property TypeStyle word: TypeStyle { size: 16; line: 20; weight: Font.Bold; tracking: 0.32 }
    readonly property TypeStyle body: TypeStyle { size: 14; line: 21 }
    readonly property TypeStyle minorHeading: TypeStyle { size: 15; line: 21; weight: Font.DemiBold }
    readonly property TypeStyle code: TypeStyle { size: 12; line: 20 }
    readonly property TypeStyle line: TypeStyle { size: 14; line: 20 }
    readonly property TypeStyle name: TypeStyle { size: 14; line: 20; weight: Font.Medium }
    readonly property TypeStyle strong: TypeStyle { size: 14; line: 20; weight: Font.DemiBold }
    readonly property TypeStyle small: TypeStyle { size: 13; line: 18 }
    readonly property TypeStyle smallFeed: TypeStyle { size: 13; line: 19 }
    readonly property TypeStyle smallMedium: TypeStyle { size: 13; line: 18; weight: Font.Medium }
    readonly property TypeStyle smallStrong: TypeStyle { size: 13; line: 18; weight: Font.DemiBold }
    readonly property TypeStyle caption: TypeStyle { size: 12; line: 16 }
    readonly property TypeStyle captionMedium: TypeStyle { size: 12; line: 16; weight: Font.Medium }
    readonly property TypeStyle captionStrong: TypeStyle { size: 12; line: 16; weight: Font.DemiBold }
    readonly property TypeStyle micro: TypeStyle { size: 11; line: 16 }
    readonly property TypeStyle microStrong: TypeStyle { size: 11; line: 16; weight: Font.DemiBold }
}
