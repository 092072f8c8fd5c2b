import QtQuick
import Kiv.Create
import Kiv.Store

// What is to be created.
FocusScope {
    id: page

    required property CreateRoom room
    readonly property string head: qsTr("What would you like to create?")
    readonly property string sub: qsTr("A project holds the work, an agent does it.")

    visible: room.step === Store.CreateStep.Kind
    onVisibleChanged: if (visible) list.forceActiveFocus(Qt.OtherFocusReason)

    ChoiceList {
        id: list

        anchors.fill: parent
        anchors.leftMargin: -4
        anchors.rightMargin: -4
        focus: true
        prefix: "kind:"
        choices: page.room.kinds
        chosen: page.room.kind === Store.CreateKind.Project ? "project" : "agent"
        Accessible.name: page.head
        onPicked: id => page.room.kind = id === "project" ? Store.CreateKind.Project : Store.CreateKind.Agent
    }
}
