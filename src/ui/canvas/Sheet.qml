import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Store
import Kiv.Tokens

// The sheet that a scene is drawn on: head, scene, a sentence, foot.
FocusScope {
    id: sheet

    required property sceneOut scene
    /// The answer that was drawn; none where there is no conversation.
    property sceneSource source
    required property string time
    required property bool linked
    /// Whether the scene comes in with its entrance.
    required property bool animated
    /// Whether a mark that is activated asks about what it stands for.
    property bool asks: true
    /// While a picture of the sheet is taken, which does not show where the keyboard stands.
    property bool pictured: false

    readonly property int side: Tokens.sheetSide(width)

    signal messageRequested()
    signal pointChosen(label: string)

    // A picture of the sheet has the ground at its corners.
    Rectangle {
        anchors.fill: parent
        color: Tokens.bg
    }
    Lift {
        radius: Tokens.radiusSheet
    }
    Rectangle {
        anchors.fill: parent
        radius: Tokens.radiusSheet
        color: Tokens.surface
        border.width: 1
        border.color: Tokens.line
    }
    SheetHead {
        id: head

        width: parent.width
        title: sheet.scene.title
        sub: sheet.scene.sub
        side: sheet.side
    }
    SceneBody {
        anchors.top: head.bottom
        anchors.bottom: note.visible ? note.top : foot.top
        width: parent.width
        focus: true
        scene: sheet.scene
        side: sheet.side
        animated: sheet.animated
        asks: sheet.asks
        pictured: sheet.pictured
        onPointChosen: label => sheet.pointChosen(label)
    }
    FullLabel {
        id: note

        anchors.bottom: foot.top
        x: sheet.side
        width: parent.width - 2 * sheet.side
        bottomPadding: 16 - style.lead
        visible: text !== ""
        color: Tokens.t2
        wrapMode: Text.Wrap
        maximumLineCount: 2
        text: sheet.scene.insight
        Accessible.ignored: text === ""
    }
    SheetFoot {
        id: foot

        anchors.bottom: parent.bottom
        width: parent.width
        countLine: sheet.scene.countLine
        side: sheet.side
        source: sheet.source
        time: sheet.time
        linked: sheet.linked
        pictured: sheet.pictured
        onMessageRequested: sheet.messageRequested()
    }
}
