import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// How far the entry of a field has come, with what can be done about it.
Row {
    id: note

    required property AccountField value
    /// What the field is called.
    required property string label

    readonly property int progress: value.state

    spacing: 6
    visible: progress === Store.SaveState.Saving || progress === Store.SaveState.Saved || progress === Store.SaveState.Failed

    Busy {
        anchors.verticalCenter: parent.verticalCenter
        visible: note.progress === Store.SaveState.Saving
        color: Tokens.t3
    }
    Icon {
        anchors.verticalCenter: parent.verticalCenter
        visible: note.progress === Store.SaveState.Saved
        name: "check"
        size: 14
        color: Tokens.t3
    }
    Label {
        anchors.verticalCenter: parent.verticalCenter
        visible: note.progress !== Store.SaveState.Failed
        style: Tokens.type.caption
        color: Tokens.t3
        text: note.progress === Store.SaveState.Saving ? qsTr("Saving…") : qsTr("Saved")
    }
    TextLink {
        objectName: "undoSave"
        anchors.verticalCenter: parent.verticalCenter
        visible: note.progress === Store.SaveState.Saved
        leftPadding: 2
        text: qsTr("Undo")
        Accessible.name: qsTr("Undo: %1").arg(note.label)
        onClicked: note.value.undo()
    }
    TextLink {
        objectName: "retrySave"
        anchors.verticalCenter: parent.verticalCenter
        visible: note.progress === Store.SaveState.Failed
        text: qsTr("Try again")
        Accessible.name: qsTr("Try again: %1").arg(note.label)
        onClicked: note.value.commit()
    }
}
