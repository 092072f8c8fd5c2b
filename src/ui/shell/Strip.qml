pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The rail when it is collapsed: a figure for KIV and for each project.
FocusScope {
    id: strip

    required property ScopeRoom scope
    property bool offline: false

    /// A new "project" is asked for.
    signal createRequested(kind: string)

    implicitWidth: Tokens.stripWidth
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Rail")

    Rectangle {
        anchors.fill: parent
        color: Tokens.rail
    }
    Rectangle {
        anchors.right: parent.right
        width: 1
        height: parent.height
        color: Tokens.line
    }
    ListView {
        id: list

        objectName: "strip"
        width: parent.width - 1
        height: Math.min(contentHeight + 16, parent.height - 52)
        topMargin: 12
        bottomMargin: 4
        clip: contentHeight + 16 > height
        model: strip.scope.rail
        visible: strip.scope.auth === Store.AuthPhase.SignedIn
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Projects and agents")
        Keys.onUpPressed: currentIndex = strip.scope.rail.stepped(currentIndex, -1)
        Keys.onDownPressed: currentIndex = strip.scope.rail.stepped(currentIndex, 1)
        Keys.onReturnPressed: (currentItem as T.ItemDelegate)?.clicked()
        Keys.onEnterPressed: (currentItem as T.ItemDelegate)?.clicked()
        Keys.onSpacePressed: (currentItem as T.ItemDelegate)?.clicked()

        delegate: T.ItemDelegate {
            id: cell

            required property int index
            required property int kind
            required property string entryId
            required property string projectId
            required property string name
            required property string colorHex
            required property bool selected

            readonly property bool label: kind === Store.RailRow.SectionLabel

            objectName: label ? "" : "railRow:" + entryId
            width: list.width
            height: label ? 9 : 48
            enabled: !label
            focusPolicy: Qt.NoFocus
            text: name
            Accessible.name: name
            Accessible.role: label ? Accessible.Separator : Accessible.ListItem
            Accessible.selected: selected
            onClicked: {
                list.currentIndex = index
                strip.scope.pickEntry(kind, projectId, entryId)
            }

            background: Item {
                Rectangle {
                    anchors.horizontalCenter: parent.horizontalCenter
                    visible: !cell.label
                    width: 40
                    height: 40
                    radius: Tokens.radiusBlock
                    color: cell.selected ? Tokens.accentTint : cell.hovered ? Tokens.hover : "transparent"

                    FocusRing {
                        anchors.margins: 0
                        targetRadius: 6
                        visible: cell.ListView.isCurrentItem && list.activeFocus
                    }
                }
                Rectangle {
                    anchors.horizontalCenter: parent.horizontalCenter
                    visible: cell.label
                    width: 24
                    height: 1
                    color: Tokens.line
                }
            }

            Figure {
                anchors.horizontalCenter: parent.horizontalCenter
                y: (40 - height) / 2
                visible: !cell.label
                kind: cell.kind === Store.RailRow.Kiv ? Store.ScopeKind.Kiv
                    : cell.kind === Store.RailRow.Project ? Store.ScopeKind.Project
                    : Store.ScopeKind.Agent
                name: cell.name
                colorHex: cell.colorHex
                size: cell.kind === Store.RailRow.Kiv ? 26 : 28
                offline: strip.offline
            }
            TipLoader {
                anchors.bottomMargin: 8
                active: cell.hovered && !cell.label
                text: cell.name
                beside: true
            }
        }
    }
    IconButton {
        objectName: "stripCreate"
        anchors.horizontalCenter: list.horizontalCenter
        y: list.height
        visible: list.visible
        size: 40
        iconName: "plus"
        text: qsTr("New project")
        onClicked: strip.createRequested("project")
    }
}
