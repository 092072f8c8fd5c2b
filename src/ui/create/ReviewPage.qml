pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// What will be created, and how the creation went.
FocusScope {
    id: page

    required property CreateRoom room
    readonly property bool created: room.phase === Store.CreatePhase.Created
    readonly property string word: failed ? room.failure : room.notice
    readonly property bool failed: room.failure !== ""
    readonly property string head: created ? qsTr("It is there") : qsTr("Is this right?")
    readonly property string sub: created ? qsTr("Its chat is waiting for you.")
        : qsTr("Go back to change anything; nothing is lost on the way.")

    visible: room.step === Store.CreateStep.Review
    onVisibleChanged: if (visible) lines.forceActiveFocus(Qt.OtherFocusReason)

    ListView {
        id: lines

        objectName: "reviewLines"
        // Room for the ring of a line.
        x: -12
        width: parent.width + 24
        height: parent.height - (news.visible ? news.height + 12 : 0)
        model: page.room.review
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration
        Accessible.role: Accessible.List
        Accessible.name: page.head

        T.ScrollBar.vertical: ScrollBar {}

        delegate: Item {
            id: line

            required property createChoice modelData

            objectName: "review:" + modelData.id
            width: lines.width
            height: Math.max(Tokens.fit(44), words.height + 24)
            Accessible.role: Accessible.ListItem
            Accessible.name: qsTr("%1: %2").arg(modelData.title).arg(modelData.summary)

            FocusRing {
                z: 1
                anchors.margins: 0
                targetRadius: 4
                visible: line.ListView.isCurrentItem && lines.activeFocus
            }
            Label {
                x: 12
                y: 12
                color: Tokens.t3
                style: Tokens.type.line
                text: line.modelData.title
                Accessible.ignored: true
            }
            Label {
                id: words

                x: Tokens.fit(144) + 12
                y: 12
                width: parent.width - x - 24
                style: Tokens.type.line
                wrapMode: Text.Wrap
                text: line.modelData.summary
                Accessible.ignored: true
            }
            Divider {
                x: 12
                y: parent.height - 1
                width: parent.width - 24
            }
        }
    }
    Rectangle {
        id: news

        y: parent.height - height - 6
        width: parent.width
        height: said.height + 24
        visible: page.word !== ""
        radius: Tokens.radiusBlock
        color: page.failed ? Tokens.dangerTint : Tokens.amber.tint
        Accessible.role: Accessible.AlertMessage
        Accessible.name: page.word

        Icon {
            x: 14
            y: 14
            name: "alert"
            size: 16
            color: said.color
        }
        Label {
            id: said

            objectName: "createNews"
            x: 40
            y: 12
            width: parent.width - x - 14
            style: Tokens.type.line
            color: page.failed ? Tokens.dangerText : Tokens.amber.text
            wrapMode: Text.Wrap
            text: page.word
            Accessible.ignored: true
        }
    }
}
