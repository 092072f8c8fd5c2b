import QtQuick
import QtQuick.Templates as T
import Kiv.Chat
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// One row of the rail: KIV, a label, a project or an agent below it.
T.ItemDelegate {
    id: row

    required property int kind
    required property string entryId
    required property string projectId
    required property string name
    required property string detail
    required property string colorHex
    required property bool selected
    required property bool expanded
    property bool offline: false
    property bool ringed: false

    readonly property bool kiv: kind === Store.RailRow.Kiv
    readonly property bool project: kind === Store.RailRow.Project
    readonly property bool label: kind === Store.RailRow.SectionLabel
    readonly property bool inside: kind === Store.RailRow.Agent && projectId !== ""

    signal toggled()
    signal searchRequested()
    signal createRequested()

    objectName: label ? "" : "railRow:" + entryId
    implicitHeight: Tokens.fit(kiv ? 48 : label ? 34 : project ? 36 : 32)
    hoverEnabled: !label
    focusPolicy: Qt.NoFocus
    text: name
    Accessible.name: detail === "" ? name : qsTr("%1, %2").arg(name).arg(detail)
    Accessible.role: label ? Accessible.StaticText : Accessible.ListItem
    Accessible.selected: selected

    background: Rectangle {
        visible: !row.label
        radius: Tokens.radiusControl
        color: row.selected ? Tokens.accentTint : row.down ? Tokens.press : row.hovered ? Tokens.hover : "transparent"

        FocusRing {
            anchors.margins: 0
            targetRadius: 4
            visible: row.ringed
        }
    }

    Label {
        x: 10
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 6
        visible: row.label
        style: Tokens.type.captionStrong
        color: Tokens.t3
        text: row.name
        Accessible.ignored: true
    }
    IconButton {
        objectName: "railCreate:" + row.entryId
        x: parent.width - width - 4
        anchors.bottom: parent.bottom
        visible: row.label
        size: 28
        iconSize: 16
        iconName: "plus"
        text: row.entryId === "project" ? qsTr("New project") : qsTr("New agent")
        onClicked: row.createRequested()
    }
    Figure {
        id: figure

        x: row.inside ? 44 : 10
        anchors.verticalCenter: parent.verticalCenter
        visible: !row.label
        kind: row.kiv ? Store.ScopeKind.Kiv : row.project ? Store.ScopeKind.Project : Store.ScopeKind.Agent
        name: row.name
        colorHex: row.colorHex
        size: row.kiv ? 28 : row.project ? 24 : 22
        offline: row.offline
    }
    Column {
        x: 50
        width: chevron.x - x - 4
        anchors.verticalCenter: parent.verticalCenter
        visible: row.kiv

        Label {
            style: Tokens.type.strong
            text: row.name
            Accessible.ignored: true
        }
        FullLabel {
            width: parent.width
            style: Tokens.type.caption
            color: Tokens.t3
            text: row.detail
        }
    }
    FullLabel {
        id: title

        anchors.left: figure.right
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, chevron.x - x - 8)
        visible: !row.kiv && !row.label
        style: row.project ? Tokens.type.name : Tokens.type.small
        text: row.name
    }
    FullLabel {
        anchors.left: title.right
        anchors.leftMargin: 10
        anchors.baseline: title.baseline
        width: Math.max(0, chevron.x - x - 4)
        visible: !row.kiv && !row.label && width > 24
        style: row.project ? Tokens.type.caption : Tokens.type.small
        color: Tokens.t3
        text: row.detail
    }
    T.AbstractButton {
        id: chevron

        x: parent.width - width - 2
        anchors.verticalCenter: parent.verticalCenter
        width: 32
        height: 32
        objectName: row.kiv ? "railSearch" : ""
        enabled: row.project || row.kiv
        focusPolicy: Qt.NoFocus
        text: row.kiv ? qsTr("Find a project or agent")
            : row.expanded ? qsTr("Hide the agents of %1").arg(row.name)
            : qsTr("Show the agents of %1").arg(row.name)
        Accessible.name: text
        Accessible.role: Accessible.Button
        Accessible.ignored: !enabled
        onClicked: row.kiv ? row.searchRequested() : row.toggled()

        Icon {
            anchors.centerIn: parent
            visible: chevron.enabled
            name: row.kiv ? "search" : row.expanded ? "down" : "right"
            size: 16
            color: chevron.hovered ? Tokens.t1 : Tokens.t3
        }
        TipLoader {
            active: row.kiv && chevron.hovered
            text: chevron.text
        }
    }
}
