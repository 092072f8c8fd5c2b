import QtQuick
import QtQuick.Templates as T
import Kiv.Chat
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// One entry of the scope popover.
T.ItemDelegate {
    id: row

    required property int kind
    required property string name
    required property string detail
    required property string colorHex
    required property bool selected
    property bool offline: false

    readonly property bool label: kind === Store.RailRow.SectionLabel

    implicitHeight: Tokens.fit(label ? 28 : 48)
    enabled: !label
    text: name
    Accessible.name: detail === "" ? name : qsTr("%1, %2").arg(name).arg(detail)
    Accessible.role: label ? Accessible.StaticText : Accessible.ListItem
    Accessible.selected: selected

    background: Rectangle {
        visible: !row.label
        radius: Tokens.radiusControl
        color: row.hovered || row.highlighted ? Tokens.hoverRaised : "transparent"
    }

    Label {
        x: 12
        y: 8
        visible: row.label
        style: Tokens.type.captionStrong
        color: Tokens.t3
        text: row.name
        Accessible.ignored: true
    }
    Figure {
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        visible: !row.label
        kind: row.kind === Store.RailRow.Kiv ? Store.ScopeKind.Kiv : row.kind === Store.RailRow.Project ? Store.ScopeKind.Project : Store.ScopeKind.Agent
        name: row.name
        colorHex: row.colorHex
        size: 28
        offline: row.offline
    }
    Column {
        x: 52
        width: parent.width - x - 40
        anchors.verticalCenter: parent.verticalCenter
        visible: !row.label

        FullLabel {
            width: parent.width
            style: Tokens.type.name
            text: row.name
        }
        FullLabel {
            width: parent.width
            visible: text !== ""
            style: Tokens.type.caption
            color: Tokens.t3
            text: row.detail
        }
    }
    Icon {
        x: parent.width - width - 12
        anchors.verticalCenter: parent.verticalCenter
        visible: row.selected && !row.label
        name: "check"
        size: 18
        color: Tokens.accentText
    }
}
