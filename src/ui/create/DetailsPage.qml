import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Create
import Kiv.Store
import Kiv.Tokens

// Name, and the role of an agent or the brief of a project.
FocusScope {
    id: page

    required property CreateRoom room
    readonly property bool agent: room.kind === Store.CreateKind.Agent
    readonly property string head: agent ? qsTr("Who is it?") : qsTr("What is it about?")
    readonly property string sub: agent ? qsTr("The name is what you call it, the role is what it does.")
        : qsTr("Every agent in the project reads the brief.")

    visible: room.step === Store.CreateStep.Details
    onVisibleChanged: if (visible) name.field.forceActiveFocus(Qt.OtherFocusReason)

    Flickable {
        id: scroller

        anchors.fill: parent
        // Room for the ring of a field.
        anchors.leftMargin: -4
        anchors.rightMargin: -4
        contentHeight: page.agent ? lines.height : 0
        clip: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration

        T.ScrollBar.vertical: ScrollBar {}

        Column {
            id: lines

            x: 4
            width: scroller.width - 8
            spacing: 18

            Column {
                width: parent.width

                Field {
                    id: name

                    width: parent.width
                    label: qsTr("Name")
                    field.objectName: "createName"
                    field.focus: true
                    field.text: page.room.name
                    field.failed: page.room.nameError !== ""
                    field.onTextEdited: page.room.name = field.text
                }
                FieldNote {
                    objectName: "nameNote"
                    width: parent.width
                    error: page.room.nameError
                    count: page.room.nameCount
                }
            }
            Column {
                width: parent.width
                visible: page.agent

                Field {
                    id: role

                    width: parent.width
                    label: qsTr("Role")
                    field.objectName: "createRole"
                    field.text: page.agent ? page.room.text : ""
                    field.failed: page.room.textError !== ""
                    field.onTextEdited: page.room.text = field.text
                }
                FieldNote {
                    objectName: "roleNote"
                    width: parent.width
                    error: page.room.textError
                    count: page.room.textCount
                }
            }
            ParentChoice {
                width: parent.width
                visible: page.agent
                choices: page.room.parents
                chosen: page.room.parentId
                chosenTitle: page.room.parentName
                onPicked: id => page.room.parentId = id
            }
        }
    }
    FocusInSight {
        area: scroller
    }
    BriefField {
        id: brief

        y: lines.height + 18
        width: parent.width
        height: parent.height - y - note.height - 8
        visible: !page.agent
        label: qsTr("Brief")
        failed: page.room.textError !== ""
        area.objectName: "createBrief"
        area.text: page.agent ? "" : page.room.text
        area.onTextChanged: if (!page.agent) page.room.text = area.text
    }
    FieldNote {
        id: note

        objectName: "briefNote"
        anchors.top: brief.bottom
        width: parent.width
        visible: !page.agent
        error: page.room.textError
        count: page.room.textCount
    }
}
