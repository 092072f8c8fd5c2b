#pragma once

#include <QStringView>

#include <optional>

namespace kiv::canvas {

/// Finds the link targets of a text in order, in one pass over it. It is the linear equivalent of
///
///   \[[^\]]*\]\((https?://[^\s)]+|/[^\s)]+)\)
///   |(?:^|\s)(https?://(?:[a-z0-9.-]+)/(?:project|agent-profile|dashboard|team|p)/[^\s<)]+)
///
/// without case and with ^ at every line: a mark-down link to an address or a path, or a bare
/// address of a platform page. As a pattern it would scan to the end from every opening bracket.
class LinkScanner {
public:
    explicit LinkScanner(QStringView text) : m_text(text) {}
    std::optional<QStringView> next();

private:
    std::optional<QStringView> markdownTarget(qsizetype open);
    std::optional<QStringView> bareTarget(qsizetype start);
    qsizetype bracketFrom(qsizetype from);
    qsizetype stopFrom(qsizetype from);

    QStringView m_text;
    qsizetype m_at = 0;
    // The last positions found; they hold for every start up to them.
    qsizetype m_bracket = -1;
    qsizetype m_stop = -1;
};

} // namespace kiv::canvas
