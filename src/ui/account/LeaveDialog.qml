import QtQuick
import Kiv.Controls
import Kiv.Store

// Asks before something that is not saved is dropped.
AskDialog {
    required property AccountRoom account

    question: qsTr("Leave without saving?")
    body: qsTr("Something that you entered is not saved. It is lost when you leave now.")
    drop: qsTr("Drop it and leave")
    keepButton.objectName: "stayHere"
    dropButton.objectName: "leaveAnyway"
    visible: account.leaveAsked
    onKept: account.stay()
    onDropped: account.leaveAnyway()
    onAboutToHide: if (account.leaveAsked) account.stay()
}
