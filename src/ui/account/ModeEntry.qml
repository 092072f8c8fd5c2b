import QtQuick
import Kiv.Account
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Which data sources agents use: one of three, each with a line on what it means.
Column {
    id: entry

    required property AccountField value

    readonly property string mode: value.text === "" ? "auto" : value.text

    spacing: 8

    Item {
        width: parent.width
        height: 36

        Rectangle {
            width: segments.width + 6
            height: parent.height
            radius: Tokens.radiusControl
            color: Tokens.sunken

            Row {
                id: segments

                x: 3
                y: 3
                spacing: 2

                Segment {
                    objectName: "autoMode"
                    text: qsTr("Automatic")
                    chosen: entry.mode === "auto"
                    onClicked: entry.value.choose("auto")
                }
                Segment {
                    objectName: "workspaceMode"
                    text: qsTr("Workspace only")
                    chosen: entry.mode === "workspace"
                    onClicked: entry.value.choose("workspace")
                }
                Segment {
                    objectName: "askMode"
                    text: qsTr("Ask first")
                    chosen: entry.mode === "ask"
                    onClicked: entry.value.choose("ask")
                }
            }
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
