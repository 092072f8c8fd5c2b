import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// The line above a page of the platform.
FocusScope {
    id: bar

    required property string title
    required property PageHost host
    required property CanvasRoom canvas

    /// The first page leads back to what the canvas showed before it.
    readonly property bool leaves: !host.canGoBack && canvas.hasEarlier
    readonly property string browserText: qsTr("Open in the browser")
    readonly property bool narrow: width - 48 < Tokens.mediumBody

    signal browserRequested()

    implicitHeight: 36

    Rectangle {
        id: sign

        anchors.verticalCenter: parent.verticalCenter
        width: 32
        height: 32
        radius: Tokens.radiusControl
        color: Tokens.surface
        border.width: 1
        border.color: Tokens.line

        Icon {
            anchors.centerIn: parent
            name: "globe"
            size: 18
            color: Tokens.accentText
        }
    }
    Label {
        id: word

        anchors.left: sign.right
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        style: Tokens.type.strong
        text: bar.title
        Accessible.role: Accessible.Heading
    }
    Label {
        objectName: "pageAddress"
        anchors.left: word.right
        anchors.leftMargin: 10
        anchors.right: actions.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        style: Tokens.type.small
        color: Tokens.t3
        text: "" + bar.host.address
    }
    Row {
        id: actions

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        IconButton {
            objectName: "pageBack"
            iconName: "left"
            text: bar.leaves ? qsTr("Earlier canvas") : qsTr("Back")
            enabled: bar.leaves || bar.host.canGoBack
            opacity: enabled ? 1 : 0.45
            onClicked: bar.leaves ? bar.canvas.stepBack() : bar.host.back()
        }
        IconButton {
            objectName: "pageReload"
            focus: true
            iconName: "refresh"
            text: qsTr("Reload")
            enabled: bar.host.state !== PageHost.Refused
            opacity: enabled ? 1 : 0.45
            onClicked: bar.host.reload()
        }
        Button {
            id: browserButton

            objectName: "pageBrowser"
            anchors.verticalCenter: parent.verticalCenter
            size: Button.Small
            kind: Button.Quiet
            iconName: "ext"
            text: bar.narrow ? "" : bar.browserText
            labelColor: Tokens.t2
            Accessible.name: bar.browserText
            onClicked: bar.browserRequested()

            TipLoader {
                active: bar.narrow && browserButton.hovered
                text: bar.browserText
            }
        }
    }
}
