#pragma once

#include <QObject>
#include <QString>
#include <QtQmlIntegration/qqmlintegration.h>

namespace kiv::net::KivAPI {
struct PlanInfo;
struct WalletInfo;
} // namespace kiv::net::KivAPI

namespace kiv::store {

/// What the plan allows and how much of it is used, in tokens; what the wallet holds, in credits.
/// Figures that the server leaves out follow from the others, or are negative.
struct AccountBudget {
    Q_GADGET
    QML_VALUE_TYPE(accountBudget)
    Q_PROPERTY(QString plan MEMBER plan)
    Q_PROPERTY(double limit MEMBER limit)
    Q_PROPERTY(double spent MEMBER spent)
    Q_PROPERTY(double left MEMBER left)
    Q_PROPERTY(double balance MEMBER balance)
    Q_PROPERTY(double available MEMBER available)
public:
    static constexpr double unknown = -1;

    QString plan;
    double limit = unknown;
    double spent = unknown;
    double left = unknown;
    double balance = unknown;
    double available = unknown;

    void setPlan(const net::KivAPI::PlanInfo &info);
    void setWallet(const net::KivAPI::WalletInfo &info);

    friend bool operator==(const AccountBudget &, const AccountBudget &) = default;
};

} // namespace kiv::store
