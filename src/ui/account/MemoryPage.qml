import QtQuick
import Kiv.Account
import Kiv.Store

// What the workspace remembers about the person: a list of documents, or the one that is open.
Item {
    id: page

    required property AccountRoom account
    required property Calendar calendar

    property string openKey: ""
    property string openTitle: ""

    function open(key: string, title: string) {
        openTitle = title
        openKey = key
    }

    implicitHeight: openKey === "" ? list.implicitHeight : editor.implicitHeight
    Keys.onEscapePressed: event => {
        event.accepted = openKey !== ""
        openKey = ""
    }

    DocumentList {
        id: list

        width: parent.width
        visible: page.openKey === ""
        account: page.account
        onOpened: (key, title) => page.open(key, title)
    }
    DocumentEditor {
        id: editor

        width: parent.width
        visible: page.openKey !== ""
        title: page.openTitle
        value: page.account.field(page.openKey === "" ? "shared_md" : page.openKey)
        calendar: page.calendar
        onClosed: page.openKey = ""
    }
}
