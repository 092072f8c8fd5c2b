import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// One line of the main menu: a menu, or a command of it.
T.ItemDelegate {
    id: line

    property string keys: ""
    property bool afterGap: false
    property bool leadsOn: false

    readonly property int gap: afterGap ? 13 : 0

    implicitHeight: Tokens.fit(36) + gap
    focusPolicy: Qt.NoFocus
    Accessible.name: text
    Accessible.role: Accessible.MenuItem

    background: Item {
        Rectangle {
            y: line.gap
            width: parent.width
            height: Tokens.fit(36)
            radius: Tokens.radiusControl
            color: line.enabled && (line.hovered || line.highlighted) ? Tokens.hoverRaised : "transparent"
        }
        Divider {
            x: 6
            y: 6
            width: parent.width - 12
            visible: line.afterGap
        }
    }

    Label {
        x: 12
        y: line.gap + (Tokens.fit(36) - height) / 2
        width: trailing.x - x - 8
        style: Tokens.type.line
        color: line.enabled ? Tokens.t1 : Tokens.tDisabled
        text: line.text
        Accessible.ignored: true
    }
    Label {
        id: trailing

        x: line.width - width - 12
        y: line.gap + (Tokens.fit(36) - height) / 2
        style: Tokens.type.caption
        color: Tokens.t3
        text: line.keys
        Accessible.ignored: true
    }
    Icon {
        x: line.width - width - 10
        y: line.gap + (Tokens.fit(36) - height) / 2
        visible: line.leadsOn
        name: "right"
        size: 16
        color: Tokens.t3
    }
}
