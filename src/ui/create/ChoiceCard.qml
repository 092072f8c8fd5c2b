import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// One thing to choose: a sign, its name and a line about it.
T.AbstractButton {
    id: card

    required property createChoice choice
    /// Whether several of its kind can be chosen.
    property bool several: false
    /// Leaves the line out, for a choice among many.
    property bool compact: false
    property bool ringed: false

    implicitHeight: Tokens.fit(compact ? 36 : 52)
    text: choice.title
    Accessible.role: several ? Accessible.CheckBox : Accessible.RadioButton
    Accessible.name: choice.title
    Accessible.description: choice.summary
    Accessible.checkable: true
    Accessible.checked: checked

    background: Ground {
        radius: Tokens.radiusBlock
        color: card.checked ? Tokens.accentTint : card.down ? Tokens.press : card.hovered ? Tokens.hover : Tokens.surface
        border.width: card.checked ? 2 : 1
        border.color: card.checked ? Tokens.accent : Tokens.line2

        FocusRing {
            targetRadius: Tokens.radiusBlock
            visible: card.visualFocus || card.ringed
        }
    }

    Icon {
        x: 16
        anchors.verticalCenter: parent.verticalCenter
        name: card.choice.icon
        size: 18
        color: card.checked ? Tokens.accentText : Tokens.t2
    }
    Column {
        x: 46
        width: parent.width - x - 44
        anchors.verticalCenter: parent.verticalCenter

        Label {
            width: parent.width
            height: Tokens.fit(18)
            style: Tokens.type.name
            text: card.choice.title
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            visible: !card.compact
            style: Tokens.type.caption
            color: card.checked ? Tokens.t2 : Tokens.t3
            text: card.choice.summary
            Accessible.ignored: true
        }
    }
    Icon {
        x: parent.width - width - 16
        anchors.verticalCenter: parent.verticalCenter
        visible: card.checked
        name: "check"
        size: 16
        color: Tokens.accentText
    }
}
