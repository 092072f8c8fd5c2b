pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// Everything the program can do and show, found by typing. What is chosen is carried out when the
// palette is gone and the focus is back where it was.
Dialog {
    id: root

    required property AppStore store
    required property Commands commands
    property int chosen: -1

    signal shortcutsRequested()

    function choose(row: int) {
        root.chosen = row
        root.close()
    }

    anchors.centerIn: undefined
    x: Math.round((T.Overlay.overlay.width - width) / 2)
    y: Tokens.topBarHeight + 48
    width: Tokens.fit(560)
    padding: 8
    bottomPadding: 8
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToShow: {
        chosen = -1
        search.clear()
        entries.refresh()
        list.currentIndex = 0
        search.forceActiveFocus(Qt.PopupFocusReason)
    }
    onClosed: entries.choose(chosen)

    contentItem: Item {
        implicitHeight: Tokens.fit(50) + Math.max(Tokens.fit(44), list.height)
    }

    PaletteModel {
        id: entries

        store: root.store
        commands: root.commands
        onShortcutsRequested: root.shortcutsRequested()
    }
    TextField {
        id: search

        objectName: "paletteSearch"
        width: root.availableWidth
        height: Tokens.fit(42)
        iconName: "search"
        placeholderText: qsTr("Find a command, a project, an agent or a canvas")
        Accessible.name: placeholderText
        onTextChanged: {
            entries.query = text
            list.currentIndex = 0
        }
        onAccepted: if (list.count > 0) root.choose(list.currentIndex)
        Keys.onDownPressed: list.incrementCurrentIndex()
        Keys.onUpPressed: list.decrementCurrentIndex()
    }
    Label {
        x: 12
        y: Tokens.fit(50) + 12
        visible: list.count === 0
        color: Tokens.t3
        text: qsTr("Nothing is called that")
    }
    ListView {
        id: list

        objectName: "paletteList"
        y: Tokens.fit(50)
        width: root.availableWidth
        height: Math.min(contentHeight, 10 * Tokens.fit(40),
            (T.Overlay.overlay?.height ?? 680) - root.y - y - 48)
        model: entries
        clip: true
        currentIndex: 0
        keyNavigationWraps: true
        cacheBuffer: 0
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Found")

        T.ScrollBar.vertical: ScrollBar {}

        delegate: PaletteRow {
            required property int index

            width: list.width
            highlighted: ListView.isCurrentItem
            onClicked: root.choose(index)
        }
    }
}
