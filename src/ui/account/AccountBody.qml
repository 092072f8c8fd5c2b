import QtQuick
import Kiv.Account
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The account page that is open, or what stands for it until the profile is here.
Item {
    id: body

    required property AppStore store

    readonly property AccountRoom account: store.account
    readonly property bool ready: account.profileLoad === Store.LoadState.Ready

    implicitHeight: ready ? pages.implicitHeight : 360

    PageStack {
        id: pages

        width: parent.width
        visible: body.ready
        store: body.store
    }
    Column {
        width: parent.width
        visible: body.account.profileLoad === Store.LoadState.Loading
        spacing: 16

        Skeleton {
            width: parent.width
            height: 120
            radius: Tokens.radiusSheet
        }
        Skeleton {
            width: parent.width
            height: 224
            radius: Tokens.radiusSheet
        }
    }
    LoadFailure {
        width: parent.width
        visible: body.account.profileLoad === Store.LoadState.Failed
        title: qsTr("Your account could not be loaded")
        reason: body.account.profileError
        onRetryRequested: body.account.loadProfile()
    }
}
