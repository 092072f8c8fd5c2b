import QtQuick
import Kiv.Account
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Which data sources agents use: one of three, each with a line on what it means.
Column {
    id: entry

    required property AccountField value

    readonly property list<string> modes: ["auto", "workspace", "ask"]
    readonly property string mode: value.text === "" ? "auto" : value.text

    spacing: 8

    Item {
        width: parent.width
        height: Tokens.fit(36)

        Segments {
            width: Math.min(parent.width, Tokens.fit(372))
            name: qsTr("Unless told otherwise")
            labels: [qsTr("Automatic"), qsTr("Workspace only"), qsTr("Ask first")]
            current: entry.modes.indexOf(entry.mode)
            onPicked: index => entry.value.choose(entry.modes[index])
        }
        SaveNote {
            anchors.verticalCenter: parent.verticalCenter
            x: parent.width - width
            value: entry.value
            label: qsTr("Data sources")
        }
    }
    Label {
        width: parent.width
        style: Tokens.type.small
        color: Tokens.t2
        wrapMode: Text.Wrap
        text: entry.mode === "auto" ? qsTr("Agents pick what helps: connected sources, files and pages.")
            : entry.mode === "workspace" ? qsTr("Agents use the sources and files of this workspace, and nothing from outside.")
            : entry.mode === "ask" ? qsTr("Agents name the source that they want to use, and wait for your yes.")
            : qsTr("Set elsewhere: %1").arg(entry.mode)
    }
    ErrorLine {
        width: parent.width
        text: entry.value.error
    }
}
