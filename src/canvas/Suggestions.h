#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The questions offered in an empty conversation.
namespace kiv::canvas::Suggestions {

/// By the names of what is selected; an agent takes precedence over a project.
QStringList chips(const std::optional<QString> &project, const std::optional<QString> &agent);

} // namespace kiv::canvas::Suggestions
