pragma ComponentBehavior: Bound

import QtQuick
import QtQml.Models
import Kiv.Shell

// The keys of the main menu.
Item {
    id: keys

    required property Commands commands

    KeyPrecedence {
        commands: keys.commands
    }
    Instantiator {
        model: keys.commands.bound

        delegate: Shortcut {
            required property menuEntry modelData

            sequences: modelData.sequences
            autoRepeat: false
            context: Qt.ApplicationShortcut
            onActivated: keys.commands.performNumber(modelData.command)
        }
    }
}
