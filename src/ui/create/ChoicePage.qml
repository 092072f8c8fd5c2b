import QtQuick
import Kiv.Create
import Kiv.Store

// A page of the wizard that is one choice.
FocusScope {
    id: page

    required property string head
    required property string sub
    /// Before the id of a choice in the name of its card.
    required property string prefix
    required property list<createChoice> choices
    required property string chosen

    signal picked(id: string)

    onVisibleChanged: if (visible) list.forceActiveFocus(Qt.OtherFocusReason)

    ChoiceList {
        id: list

        anchors.fill: parent
        anchors.leftMargin: -4
        anchors.rightMargin: -4
        focus: true
        prefix: page.prefix
        choices: page.choices
        chosen: page.chosen
        Accessible.name: page.head
        onPicked: id => page.picked(id)
    }
}
