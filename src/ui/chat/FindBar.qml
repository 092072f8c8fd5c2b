import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Looks for words in the conversation. Enter goes on, Shift and Enter go back, Escape closes.
FocusScope {
    id: bar

    required property FindRoom find
    /// A new search begins at what it shows.
    required property Feed feed

    /// What had the focus before.
    property Item origin: null

    signal closed()

    function begin() {
        if (!activeFocus)
            origin = Window.activeFocusItem
        field.forceActiveFocus(Qt.ShortcutFocusReason)
        field.selectAll()
    }
    function close() {
        find.close()
        if (origin)
            origin.forceActiveFocus(Qt.OtherFocusReason)
        else
            closed()
    }

    implicitHeight: Tokens.fit(52)
    visible: find.shown
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Find in the conversation")
    Component.onCompleted: if (find.shown) begin()
    Keys.onEscapePressed: close()

    Connections {
        target: bar.find

        function onOpened() {
            bar.begin()
        }
    }
    TextField {
        id: field

        objectName: "findField"
        x: 24
        anchors.verticalCenter: parent.verticalCenter
        width: back.x - x - 8
        implicitHeight: Tokens.fit(36)
        focus: true
        iconName: "search"
        trailing: result.width + 8
        placeholderText: qsTr("Find in the conversation")
        Accessible.name: placeholderText
        Accessible.description: result.text
        text: bar.find.pattern
        onTextEdited: bar.find.look(text, bar.feed.topMessage())
        Keys.onReturnPressed: event => event.modifiers & Qt.ShiftModifier ? bar.find.previous() : bar.find.next()
        Keys.onEnterPressed: event => event.modifiers & Qt.ShiftModifier ? bar.find.previous() : bar.find.next()

        Label {
            id: result

            objectName: "findCount"
            anchors.right: parent.right
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            style: Tokens.type.caption
            tabular: true
            color: bar.find.count === 0 && !bar.find.searching ? Tokens.dangerText : Tokens.t3
            text: bar.find.pattern === "" ? ""
                : bar.find.count > 0 ? qsTr("%1 of %2").arg(bar.find.place).arg(bar.find.count)
                : bar.find.searching ? "" : qsTr("Not found")
        }
    }
    IconButton {
        id: back

        objectName: "findPrevious"
        anchors.right: on.left
        anchors.verticalCenter: parent.verticalCenter
        size: 32
        iconName: "up"
        enabled: bar.find.count > 0
        opacity: enabled ? 1 : 0.4
        text: qsTr("Previous")
        keys: qsTr("Shift Enter")
        onClicked: bar.find.previous()
    }
    IconButton {
        id: on

        objectName: "findNext"
        anchors.right: shut.left
        anchors.verticalCenter: parent.verticalCenter
        size: 32
        iconName: "down"
        enabled: bar.find.count > 0
        opacity: enabled ? 1 : 0.4
        text: qsTr("Next")
        keys: qsTr("Enter")
        onClicked: bar.find.next()
    }
    IconButton {
        id: shut

        objectName: "findClose"
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        size: 32
        iconName: "close"
        text: qsTr("Close the search")
        keys: qsTr("Esc")
        onClicked: bar.close()
    }
    Divider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
