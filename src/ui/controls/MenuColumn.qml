import QtQuick

// The rows of a menu: Up and Down go through them, and round.
Column {
    id: rows

    function step(onward: bool) {
        const next = Window.activeFocusItem?.nextItemInFocusChain(onward)
        next?.forceActiveFocus(onward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    Keys.onUpPressed: step(false)
    Keys.onDownPressed: step(true)
}
