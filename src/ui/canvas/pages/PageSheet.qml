import QtQuick
import Kiv.Canvas
import Kiv.Scene
import Kiv.Store
import Kiv.Tokens

// A page of the platform in the canvas: what it is and what can be done with it, and below it the
// page, or why there is none.
FocusScope {
    id: sheet

    required property AppStore store
    /// Room kept free at the bottom for what floats there.
    readonly property int reserved: (parent as PageLoader)?.reserved ?? 0

    readonly property surfaceLink link: store.canvas.pageView
    readonly property bool hidden: host.state === PageHost.Failed || host.state === PageHost.Refused

    Accessible.role: Accessible.Pane
    Accessible.name: link.title

    PageBar {
        id: bar

        x: 24
        y: 16
        width: parent.width - 48
        focus: true
        title: sheet.link.title
        host: host
        canvas: sheet.store.canvas
        onBrowserRequested: Qt.openUrlExternally(host.address)
    }
    Rectangle {
        x: 24
        y: 56
        width: parent.width - 48
        height: 3
        radius: 2
        visible: host.state === PageHost.Loading
        color: Tokens.line
        Accessible.role: Accessible.ProgressBar
        Accessible.name: qsTr("Loading %1").arg(sheet.link.title)

        Rectangle {
            width: parent.width * Math.max(0.08, host.progress)
            height: parent.height
            radius: 2
            color: Tokens.accentText

            Behavior on width {
                NumberAnimation { duration: Tokens.base }
            }
        }
    }
    Rectangle {
        x: 24
        y: 64
        width: parent.width - 48
        height: parent.height - y - 24 - sheet.reserved
        visible: !sheet.hidden
        radius: Tokens.radiusSheet
        color: Tokens.surface
        border.width: 1
        border.color: host.activeFocus ? Tokens.focus : Tokens.line

        PageHost {
            id: host

            objectName: "page"
            anchors.fill: parent
            anchors.leftMargin: 1
            anchors.rightMargin: 1
            anchors.topMargin: Tokens.radiusSheet
            anchors.bottomMargin: Tokens.radiusSheet
            store: sheet.store
            url: sheet.link.url
            dark: Tokens.dark
            onBrowserRequested: url => Qt.openUrlExternally(url)
        }
    }
    CanvasMessage {
        anchors.fill: parent
        anchors.bottomMargin: sheet.reserved
        visible: sheet.hidden
        iconName: host.state === PageHost.Refused ? "shield" : "alert"
        heading: host.failure
        questions: host.state === PageHost.Refused ? [bar.browserText] : [qsTr("Try again"), bar.browserText]
        onAsked: question => {
            if (question === bar.browserText)
                Qt.openUrlExternally(host.address)
            else
                host.retry()
        }
    }
    // The page has the keys while the person is in it: this leads out.
    Shortcut {
        sequence: "Esc"
        enabled: host.activeFocus
        onActivated: bar.forceActiveFocus(Qt.ShortcutFocusReason)
    }
}
