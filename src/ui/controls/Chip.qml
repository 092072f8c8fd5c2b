import QtQuick
import Kiv.Icons
import Kiv.Tokens

// A word on a tinted ground: a delta, a state, a sample.
Rectangle {
    id: chip

    enum Tone { Neutral, Good, Bad, Warning, Running, Accent }

    required property string text
    property int tone: Chip.Neutral
    property string iconName: ""

    readonly property int reserved: 16 + (iconName === "" ? 0 : 17)
    readonly property color textColor: tone === Chip.Good ? Tokens.green.text
        : tone === Chip.Bad ? Tokens.red.text
        : tone === Chip.Warning ? Tokens.amber.text
        : tone === Chip.Running ? Tokens.blue.text
        : tone === Chip.Accent ? Tokens.accentText
        : Tokens.t2

    implicitWidth: label.implicitWidth + reserved
    implicitHeight: Tokens.fit(24)
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    radius: Tokens.radiusChip
    color: tone === Chip.Good ? Tokens.green.tint
        : tone === Chip.Bad ? Tokens.red.tint
        : tone === Chip.Warning ? Tokens.amber.tint
        : tone === Chip.Running ? Tokens.blue.tint
        : tone === Chip.Accent ? Tokens.accentTint
        : Tokens.sunken

    Row {
        anchors.verticalCenter: parent.verticalCenter
        x: Math.max(8, Math.round((chip.width - width) / 2))
        spacing: 5

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            visible: name !== ""
            name: chip.iconName
            size: 12
            color: chip.textColor
        }
        Label {
            id: label

            width: Math.min(implicitWidth, chip.width - chip.reserved)
            style: Tokens.type.captionMedium
            color: chip.textColor
            text: chip.text
            Accessible.ignored: true
        }
    }
}
