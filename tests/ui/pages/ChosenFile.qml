import QtQuick

// In the file dialog's place: takes the name that is offered.
QtObject {
    property var parentWindow
    property string title
    property list<string> nameFilters
    property string defaultSuffix
    property url currentFolder
    property url selectedFile

    signal chosen(file: url)

    function open() {
        chosen(selectedFile)
    }
}
