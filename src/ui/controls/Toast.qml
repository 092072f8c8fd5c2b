import QtQuick
import Kiv.Controls
import Kiv.Tokens

// A piece of news on a dark ground. It goes by itself, but not while it is pointed at.
Rectangle {
    id: toast

    required property string words
    required property string action
    required property url target
    required property int index

    implicitWidth: Math.min(Tokens.fit(440), label.implicitWidth + (link.visible ? link.width + 16 : 0) + 32)
    implicitHeight: Tokens.fit(44)
    radius: Tokens.radiusBlock
    color: Tokens.tip
    opacity: 0
    Component.onCompleted: opacity = 1

    Behavior on opacity {
        NumberAnimation { duration: Tokens.fade; easing.type: Easing.OutCubic }
    }
    Shadow {
        z: -1
        targetRadius: toast.radius
    }
    Announcement {
        words: toast.words
        Accessible.role: Accessible.AlertMessage
        Accessible.name: words
    }
    HoverHandler {
        id: pointer
    }
    Timer {
        // Of the stacks that hold this news, the one that shows lets it go.
        running: toast.visible && !pointer.hovered && !link.visualFocus
        interval: toast.action === "" ? Tokens.toast : Tokens.notice
        onTriggered: Toasts.dismiss(toast.index)
    }
    Label {
        id: label

        x: 16
        width: parent.width - x - 16 - (link.visible ? link.width + 16 : 0)
        anchors.verticalCenter: parent.verticalCenter
        style: Tokens.type.smallMedium
        color: Tokens.tipInk
        text: toast.words
        Accessible.ignored: true
    }
    TextLink {
        id: link

        objectName: "toastAction"
        x: parent.width - width - 16
        anchors.verticalCenter: parent.verticalCenter
        visible: toast.action !== ""
        style: Tokens.type.smallMedium
        color: Tokens.tipInk
        text: toast.action
        onClicked: {
            Qt.openUrlExternally(toast.target)
            Toasts.dismiss(toast.index)
        }
    }
}
