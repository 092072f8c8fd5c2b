#pragma once

#include "canvas/SceneAdapter.h"
#include "canvas/SpecReader.h"

#include <QByteArray>

#include <optional>

namespace kiv::canvas {

/// The scene of a JSON block, drawn as `art`; nothing when it cannot be.
inline std::optional<SceneOut> drawn(const char *art, const QByteArray &json) {
    const auto spec = CanvasEngine::spec(*JVal::parse(json), QStringLiteral("key"));
    if (!spec)
        return std::nullopt;
    return SceneAdapter::build(*spec, std::nullopt, QString::fromLatin1(art));
}

inline QByteArray block(const char *kind, const QByteArray &points) {
    return QByteArray(R"({"kind":")") + kind + R"(","points":)" + points + "}";
}

} // namespace kiv::canvas
