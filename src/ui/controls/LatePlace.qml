import QtQuick

// The place of something that seldom shows: it is made when it is wanted for the first time, and stays.
FocusScope {
    id: place

    property bool wanted: false
    required property Component content
    property Item made: null

    implicitWidth: made?.implicitWidth ?? 0
    implicitHeight: made?.implicitHeight ?? 0
    visible: wanted
    onWantedChanged: if (wanted && !made) made = content.createObject(place) as Item
}
