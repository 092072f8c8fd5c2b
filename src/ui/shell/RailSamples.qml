pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The rail of somebody who is not signed in: the projects of the samples, and the way to their own.
Column {
    id: samples

    readonly property list<string> colors: ["#1f6ff2", "#0f9f7a", "#7c5cff", "#f59e0b"]

    signal signInRequested()

    topPadding: 12
    bottomPadding: 12
    spacing: 2
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Sample projects")

    Item {
        width: parent.width
        height: Tokens.fit(28)

        Label {
            x: 22
            anchors.verticalCenter: parent.verticalCenter
            style: Tokens.type.captionStrong
            color: Tokens.t3
            text: qsTr("Projects")
            Accessible.ignored: true
        }
        Chip {
            x: parent.width - width - 16
            anchors.verticalCenter: parent.verticalCenter
            tone: Chip.Accent
            text: qsTr("Sample")
        }
    }
    Repeater {
        // As they are called in the sample answers.
        model: ["Night Ferry", "Paper Lantern", "Glasshouse", "Orchard"]

        Item {
            id: row

            required property string modelData
            required property int index

            width: samples.width
            height: Tokens.fit(36)
            Accessible.role: Accessible.ListItem
            Accessible.name: modelData

            Figure {
                id: figure

                x: 22
                anchors.verticalCenter: parent.verticalCenter
                kind: Store.ScopeKind.Project
                name: row.modelData
                colorHex: samples.colors[row.index]
            }
            Label {
                anchors.left: figure.right
                anchors.leftMargin: 10
                anchors.verticalCenter: parent.verticalCenter
                style: Tokens.type.name
                color: Tokens.t2
                text: row.modelData
                Accessible.ignored: true
            }
        }
    }
    Item {
        width: parent.width
        height: Tokens.fit(36)

        TextLink {
            objectName: "railSignIn"
            x: 22
            anchors.verticalCenter: parent.verticalCenter
            style: Tokens.type.smallMedium
            text: qsTr("Sign in to see yours")
            onClicked: samples.signInRequested()
        }
    }
}
