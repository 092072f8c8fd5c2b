#pragma once

#include "store/Enums.h"

#include <QDateTime>
#include <QString>
#include <QUuid>
#include <QtQmlIntegration/qqmlintegration.h>

#include <optional>

namespace kiv::store {

/// The answer that a scene was drawn from, and who gave it. Without a name there is none.
struct SceneSource {
    Q_GADGET
    QML_VALUE_TYPE(sceneSource)
    Q_PROPERTY(kiv::store::ScopeKind kind MEMBER kind)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString colorHex MEMBER colorHex)
public:
    ScopeKind kind = ScopeKind::Kiv;
    QString name;
    QString colorHex; ///< empty for KIV
    QUuid message;
    std::optional<QDateTime> at; ///< when the message was sent
    friend bool operator==(const SceneSource &, const SceneSource &) = default;
};

} // namespace kiv::store
