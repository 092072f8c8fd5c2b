import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// One event: what it says about how things go, what it is, and how long ago.
T.ItemDelegate {
    id: row

    required property int tone
    required property string title
    required property string detail
    required property string age

    readonly property DataColor look: tone === Store.EventTone.Good ? Tokens.green
        : tone === Store.EventTone.Bad ? Tokens.red
        : Tokens.amber
    readonly property bool plain: tone === Store.EventTone.Neutral

    height: Tokens.fit(48)
    focusPolicy: Qt.NoFocus
    text: title
    Accessible.name: detail === "" ? qsTr("%1, %2").arg(title).arg(age) : qsTr("%1, %2, %3").arg(title).arg(detail).arg(age)
    Accessible.role: Accessible.ListItem

    background: Rectangle {
        radius: Tokens.radiusControl
        color: row.highlighted ? Tokens.hoverRaised : "transparent"
    }

    Rectangle {
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        width: 22
        height: 22
        radius: 11
        color: row.plain ? Tokens.sunken : row.look.tint

        Icon {
            anchors.centerIn: parent
            name: row.tone === Store.EventTone.Good ? "check" : row.plain ? "minus" : "bang"
            size: 14
            color: row.plain ? Tokens.t2 : row.look.text
        }
    }
    Column {
        x: 46
        width: stamp.x - x - 12
        anchors.verticalCenter: parent.verticalCenter

        FullLabel {
            width: parent.width
            style: Tokens.type.name
            text: row.title
        }
        FullLabel {
            width: parent.width
            visible: text !== ""
            style: Tokens.type.caption
            color: Tokens.t3
            text: row.detail
        }
    }
    Label {
        id: stamp

        x: parent.width - width - 12
        anchors.verticalCenter: parent.verticalCenter
        style: Tokens.type.caption
        tabular: true
        color: Tokens.t3
        text: row.age
        Accessible.ignored: true
    }
}
