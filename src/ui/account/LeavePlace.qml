import QtQuick
import Kiv.Controls
import Kiv.Store

// Where the question opens whether something that is not saved is dropped.
PopupPlace {
    required property AccountRoom account

    shown: account.leaveAsked
    Component.onCompleted: setSource("LeaveDialog.qml", { "account": account })
}
