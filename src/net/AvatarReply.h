#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace kiv::net {

/// The new picture's address in the reply to an avatar upload, wherever that reply put it;
/// nothing when there is none to be found.
std::optional<QString> avatarAddress(QByteArrayView reply);

} // namespace kiv::net
