pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Controls
import Kiv.Tokens

// The rail until it is known who is signed in: places of projects.
Column {
    padding: 12
    spacing: 2

    Item {
        width: 1
        height: 28

        Label {
            x: 10
            anchors.verticalCenter: parent.verticalCenter
            style: Tokens.type.captionStrong
            color: Tokens.t3
            text: qsTr("Projects")
        }
    }
    Repeater {
        model: [150, 118, 136, 104]

        Item {
            id: place

            required property int modelData

            width: 200
            height: 36

            Skeleton {
                x: 10
                y: 6
                width: 24
                height: 24
                radius: 7
            }
            Skeleton {
                x: 44
                y: 13
                width: place.modelData
                height: 10
            }
        }
    }
}
