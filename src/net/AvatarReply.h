#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace kiv::net {

/// The new picture's address in the reply to an avatar upload, wherever that reply put it.
/// Throws DecodingError when a place that is known for it holds something else than a text.
std::optional<QString> avatarAddress(QByteArrayView reply);

} // namespace kiv::net
