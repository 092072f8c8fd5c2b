import QtQuick
import QtQuick.Templates as T
import Kiv.Account
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Cuts the square out of a picture that becomes the person's own.
Dialog {
    id: dialog

    required property AccountRoom account

    function begin(file: url) {
        if (crop.open(file, account))
            open()
    }

    width: 376
    padding: 28
    onAboutToShow: stage.forceActiveFocus(Qt.PopupFocusReason)

    contentItem: Item {
        implicitHeight: column.height
    }

    PictureCrop {
        id: crop

        side: stage.width
    }
    Column {
        id: column

        width: dialog.availableWidth
        spacing: 16

        Label {
            style: Tokens.type.heading
            text: qsTr("Your picture")
            Accessible.role: Accessible.Heading
        }
        FocusScope {
            id: stage

            objectName: "cropStage"
            width: parent.width
            height: width
            Accessible.role: Accessible.Graphic
            Accessible.name: qsTr("The part of the picture that is kept. Arrow keys move it, plus and minus change its size.")
            Keys.onPressed: event => {
                event.accepted = true
                if (event.key === Qt.Key_Left)
                    crop.move(8, 0)
                else if (event.key === Qt.Key_Right)
                    crop.move(-8, 0)
                else if (event.key === Qt.Key_Up)
                    crop.move(0, 8)
                else if (event.key === Qt.Key_Down)
                    crop.move(0, -8)
                else if (event.key === Qt.Key_Plus)
                    crop.zoom *= 1.1
                else if (event.key === Qt.Key_Minus)
                    crop.zoom /= 1.1
                else
                    event.accepted = false
            }

            Item {
                anchors.fill: parent
                clip: true

                Image {
                    x: crop.place.x
                    y: crop.place.y
                    width: crop.place.width
                    height: crop.place.height
                    source: crop.source
                    autoTransform: true
                    asynchronous: true
                }
                // What the round frame leaves out is dimmed.
                Rectangle {
                    readonly property int corner: Math.ceil(parent.width * 0.22)

                    anchors.fill: parent
                    anchors.margins: -corner
                    radius: width / 2
                    color: "transparent"
                    border.width: corner
                    border.color: Tokens.scrim
                }
                DragHandler {
                    property vector2d before

                    target: null
                    onActiveChanged: before = Qt.vector2d(0, 0)
                    onTranslationChanged: {
                        crop.move(translation.x - before.x, translation.y - before.y)
                        before = translation
                    }
                }
                WheelHandler {
                    target: null
                    onWheel: event => crop.zoom *= event.angleDelta.y > 0 ? 1.1 : 1 / 1.1
                }
            }
            FocusRing {
                visible: stage.activeFocus
                targetRadius: 0
            }
        }
        T.Slider {
            id: slider

            objectName: "cropZoom"
            width: parent.width
            implicitHeight: 20
            from: 1
            to: crop.largestZoom
            value: crop.zoom
            Accessible.name: qsTr("Size")
            onMoved: crop.zoom = value

            background: Rectangle {
                y: 8
                width: parent.width
                height: 4
                radius: 2
                color: Tokens.sunken
            }
            handle: Rectangle {
                x: slider.visualPosition * (slider.width - width)
                y: 2
                width: 16
                height: 16
                radius: 8
                color: Tokens.accent

                FocusRing {
                    visible: slider.visualFocus
                }
            }
        }
        Row {
            anchors.right: parent.right
            spacing: 10

            Button {
                text: qsTr("Cancel")
                onClicked: dialog.close()
            }
            Button {
                objectName: "usePicture"
                kind: Button.Main
                text: qsTr("Use this picture")
                onClicked: {
                    dialog.close()
                    crop.upload(dialog.account)
                }
            }
        }
    }
}
