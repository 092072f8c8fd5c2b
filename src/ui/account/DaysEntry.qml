pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Account
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The days of the week that the person works on.
Column {
    id: entry

    required property AccountField value

    spacing: 6

    WeekDays {
        id: week

        text: entry.value.text
        language: Qt.uiLanguage
    }
    Label {
        style: Tokens.type.smallMedium
        text: qsTr("Days")
    }
    Item {
        width: parent.width
        height: Tokens.fit(36)

        Row {
            spacing: 6

            Repeater {
                model: week.labels

                DayButton {
                    required property int index
                    required property string modelData

                    objectName: "day" + index
                    text: modelData
                    width: Math.min(implicitWidth, (entry.width - 36) / 7)
                    checked: week.chosen[index] ?? false
                    onClicked: entry.value.choose(week.toggled(index))
                }
            }
        }
        SaveNote {
            anchors.verticalCenter: parent.verticalCenter
            x: parent.width - width
            value: entry.value
            label: qsTr("Days")
        }
    }
    ErrorLine {
        width: parent.width
        text: entry.value.error
    }
}
