import QtQuick

// The samples, made for somebody who is not signed in.
Loader {
    focus: active
    source: "SampleGallery.qml"
}
