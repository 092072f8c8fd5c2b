import QtQuick

// A field with nothing around it.
TextEdit {
    focus: true
    wrapMode: TextEdit.Wrap
}
