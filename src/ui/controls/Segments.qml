pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Tokens

// One of a few: side by side in a sunken bar. One stop of the tab key, Left and Right choose.
FocusScope {
    id: segments

    required property string name
    required property list<string> labels
    required property int current

    signal picked(index: int)

    function go(step: int) {
        const next = Math.max(0, Math.min(labels.length - 1, current + step))
        picked(next);
        (cells.itemAt(next) as T.AbstractButton)?.forceActiveFocus(Qt.TabFocusReason)
    }

    implicitHeight: Tokens.fit(36)
    Accessible.role: Accessible.Grouping
    Accessible.name: name
    Keys.onLeftPressed: go(-1)
    Keys.onRightPressed: go(1)

    Rectangle {
        anchors.fill: parent
        radius: Tokens.radiusControl
        color: Tokens.sunken
    }
    Row {
        anchors.fill: parent
        anchors.margins: 2

        Repeater {
            id: cells

            model: segments.labels

            T.AbstractButton {
                id: cell

                required property string modelData
                required property int index

                objectName: "segment:" + modelData
                width: (segments.width - 4) / segments.labels.length
                height: segments.height - 4
                focus: index === segments.current
                focusPolicy: index === segments.current ? Qt.StrongFocus : Qt.ClickFocus
                checked: index === segments.current
                text: modelData
                Accessible.name: text
                Accessible.role: Accessible.RadioButton
                Accessible.checked: checked
                onClicked: segments.picked(index)

                background: Ground {
                    radius: Tokens.radiusChip
                    color: cell.checked ? Tokens.surface : cell.hovered ? Tokens.press : Tokens.clear

                    FocusRing {
                        anchors.margins: 0
                        targetRadius: 2
                        visible: cell.visualFocus
                    }
                }

                Label {
                    anchors.centerIn: parent
                    style: Tokens.type.smallMedium
                    color: cell.checked ? Tokens.t1 : Tokens.t2
                    text: cell.text
                    Accessible.ignored: true
                }
            }
        }
    }
}
