import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Tokens

// Several lines of typing in a frame that scrolls. The tab key leads on, as from every field.
FocusScope {
    id: frame

    required property string label
    property bool failed: false
    property alias area: area

    Rectangle {
        anchors.fill: parent
        radius: Tokens.radiusControl
        color: area.enabled ? Tokens.surface : Tokens.sunken
        border.width: frame.failed || area.activeFocus ? 2 : 1
        border.color: frame.failed ? Tokens.danger : area.activeFocus ? Tokens.focus : Tokens.control
    }
    Flickable {
        anchors.fill: parent
        anchors.margins: 2
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration

        T.ScrollBar.vertical: ScrollBar {}

        T.TextArea.flickable: T.TextArea {
            id: area

            focus: true
            leftPadding: 10
            rightPadding: 14
            topPadding: 8
            bottomPadding: 8
            font.family: Tokens.family
            font.pixelSize: Tokens.type.body.size
            color: enabled ? Tokens.t1 : Tokens.tDisabled
            selectionColor: Tokens.selection
            selectedTextColor: Tokens.t1
            selectByMouse: true
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            Accessible.name: frame.label
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
        }
    }
}
