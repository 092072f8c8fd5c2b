import QtQuick
import Kiv.Account
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// A document while it is written, or as it reads. It is saved by its button alone.
Rectangle {
    id: editor

    required property string title
    required property AccountField value
    required property Calendar calendar

    readonly property int most: 20000
    readonly property bool edited: value.state === Store.SaveState.Edited || value.state === Store.SaveState.Failed
    readonly property bool tooLong: value.text.length > most
    property bool reading: false

    signal closed()

    implicitHeight: foot.y + foot.height + 20
    radius: Tokens.radiusSheet
    color: Tokens.surface
    border.width: 1
    border.color: Tokens.line
    onVisibleChanged: {
        reading = false
        if (visible)
            writing.forceActiveFocus(Qt.OtherFocusReason)
    }

    IconButton {
        id: back

        objectName: "closeDocument"
        x: 14
        y: 14
        iconName: "left"
        text: qsTr("All documents")
        onClicked: editor.closed()
    }
    Label {
        x: 58
        anchors.verticalCenter: back.verticalCenter
        width: modes.x - x - 12
        style: Tokens.type.cardTitle
        text: editor.title
        Accessible.role: Accessible.Heading
    }
    Segments {
        id: modes

        x: parent.width - width - 24
        y: 14
        width: Tokens.fit(180)
        name: qsTr("View")
        labels: [qsTr("Write"), qsTr("Preview")]
        current: editor.reading ? 1 : 0
        onPicked: index => {
            editor.reading = index === 1
            if (!editor.reading)
                writing.forceActiveFocus(Qt.OtherFocusReason)
        }
    }
    TextArea {
        id: writing

        x: 24
        y: 64
        width: parent.width - 48
        height: 420
        visible: !editor.reading
        failed: editor.value.state === Store.SaveState.Failed || editor.tooLong
        label: editor.title
        area.objectName: "documentText"
        area.text: editor.value.text
        area.onTextChanged: if (area.text !== editor.value.text) editor.value.edit(area.text)
    }
    DocumentPreview {
        x: writing.x
        y: writing.y
        width: writing.width
        height: writing.height
        visible: editor.reading
        text: editor.reading ? editor.value.text : ""
        calendar: editor.calendar
    }
    ErrorLine {
        id: reason

        x: 24
        y: writing.y + writing.height + 6
        width: writing.width
        text: editor.value.error
    }
    Item {
        id: foot

        x: 24
        y: writing.y + writing.height + (reason.visible ? reason.height + 6 : 0) + 14
        width: writing.width
        height: Tokens.fit(36)

        Label {
            objectName: "documentLength"
            anchors.verticalCenter: parent.verticalCenter
            style: Tokens.type.caption
            color: editor.tooLong ? Tokens.dangerText : Tokens.t3
            text: qsTr("%1 of %2 characters")
                .arg(editor.value.text.length.toLocaleString(Qt.locale(Qt.uiLanguage), "f", 0))
                .arg(editor.most.toLocaleString(Qt.locale(Qt.uiLanguage), "f", 0))
        }
        SaveNote {
            anchors.verticalCenter: parent.verticalCenter
            x: buttons.x - width - 16
            value: editor.value
            label: editor.title
        }
        Row {
            id: buttons

            x: parent.width - width
            spacing: 10

            Button {
                objectName: "discardDocument"
                visible: editor.edited
                text: qsTr("Discard")
                onClicked: editor.value.discard()
            }
            Button {
                objectName: "saveDocument"
                kind: Button.Main
                enabled: editor.edited && !editor.tooLong
                text: qsTr("Save")
                onClicked: editor.value.commit()
            }
        }
    }
}
