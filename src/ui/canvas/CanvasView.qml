pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The canvas: the scene of the newest answer, or what leads to one.
FocusScope {
    id: view

    required property AppStore store
    /// Room kept free at the bottom for what floats there.
    property int reserved: 0
    /// What it offers to ask while it is empty.
    property list<string> starters

    readonly property CanvasRoom canvas: store.canvas

    signal messageRequested(messageId: string)

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Canvas")

    HistoryKeys {
        anchors.fill: parent
        canvas: view.canvas
    }
    LatePlace {
        id: caption

        x: 24
        y: 16
        width: parent.width - 48
        height: Math.max(36, Tokens.fit(32))
        wanted: view.canvas.framed
        content: CanvasCaption {
            anchors.fill: parent
            canvas: view.canvas
            chat: view.store.chat
            layout: view.store.layout
            scope: view.store.scope
            sheet: sheet.item as Item
        }
    }
    HistorySteps {
        x: parent.width - width - 24
        y: 16
        // Above a page stands a bar of its own.
        visible: any && !view.canvas.framed && view.canvas.state !== Store.CanvasState.Page
        canvas: view.canvas
    }
    BuildingBar {
        x: 24
        y: caption.y + caption.height + 4
        width: parent.width - 48
        visible: view.canvas.state === Store.CanvasState.BuildingScene
        running: visible
    }
    LatePlace {
        anchors.fill: frame
        wanted: view.canvas.state === Store.CanvasState.ThinkingSkeleton || view.canvas.state === Store.CanvasState.BuildingScene
        content: SkeletonSheet {
            anchors.fill: parent
            shape: view.canvas.skeletonShape
        }
    }
    SheetLoader {
        id: sheet

        anchors.fill: frame
        active: view.canvas.state === Store.CanvasState.Scene
        focus: active
        store: view.store
        onMessageRequested: view.messageRequested(view.canvas.sourceMessageId)
    }
    Item {
        id: frame

        x: 24
        y: caption.y + caption.height + 12
        width: parent.width - 48
        height: parent.height - y - 24 - view.reserved
    }
    GalleryLoader {
        anchors.fill: parent
        anchors.bottomMargin: view.reserved
        active: view.canvas.state === Store.CanvasState.SignedOut
    }
    LatePlace {
        anchors.fill: parent
        anchors.bottomMargin: view.reserved
        // Not before it is known who asks.
        wanted: view.canvas.state === Store.CanvasState.Empty && view.store.scope.auth === Store.AuthPhase.SignedIn
        content: CanvasMessage {
            anchors.fill: parent
            heading: qsTr("Ask for something with numbers")
            body: qsTr("The answer is drawn here, and the text stays in the conversation.")
            questions: view.starters
            offline: view.store.connection.offline
            onAsked: question => view.store.chat.send(question)
        }
    }
    PageLoader {
        anchors.fill: parent
        active: view.canvas.state === Store.CanvasState.Page
        focus: active
        store: view.store
        reserved: view.reserved
    }
    LatePlace {
        anchors.fill: parent
        anchors.bottomMargin: view.reserved
        wanted: view.canvas.state === Store.CanvasState.Hint
        content: CanvasMessage {
            anchors.fill: parent
            iconName: "sheet"
            heading: view.canvas.canvasHint
            questions: [qsTr("As a table"), qsTr("As a list")]
            onAsked: question => view.store.chat.send(question)
        }
    }
    LatePlace {
        anchors.fill: parent
        anchors.bottomMargin: view.reserved
        wanted: view.canvas.state === Store.CanvasState.Failed
        content: CanvasMessage {
            anchors.fill: parent
            iconName: "alert"
            heading: qsTr("No answer came")
            questions: [qsTr("Try again")]
            onAsked: view.store.chat.retryTurn()
        }
    }
}
