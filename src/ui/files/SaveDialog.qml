import QtQuick.Dialogs

// The platform's dialog for the place and name of a new file.
FileDialog {
    signal chosen(file: url)

    objectName: "saveDialog"
    fileMode: FileDialog.SaveFile
    onAccepted: chosen(selectedFile)
}
