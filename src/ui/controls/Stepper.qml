import QtQuick
import Kiv.Controls
import Kiv.Tokens

// A figure between two buttons that take it down and up by a step. One stop of the tab key, Left and
// Right step.
FocusScope {
    id: stepper

    /// What the figure is, for people.
    required property string name
    required property int value
    required property int minimumValue
    required property int maximumValue
    required property int stepSize
    /// The figure as it shows.
    required property string text

    signal picked(value: int)

    function step(steps: int) {
        picked(Math.max(minimumValue, Math.min(maximumValue, value + steps * stepSize)))
    }

    implicitWidth: Tokens.fit(112)
    implicitHeight: Tokens.fit(36)
    activeFocusOnTab: true
    Accessible.role: Accessible.SpinBox
    Accessible.name: name + ", " + text
    Accessible.focusable: true
    Accessible.onIncreaseAction: step(1)
    Accessible.onDecreaseAction: step(-1)
    Keys.onLeftPressed: step(-1)
    Keys.onRightPressed: step(1)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End
            || event.key === Qt.Key_Plus || event.key === Qt.Key_Minus
        if (event.key === Qt.Key_Plus || event.key === Qt.Key_Minus)
            stepper.step(event.key === Qt.Key_Plus ? 1 : -1)
        else if (event.accepted)
            stepper.picked(event.key === Qt.Key_Home ? stepper.minimumValue : stepper.maximumValue)
    }

    Rectangle {
        anchors.fill: parent
        radius: Tokens.radiusControl
        color: Tokens.sunken

        FocusRing {
            visible: stepper.activeFocus
        }
    }
    IconButton {
        objectName: "less"
        anchors.verticalCenter: parent.verticalCenter
        x: 2
        size: parent.height - 4
        iconSize: 16
        iconName: "minus"
        focusPolicy: Qt.NoFocus
        enabled: stepper.value > stepper.minimumValue
        text: qsTr("Smaller")
        onClicked: stepper.step(-1)
    }
    Label {
        anchors.centerIn: parent
        style: Tokens.type.smallMedium
        tabular: true
        text: stepper.text
        Accessible.ignored: true
    }
    IconButton {
        objectName: "more"
        anchors.verticalCenter: parent.verticalCenter
        x: parent.width - width - 2
        size: parent.height - 4
        iconSize: 16
        iconName: "plus"
        focusPolicy: Qt.NoFocus
        enabled: stepper.value < stepper.maximumValue
        text: qsTr("Larger")
        onClicked: stepper.step(1)
    }
}
