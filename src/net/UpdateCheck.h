#pragma once

#include "base/AppVersion.h"
#include "base/Cancel.h"

#include <QCoroTask>
#include <QUrl>

#include <optional>

namespace kiv::net {

class APIClient;

/// A release that is newer than the running program.
struct UpdateInfo {
    QString version;
    QUrl page; ///< where it can be had

    friend bool operator==(const UpdateInfo &, const UpdateInfo &) = default;
};

/// Looks into the feed of releases beside the downloads page. Nothing is installed.
namespace UpdateCheck {

QUrl feedURL(const QUrl &baseUrl);
QUrl downloadsPage(const QUrl &baseUrl);

/// The newest release when it is newer than `running`; nothing for a development build, and
/// nothing whenever the feed cannot be read. Throws Cancelled alone. The client outlives the call.
QCoro::Task<std::optional<UpdateInfo>> latest(APIClient *client, AppVersion running, Cancel cancel);

} // namespace UpdateCheck

} // namespace kiv::net
