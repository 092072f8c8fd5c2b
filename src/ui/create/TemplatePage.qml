import QtQuick
import Kiv.Create
import Kiv.Store

// What the new project or agent starts from.
FocusScope {
    id: page

    required property CreateRoom room
    readonly property string head: qsTr("Pick a template")
    readonly property string sub: qsTr("It fills the next steps, and every field can be changed.")

    visible: room.step === Store.CreateStep.Template
    onVisibleChanged: if (visible) list.forceActiveFocus(Qt.OtherFocusReason)

    ChoiceList {
        id: list

        anchors.fill: parent
        anchors.leftMargin: -4
        anchors.rightMargin: -4
        focus: true
        prefix: "template:"
        choices: page.room.templates
        chosen: page.room.templateId
        Accessible.name: page.head
        onPicked: id => page.room.templateId = id
    }
}
