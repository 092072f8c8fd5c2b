import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// Signing in, and making an account. What was typed stays through errors and through the switch
// between the two.
Dialog {
    id: sheet

    required property AppStore store

    readonly property SessionRoom session: store.session
    readonly property AppearanceRoom appearance: store.appearance
    readonly property bool signup: session.authSheet === Store.AuthSheetMode.Signup

    /// To where there is something to write.
    function writeOn(reason: int) {
        (email.field.text === "" ? email : password).field.forceActiveFocus(reason)
    }

    function submit() {
        if (!session.busy)
            session.submitAuth(email.field.text, password.field.text, signup)
    }

    width: Tokens.fit(424)
    visible: session.authSheet !== Store.AuthSheetMode.Closed
    onAboutToShow: writeOn(Qt.PopupFocusReason)
    onAboutToHide: if (session.authSheet !== Store.AuthSheetMode.Closed) session.closeAuthSheet()
    onClosed: {
        password.shown = false
        if (store.scope.auth === Store.AuthPhase.SignedIn) {
            password.field.clear()
            store.layout.focusAsk()
        }
    }

    contentItem: Item {
        implicitHeight: form.height
    }

    Column {
        id: form

        width: sheet.availableWidth
        spacing: 18

        Mark {
            size: 44
            thinking: sheet.session.busy
        }
        Column {
            spacing: 4

            Label {
                style: Tokens.type.title
                text: sheet.signup ? qsTr("Create your account") : qsTr("Sign in to KIV")
                Accessible.role: Accessible.Heading
            }
            Label {
                color: Tokens.t2
                text: sheet.signup ? qsTr("Your first project is a question away.") : qsTr("Your projects and agents are waiting.")
            }
        }
        Field {
            id: email

            width: parent.width
            label: qsTr("Email")
            field.objectName: "emailField"
            field.enabled: !sheet.session.busy
            field.failed: sheet.session.authError !== "" && sheet.session.errorField === Store.AuthField.Email
            field.inputMethodHints: Qt.ImhEmailCharactersOnly | Qt.ImhNoAutoUppercase
            field.onAccepted: sheet.submit()
        }
        PasswordEntry {
            id: password

            width: parent.width
            label: qsTr("Password")
            field.objectName: "passwordField"
            field.enabled: !sheet.session.busy
            field.failed: sheet.session.authError !== "" && sheet.session.errorField === Store.AuthField.Password
            field.onAccepted: sheet.submit()
        }
        Row {
            visible: sheet.session.authError !== ""
            spacing: 8
            Accessible.role: Accessible.AlertMessage
            Accessible.name: sheet.session.authError

            Icon {
                name: "alert"
                size: 16
                color: Tokens.dangerText
            }
            Label {
                objectName: "authError"
                width: form.width - 24
                style: Tokens.type.caption
                color: Tokens.dangerText
                wrapMode: Text.Wrap
                text: sheet.session.authError
            }
        }
        Column {
            width: parent.width
            spacing: 8

            Button {
                objectName: "submitAuth"
                width: parent.width
                kind: Button.Main
                size: Button.Large
                busy: sheet.session.busy
                text: sheet.signup ? qsTr("Create the account") : qsTr("Sign in")
                onClicked: sheet.submit()
            }
            Button {
                objectName: "trySample"
                width: parent.width
                visible: sheet.session.sampleOffered && !sheet.signup
                kind: Button.Quiet
                size: Button.Large
                enabled: !sheet.session.busy
                labelColor: Tokens.t2
                text: qsTr("Try the sample workspace")
                onClicked: sheet.session.trySample()
            }
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 4

            Label {
                style: Tokens.type.small
                color: Tokens.t2
                text: sheet.signup ? qsTr("Already have an account?") : qsTr("New here?")
            }
            TextLink {
                objectName: "switchAuthMode"
                enabled: !sheet.session.busy
                style: Tokens.type.smallMedium
                text: sheet.signup ? qsTr("Sign in") : qsTr("Create an account")
                onClicked: {
                    sheet.session.openAuthSheet(sheet.signup ? Store.AuthSheetMode.Login : Store.AuthSheetMode.Signup)
                    sheet.writeOn(Qt.OtherFocusReason)
                }
            }
        }
    }
    TextLink {
        objectName: "switchLanguage"
        x: close.x - width - 8
        anchors.verticalCenter: close.verticalCenter
        style: Tokens.type.small
        color: Tokens.t2
        // A language goes by its own name everywhere.
        text: sheet.appearance.otherLanguage === Store.Language.Russian ? "Русский" : "English"
        onClicked: sheet.appearance.chooseLanguage(sheet.appearance.otherLanguage)
    }
    IconButton {
        id: close

        x: sheet.availableWidth + sheet.rightPadding - width - 14
        y: 14 - sheet.topPadding
        iconName: "close"
        text: qsTr("Close")
        onClicked: sheet.session.closeAuthSheet()
    }
    Connections {
        target: sheet.session

        // To the field that the error is about.
        function onAuthFailed() {
            const field = (sheet.session.errorField === Store.AuthField.Email ? email : password).field
            field.forceActiveFocus(Qt.OtherFocusReason)
        }
    }
}
