import QtQuick
import Kiv.Tokens

// The ground of a button: one colour goes over into the next.
Rectangle {
    Behavior on color {
        enabled: !Tokens.reducedMotion

        ColorAnimation { duration: Tokens.instant }
    }
}
