import QtQuick
import Kiv.Call
import Kiv.Chat
import Kiv.Controls
import Kiv.Markdown
import Kiv.Store
import Kiv.Tokens

// Something that was said in a call: by whom, when, and what.
Item {
    id: line

    required property bool mine
    required property string counterpart
    required property int counterpartKind
    required property string counterpartColorHex
    required property string words
    required property int seconds
    property bool growing: false
    required property ScopeRoom person

    readonly property string speaker: mine ? qsTr("You") : counterpart

    implicitHeight: Math.max(28, text.y + text.height)
    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1, %2").arg(speaker).arg(words)

    Avatar {
        visible: line.mine
        initials: line.person.userInitials
        picture: line.person.userAvatarURL
        ground: Tokens.rail
    }
    Figure {
        visible: !line.mine
        kind: line.counterpartKind
        name: line.counterpart
        colorHex: line.counterpartColorHex
        size: 28
    }
    Label {
        id: name

        x: 40
        width: Math.min(implicitWidth, line.width - x - stamp.width - 8)
        style: Tokens.type.captionStrong
        text: line.speaker
        Accessible.ignored: true
    }
    Label {
        id: stamp

        x: name.x + name.width + 8
        style: Tokens.type.caption
        tabular: true
        color: Tokens.t3
        text: CallText.length(line.seconds)
        Accessible.ignored: true
    }
    Label {
        id: text

        x: 40
        y: Tokens.type.caption.line - 1
        // Room for the dot behind the last word.
        width: line.width - x - (line.growing ? 16 : 0)
        wrapMode: Text.Wrap
        text: line.words
        Accessible.ignored: true
        onLineLaidOut: line => {
            if (!line.isLast)
                return
            dot.x = text.x + line.implicitWidth + 6
            dot.y = text.y + line.y + Math.round((Tokens.type.body.line - dot.height) / 2)
        }
    }
    GrowingDot {
        id: dot

        visible: line.growing
    }
}
