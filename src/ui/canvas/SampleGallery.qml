pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// What somebody sees who is not signed in: a scene of made-up figures, and a way to the others.
FocusScope {
    focus: true

    Samples {
        id: samples
    }
    Chip {
        id: chip

        x: 24
        y: 16 + (36 - height) / 2
        tone: Chip.Accent
        text: qsTr("Sample")
    }
    Label {
        id: note

        anchors.left: chip.right
        anchors.leftMargin: 10
        anchors.right: tabs.left
        anchors.rightMargin: 16
        anchors.verticalCenter: chip.verticalCenter
        style: Tokens.type.small
        color: Tokens.t2
        text: qsTr("Not your data")
    }
    ListView {
        id: tabs

        objectName: "sampleTabs"
        x: parent.width - 24 - width
        y: 16
        width: Math.min(contentWidth, parent.width - 74 - chip.width - note.implicitWidth)
        height: 36
        orientation: ListView.Horizontal
        clip: contentWidth > width
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration
        highlightMoveDuration: 0
        currentIndex: samples.current
        keyNavigationEnabled: false
        model: samples.arts
        delegate: SampleTab {
            samples: samples
        }
        Accessible.role: Accessible.PageTabList
        Accessible.name: qsTr("Samples")
        Keys.onLeftPressed: samples.current -= 1
        Keys.onRightPressed: samples.current += 1
    }
    Sheet {
        objectName: "sampleSheet"
        anchors.fill: parent
        anchors.margins: 24
        anchors.topMargin: 64
        focus: true
        scene: samples.scene
        time: ""
        linked: false
        animated: true
        asks: false
    }
}
