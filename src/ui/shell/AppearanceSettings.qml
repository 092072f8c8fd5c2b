import QtQuick
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// How the window looks and which language it speaks, to be chosen.
Column {
    id: settings

    required property AppearanceRoom appearance
    /// The first and the last stop, for what is above and below.
    readonly property Item first: theme
    readonly property Item last: language
    property Item below: null

    spacing: 4

    Label {
        x: 10
        height: Tokens.fit(24)
        verticalAlignment: Text.AlignVCenter
        style: Tokens.type.captionStrong
        color: Tokens.t3
        text: qsTr("Appearance")
    }
    AppearanceLine {
        width: parent.width
        iconName: "moon"
        text: qsTr("Theme")
    }
    Segments {
        id: theme

        objectName: "themeChoice"
        x: 6
        width: parent.width - 12
        name: qsTr("Theme")
        labels: [qsTr("System", "theme"), qsTr("Light", "theme"), qsTr("Dark", "theme")]
        current: settings.appearance.theme
        KeyNavigation.down: textSize
        onPicked: index => settings.appearance.chooseTheme(index)
    }
    AppearanceLine {
        width: parent.width
        iconName: "text"
        text: qsTr("Text size")

        Stepper {
            id: textSize

            objectName: "textSizeChoice"
            anchors.verticalCenter: parent.verticalCenter
            x: parent.width - width - 6
            height: Tokens.fit(32)
            name: qsTr("Text size")
            value: settings.appearance.textSize
            minimumValue: 80
            maximumValue: 150
            stepSize: 10
            text: qsTr("%1%").arg(value)
            KeyNavigation.down: language
            onPicked: value => settings.appearance.chooseTextSize(value)
        }
    }
    AppearanceLine {
        width: parent.width
        iconName: "globe"
        text: qsTr("Language")
    }
    Segments {
        id: language

        objectName: "languageChoice"
        x: 6
        width: parent.width - 12
        name: qsTr("Language")
        // A language goes by its own name everywhere.
        labels: [qsTr("System", "language"), "English", "Русский"]
        current: settings.appearance.language
        KeyNavigation.down: settings.below
        onPicked: index => settings.appearance.chooseLanguage(index)
    }
}
