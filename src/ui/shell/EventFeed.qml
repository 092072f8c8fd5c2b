import QtQuick
import Kiv.Controls
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// What has happened in the current project.
Popover {
    id: popover

    required property AppStore store
    readonly property PopupPlace place: parent as PopupPlace
    readonly property real most: place?.most ?? 600
    readonly property bool chosen: store.scope.project !== ""

    width: Tokens.fit(360)
    visible: place?.shown ?? false
    onAboutToHide: store.layout.closePopovers()
    onAboutToShow: {
        events.toFirst()
        events.forceActiveFocus(Qt.PopupFocusReason)
    }

    contentItem: Item {
        implicitHeight: page.y + page.height
    }

    Row {
        x: 12
        y: 10
        spacing: 8

        Label {
            style: Tokens.type.strong
            text: qsTr("Events")
            Accessible.role: Accessible.Heading
        }
        FullLabel {
            width: Math.min(implicitWidth, 240)
            style: Tokens.type.line
            color: Tokens.t3
            text: popover.chosen ? popover.store.scope.projectName : ""
            Accessible.ignored: text === ""
        }
    }
    EventList {
        id: events

        y: Tokens.fit(42)
        width: popover.availableWidth
        most: popover.most - Tokens.fit(110)
        focus: true
        store: popover.store
    }
    Divider {
        x: -popover.leftPadding + 1
        y: page.y - 7
        width: popover.width - 2
    }
    MenuRow {
        id: page

        objectName: "showEvents"
        y: events.y + events.height + 13
        width: popover.availableWidth
        iconName: "events"
        text: qsTr("Show on the canvas")
        onClicked: popover.store.canvas.openPanel("events")
    }
}
