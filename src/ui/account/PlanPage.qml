import QtQuick
import Kiv.Account
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// What the plan allows, what of it is used, and what the wallet holds.
Column {
    id: page

    required property AccountRoom account

    readonly property accountBudget budget: account.budget
    readonly property bool ready: account.budgetLoad === Store.LoadState.Ready

    spacing: 16

    AccountBlock {
        width: parent.width
        visible: page.ready
        title: qsTr("Plan")

        SettingRow {
            width: parent.width
            name: page.budget.plan === "" ? qsTr("No plan") : page.budget.plan
            detail: page.budget.limit < 0 ? qsTr("Without a limit of tokens")
                : qsTr("Tokens: %1").arg(page.budget.limit.toLocaleString(Qt.locale(Qt.uiLanguage), "f", 0))
        }
        BudgetBar {
            objectName: "budgetBar"
            width: parent.width
            visible: page.budget.limit > 0
            budget: page.budget
        }
    }
    AccountBlock {
        width: parent.width
        visible: page.ready
        title: qsTr("Wallet")

        Row {
            width: parent.width

            CreditFigure {
                objectName: "walletBalance"
                width: parent.width / 2
                label: qsTr("Balance")
                credits: page.budget.balance
            }
            CreditFigure {
                objectName: "walletAvailable"
                width: parent.width / 2
                label: qsTr("Available credits")
                credits: page.budget.available
            }
        }
    }
    Skeleton {
        width: parent.width
        height: 200
        visible: page.account.budgetLoad === Store.LoadState.Loading
        radius: Tokens.radiusSheet
    }
    LoadFailure {
        width: parent.width
        visible: page.account.budgetLoad === Store.LoadState.Failed
        title: qsTr("Plan and wallet could not be loaded")
        reason: page.account.budgetError
        onRetryRequested: page.account.loadBudget()
    }
}
