#pragma once

#include "canvas/ViewSpec.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

/// Which of the fourteen arts draws a view.
namespace kiv::canvas::CanvasEngine {

const QStringList &knownArts();

/// The art of a block's kind; a kind that is not in it has none of its own.
const QHash<QString, QString> &kindToArt();

/// The other arts that a kind may be drawn as when the block or the question asks for them. Names
/// outside `knownArts` are intents without an art: they are never chosen.
const QHash<QString, QStringList> &kindAlts();

/// `intent` is that of the question that the answer replies to.
std::optional<QString> artForSpec(const ViewSpec &spec, const std::optional<QString> &intent);

} // namespace kiv::canvas::CanvasEngine
