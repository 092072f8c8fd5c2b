import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Create
import Kiv.Store
import Kiv.Tokens

// Makes a project or an agent, one question a page.
Dialog {
    id: wizard

    required property CreateRoom room

    readonly property bool editing: room.phase === Store.CreatePhase.Editing

    objectName: "createWizard"
    width: Math.min(Tokens.fit(800), (T.Overlay.overlay?.width ?? 848) - 48)
    height: Math.min(Tokens.fit(600), (T.Overlay.overlay?.height ?? 648) - 48)
    padding: 0
    bottomPadding: 0
    closePolicy: T.Popup.NoAutoClose
    visible: room.open

    contentItem: Item {}

    FocusScope {
        anchors.fill: parent
        focus: true
        Accessible.role: Accessible.Dialog
        Accessible.name: steps.title
        Keys.onEscapePressed: wizard.room.requestClose()
        Keys.onReturnPressed: wizard.room.next()
        Keys.onEnterPressed: wizard.room.next()

        WizardSteps {
            id: steps

            width: Tokens.fit(224)
            height: parent.height
            room: wizard.room
        }
        Item {
            id: page

            readonly property string head: kind.visible ? kind.head : template.visible ? template.head
                : details.visible ? details.head : tools.visible ? tools.head : review.head
            readonly property string sub: kind.visible ? kind.sub : template.visible ? template.sub
                : details.visible ? details.sub : tools.visible ? tools.sub : review.sub

            x: steps.width
            width: parent.width - x
            height: parent.height - foot.height

            Label {
                x: 32
                y: 24
                width: parent.width - 96
                style: Tokens.type.heading
                text: page.head
                Accessible.role: Accessible.Heading
            }
            Label {
                x: 32
                y: Tokens.fit(54)
                width: parent.width - 96
                style: Tokens.type.line
                color: Tokens.t2
                text: page.sub
            }
            FocusScope {
                x: 32
                y: Tokens.fit(95)
                width: parent.width - 64
                height: parent.height - y - 6
                focus: true
                enabled: wizard.editing

                ChoicePage {
                    id: kind

                    anchors.fill: parent
                    visible: wizard.room.step === Store.CreateStep.Kind
                    head: qsTr("What would you like to create?")
                    sub: qsTr("A project holds the work, an agent does it.")
                    prefix: "kind:"
                    choices: wizard.room.kinds
                    chosen: wizard.room.kind === Store.CreateKind.Project ? "project" : "agent"
                    onPicked: id => wizard.room.kind = id === "project" ? Store.CreateKind.Project : Store.CreateKind.Agent
                }
                ChoicePage {
                    id: template

                    anchors.fill: parent
                    visible: wizard.room.step === Store.CreateStep.Template
                    head: qsTr("Pick a template")
                    sub: qsTr("It fills the next steps, and every field can be changed.")
                    prefix: "template:"
                    choices: wizard.room.templates
                    chosen: wizard.room.templateId
                    onPicked: id => wizard.room.templateId = id
                }
                DetailsPage {
                    id: details

                    anchors.fill: parent
                    room: wizard.room
                }
                ToolsPage {
                    id: tools

                    anchors.fill: parent
                    room: wizard.room
                }
                ReviewPage {
                    id: review

                    anchors.fill: parent
                    room: wizard.room
                }
            }
        }
        WizardFoot {
            id: foot

            x: steps.width
            y: parent.height - height
            width: parent.width - x
            room: wizard.room
        }
        IconButton {
            objectName: "wizardClose"
            x: parent.width - width - 20
            y: 18
            iconName: "close"
            text: qsTr("Close")
            onClicked: wizard.room.requestClose()
        }
    }

    AskDialog {
        objectName: "discardDialog"
        question: qsTr("Drop what you typed?")
        body: qsTr("Nothing has been created yet. What you filled in is not kept.")
        drop: qsTr("Drop it")
        keepButton.objectName: "keepEditing"
        dropButton.objectName: "discardDraft"
        visible: wizard.room.asking
        onKept: wizard.room.keepEditing()
        onDropped: wizard.room.close()
        onAboutToHide: if (wizard.room.asking) wizard.room.keepEditing()
    }
}
