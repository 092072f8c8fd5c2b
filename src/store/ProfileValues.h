#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

#include <optional>

namespace kiv::net::KivAPI {
struct UserProfile;
}

namespace kiv::store {

/// The fields of a profile by their keys on the wire, without those that only the server writes.
/// A field that the profile leaves out has no value.
using ProfileValues = QHash<QString, std::optional<QVariant>>;
ProfileValues profileValues(const net::KivAPI::UserProfile &profile);

/// The empty value of every field: an empty text, false or an empty list.
QHash<QString, QVariant> emptyProfileValues();

} // namespace kiv::store
