import QtQuick
import Kiv.Canvas

// The samples, made for somebody who is not signed in.
Loader {
    focus: active
    sourceComponent: SampleGallery {
        focus: true
    }
}
