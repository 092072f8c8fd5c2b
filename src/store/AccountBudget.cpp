#include "store/AccountBudget.h"

#include "net/AccountRecords.h"

#include <algorithm>

namespace kiv::store {

void AccountBudget::setPlan(const net::KivAPI::PlanInfo &info) {
    plan = info.name.value_or(info.planKey.value_or(QString()));
    limit = info.tokenLimit.value_or(unknown);
    spent = info.spentTokens.value_or(unknown);
    left = info.tokensLeft.value_or(unknown);
    if (limit < 0)
        return;
    if (spent < 0 && left >= 0)
        spent = std::max(0.0, limit - left);
    if (left < 0 && spent >= 0)
        left = std::max(0.0, limit - spent);
}

void AccountBudget::setWallet(const net::KivAPI::WalletInfo &info) {
    const auto wallet = info.wallet.value_or(net::KivAPI::WalletInfo::Wallet());
    balance = wallet.balanceCredits.value_or(unknown);
    available = wallet.availableCredits.value_or(unknown);
}

} // namespace kiv::store
