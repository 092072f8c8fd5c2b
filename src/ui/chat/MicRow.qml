import QtQuick
import Kiv.Controls

// A microphone in the menu that chooses one.
MenuRow {
    id: row

    property bool chosen: false

    iconName: chosen ? "check" : ""
    Accessible.role: Accessible.RadioButton
    Accessible.checkable: true
    Accessible.checked: chosen
    Keys.onDownPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
}
