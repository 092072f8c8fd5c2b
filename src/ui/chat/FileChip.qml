import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// A file with its name and a line below it: pressed, where that does something, or taken away.
BareButton {
    id: chip

    required property string name
    required property int kind
    property string detail: ""
    property real progress: 0
    property bool failed: false
    property bool pressable: true
    property bool removable: false
    property alias closeFocused: close.activeFocus
    property int maximumWidth: 220
    readonly property int tail: removable ? 38 : 12
    readonly property real words: Math.max(title.implicitWidth, below.implicitWidth)

    signal removeRequested()

    implicitWidth: Math.min(36 + Math.ceil(words) + tail, maximumWidth)
    implicitHeight: Tokens.fit(40)
    hoverEnabled: pressable
    focusPolicy: pressable ? Qt.TabFocus : Qt.NoFocus
    text: name
    Accessible.role: pressable ? Accessible.Button : Accessible.StaticText
    Accessible.name: detail === "" ? name : qsTr("%1, %2").arg(name).arg(detail)

    background: Ground {
        radius: Tokens.radiusControl
        color: chip.pressable && (chip.hovered || chip.down) ? Tokens.hover : Tokens.inset
        border.width: 1
        border.color: chip.failed ? Tokens.danger : Tokens.line

        FocusRing {
            visible: chip.visualFocus
        }
    }

    HoverHandler {
        id: pointer
    }
    TipLoader {
        active: pointer.hovered && title.truncated && !close.hovered
        text: chip.name
    }
    Icon {
        x: 8
        anchors.verticalCenter: parent.verticalCenter
        name: chip.failed ? "alert" : chip.kind === Store.FileKind.Image ? "image" : chip.kind === Store.FileKind.Table ? "sheet" : "file"
        size: 20
        color: chip.failed ? Tokens.dangerText : Tokens.t1
    }
    Column {
        anchors.verticalCenter: parent.verticalCenter
        x: 36
        width: chip.width - x - chip.tail

        Label {
            id: title

            width: parent.width
            style: Tokens.type.captionMedium
            elide: Text.ElideMiddle
            text: chip.name
            Accessible.ignored: true
        }
        Label {
            id: below

            width: parent.width
            visible: text !== ""
            style: Tokens.type.micro
            color: chip.failed ? Tokens.dangerText : Tokens.t3
            text: chip.detail
            Accessible.ignored: true
        }
    }
    Rectangle {
        objectName: "uploadBar"
        visible: width > 0
        x: Tokens.radiusControl / 2
        y: chip.height - height
        width: (chip.width - 2 * x) * chip.progress
        height: 2
        radius: 1
        color: Tokens.accent
    }
    IconButton {
        id: close

        objectName: "removeFile:" + chip.name
        anchors.verticalCenter: parent.verticalCenter
        x: chip.width - width - 6
        visible: chip.removable
        size: 24
        iconSize: 14
        iconName: "close"
        text: qsTr("Remove %1").arg(chip.name)
        onClicked: chip.removeRequested()
    }
}
