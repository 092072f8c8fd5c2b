pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Controls
import Kiv.Shell
import Kiv.Tokens

// The main menu: its menus at the left, the commands of the current one beside them. A command is
// carried out when the menu is gone and the focus is back where it was.
Popover {
    id: root

    required property Commands commands
    property int chosen: 0

    function choose(command: int) {
        root.chosen = command
        root.close()
    }

    alignLeft: true
    width: Tokens.fit(460)
    onAboutToShow: {
        chosen = 0
        menus.currentIndex = 0
        menus.forceActiveFocus(Qt.PopupFocusReason)
    }
    onClosed: commands.performNumber(chosen)

    contentItem: Item {
        implicitHeight: 8 * Tokens.fit(36) + 2 * 13
    }

    ListView {
        id: menus

        objectName: "menus"
        width: Tokens.fit(160)
        height: parent.height
        model: root.commands.menus
        focus: true
        interactive: false
        keyNavigationEnabled: true
        keyNavigationWraps: true
        highlightMoveDuration: 0
        Accessible.role: Accessible.MenuBar
        Accessible.name: qsTr("Main menu")
        Keys.onRightPressed: lines.forceActiveFocus(Qt.TabFocusReason)
        Keys.onReturnPressed: lines.forceActiveFocus(Qt.TabFocusReason)
        Keys.onEnterPressed: lines.forceActiveFocus(Qt.TabFocusReason)

        delegate: MenuLine {
            required property int index
            required property menuDescription modelData

            width: menus.width
            text: modelData.title
            leadsOn: true
            highlighted: ListView.isCurrentItem
            onHoveredChanged: if (hovered) menus.currentIndex = index
            onClicked: lines.forceActiveFocus(Qt.MouseFocusReason)
        }
    }
    Divider {
        x: menus.width + 6
        width: 1
        height: parent.height
    }
    ListView {
        id: lines

        objectName: "menuLines"
        x: menus.width + 13
        width: parent.width - x
        height: parent.height
        model: root.commands.menus[Math.max(0, menus.currentIndex)].lines
        interactive: false
        keyNavigationEnabled: true
        keyNavigationWraps: true
        highlightMoveDuration: 0
        activeFocusOnTab: true
        Accessible.role: Accessible.PopupMenu
        Accessible.name: (menus.currentItem as MenuLine)?.text ?? ""
        Keys.onLeftPressed: menus.forceActiveFocus(Qt.BacktabFocusReason)
        Keys.onReturnPressed: (currentItem as MenuLine)?.clicked()
        Keys.onEnterPressed: (currentItem as MenuLine)?.clicked()

        delegate: MenuLine {
            required property menuEntry modelData

            width: lines.width
            text: modelData.title
            keys: modelData.keys
            afterGap: modelData.afterGap
            enabled: modelData.works
            highlighted: ListView.isCurrentItem && lines.activeFocus
            onClicked: if (enabled) root.choose(modelData.command)
        }
    }
}
