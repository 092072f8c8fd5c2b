import QtQuick
import QtQuick.Templates as T

// Where a popup opens: it is made, and its file read, when it is shown for the first time.
Loader {
    /// Whether the popup shows, for one that a state of the window opens.
    property bool shown: false
    /// The most height that it takes.
    property real most: 600
    readonly property bool opened: (item as T.Popup)?.visible ?? false

    function open() {
        active = true;
        (item as T.Popup).open()
    }
    function toggle() {
        if (opened)
            (item as T.Popup).close()
        else
            open()
    }

    anchors.fill: parent
    active: false
    onShownChanged: if (shown) active = true
}
