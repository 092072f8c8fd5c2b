import QtQuick

// The arrow keys of `rows`: Up and Down go to the rows beside the one that has the focus. In a popup,
// where the focus goes round, so do they.
Item {
    id: keys

    required property Item rows

    function step(onward: bool) {
        const next = Window.activeFocusItem?.nextItemInFocusChain(onward)
        if (next?.parent === rows)
            next.forceActiveFocus(onward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    Keys.onUpPressed: step(false)
    Keys.onDownPressed: step(true)
}
