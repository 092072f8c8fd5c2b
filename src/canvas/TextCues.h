#pragma once

#include "canvas/ViewSpec.h"

#include <QString>
#include <QStringView>

#include <optional>

/// What short texts of an answer hint at, beside their figures.
namespace kiv::canvas::CanvasEngine {

/// unknown, blocked, done, doing or todo, by the words that a text contains.
std::optional<QString> statusWord(QStringView text);

/// The first of ◆ $ € ₽ % that the text contains; empty when it contains none.
QString unitToken(QStringView text);

/// The text without inline mark-up, its white space collapsed: what is read of a label.
QString stripInline(QStringView text);

/// Whether the values are temperatures: a figure with °C or °F stands in title, unit or points.
bool looksTemp(const ViewSpec &spec);

/// Whether most points are named after days of the week.
bool looksDays(const ViewSpec &spec);

} // namespace kiv::canvas::CanvasEngine
