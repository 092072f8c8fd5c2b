#pragma once

#include "base/JVal.h"
#include "canvas/ViewSpec.h"

#include <optional>

/// Reading a view from the JSON that an answer carries.
namespace kiv::canvas::CanvasEngine {

/// Nothing unless `json` is an object that describes something renderable.
std::optional<ViewSpec> spec(const JVal &json, const QString &key);

/// A point from an object, from a plain string ("Ads: $1,200") or from a bare number.
ViewSpec::Point point(const JVal &json);

/// A key figure from an object, from a plain string or from a bare number.
ViewSpec::Item item(const JVal &json);

/// A label and what follows it, such as "Revenue — $1.2M"; `value` is absent without a separator.
struct LabelledText {
    QString label;
    std::optional<QString> value;
};

/// Splits a plain text, its mark-up removed, at the first of " — ", " – " and ": " that it has.
LabelledText splitLabel(QStringView text);

/// Whether there is enough data to draw.
bool renderable(const std::optional<ViewSpec> &spec);

} // namespace kiv::canvas::CanvasEngine
