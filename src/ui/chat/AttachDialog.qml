import QtQuick.Dialogs

// The platform's dialog for several files.
FileDialog {
    objectName: "attachDialog"
    fileMode: FileDialog.OpenFiles
}
