pragma ComponentBehavior: Bound

import QtQuick

// A conversation as it is shown with the least of work: a text item a message.
ListView {
    id: list

    reuseItems: true
    delegate: Text {
        required property string modelData

        width: list.width
        text: modelData
        textFormat: Text.MarkdownText
        wrapMode: Text.Wrap
    }
}
