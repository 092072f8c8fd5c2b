import QtQuick
import Kiv.Controls
import Kiv.Tokens

// Why something failed, below what failed.
Label {
    objectName: "errorLine"
    visible: text !== ""
    style: Tokens.type.caption
    color: Tokens.dangerText
    wrapMode: Text.Wrap
    Accessible.role: Accessible.AlertMessage
}
