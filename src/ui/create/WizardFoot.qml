import QtQuick
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The way back and forth, and what went wrong on it.
Item {
    id: foot

    required property CreateRoom room

    readonly property bool last: room.step === Store.CreateStep.Review
    readonly property bool created: room.phase === Store.CreatePhase.Created
    readonly property bool sending: room.phase === Store.CreatePhase.Sending

    implicitHeight: Tokens.fit(68)

    Divider {
        width: parent.width
    }
    Button {
        id: back

        objectName: "wizardBack"
        x: 18
        anchors.verticalCenter: parent.verticalCenter
        visible: !foot.created && foot.room.stepNumber > 1
        enabled: !foot.sending
        kind: Button.Quiet
        text: qsTr("Back")
        onClicked: foot.room.back()
    }
    Label {
        anchors.right: forth.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        visible: !foot.created
        style: Tokens.type.small
        color: Tokens.t3
        text: qsTr("Step %1 of %2").arg(foot.room.stepNumber).arg(foot.room.stepNames.length)
        objectName: "wizardProgress"
    }
    Button {
        id: forth

        objectName: "wizardNext"
        x: parent.width - width - 32
        anchors.verticalCenter: parent.verticalCenter
        kind: Button.Main
        busy: foot.sending
        text: foot.created ? qsTr("Open the chat")
            : !foot.last ? qsTr("Continue")
            : foot.room.kind === Store.CreateKind.Project ? qsTr("Create the project")
            : qsTr("Create the agent")
        onClicked: foot.room.next()
    }
}
