pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Shell
import Kiv.Tokens

// The works of others that the program is made with, and under which licence each is.
Dialog {
    id: sheet

    width: Tokens.fit(560)
    objectName: "noticesSheet"
    onAboutToShow: list.forceActiveFocus(Qt.PopupFocusReason)

    contentItem: Item {
        implicitHeight: Tokens.fit(44) + list.height
    }

    Label {
        style: Tokens.type.title
        text: qsTr("Third-party notices")
        Accessible.role: Accessible.Heading
    }
    IconButton {
        x: sheet.availableWidth + sheet.rightPadding - width - 14
        y: 14 - sheet.topPadding
        iconName: "close"
        text: qsTr("Close")
        onClicked: sheet.close()
    }
    ListView {
        id: list

        objectName: "noticeList"
        // Room for the ring of a row.
        x: -12
        y: Tokens.fit(44)
        width: sheet.availableWidth + 24
        height: Math.min(contentHeight, 7 * Tokens.fit(64),
            (T.Overlay.overlay?.height ?? 680) - y - sheet.topPadding - sheet.bottomPadding - 48)
        model: Notices.all
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Third-party notices")

        T.ScrollBar.vertical: ScrollBar {}

        delegate: T.ItemDelegate {
            id: row

            required property notice modelData

            width: list.width
            height: Math.max(Tokens.fit(64), words.height + 12)
            focusPolicy: Qt.NoFocus
            text: modelData.name
            Accessible.name: qsTr("%1: %2. %3. %4").arg(modelData.name).arg(modelData.part).arg(modelData.licence).arg(modelData.holder)
            Accessible.role: Accessible.ListItem

            FocusRing {
                anchors.margins: 0
                targetRadius: 4
                visible: row.ListView.isCurrentItem && list.activeFocus
            }
            Column {
                id: words

                x: 12
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width - 36

                Label {
                    width: parent.width
                    elide: Text.ElideRight
                    style: Tokens.type.name
                    text: row.modelData.name
                    Accessible.ignored: true
                }
                Label {
                    width: parent.width
                    wrapMode: Text.Wrap
                    style: Tokens.type.caption
                    color: Tokens.t2
                    text: row.modelData.licence + " · " + row.modelData.holder
                    Accessible.ignored: true
                }
                Label {
                    width: parent.width
                    elide: Text.ElideRight
                    style: Tokens.type.caption
                    color: Tokens.t3
                    text: row.modelData.part
                    Accessible.ignored: true
                }
            }
        }
    }
}
