#include "ui/canvas/StackLayout.h"

#include "canvas/ChartRows.h"
#include "canvas/SceneFigures.h"

#include <algorithm>
#include <numeric>

namespace kiv::ui {

namespace {

constexpr double widestGap = 3;
constexpr double leastPiece = 6;

} // namespace

void StackLayout::setParts(const QVariant &parts) {
    if (m_parts == parts)
        return;
    m_parts = parts;
    m_shares.clear();
    m_pieces.clear();
    for (const canvas::Seg &part : parts.value<QList<canvas::Seg>>()) {
        m_shares.append(part.w);
        m_pieces.append({.label = part.label, .color = part.bg});
    }
    for (const canvas::UeRow &part : parts.value<QList<canvas::UeRow>>()) {
        m_shares.append(part.w);
        m_pieces.append({.label = part.name, .color = part.color});
    }
    Q_EMIT partsChanged();
    layOut();
}

void StackLayout::setWidth(double width) {
    if (std::exchange(m_width, width) == width)
        return;
    Q_EMIT widthChanged();
    layOut();
}

void StackLayout::layOut() {
    const auto count = static_cast<double>(m_pieces.size());
    const double whole = std::accumulate(m_shares.begin(), m_shares.end(), 0.0);
    // At the least widths the pieces and their gaps may take half of the bar.
    const double squeeze =
        std::min(1.0, m_width / 2 / std::max(1.0, count * (widestGap + leastPiece)));
    const double gap = widestGap * squeeze;
    const double least = leastPiece * squeeze;
    const double room = std::max(0.0, m_width - gap * (count - 1));
    const auto extra = [&](double share) {
        return whole > 0 ? std::max(0.0, share / whole * room - least) : 0;
    };
    // What narrow pieces get beyond their share is taken from what the others have above the least.
    double extras = 0;
    for (const double share : std::as_const(m_shares))
        extras += extra(share);
    const double scale = extras > 0 ? (room - least * count) / extras : 0;
    double x = 0;
    for (qsizetype i = 0; i < m_pieces.size(); ++i) {
        StackPiece &piece = m_pieces[i];
        piece.x = x;
        piece.width = least + extra(m_shares.at(i)) * scale;
        piece.share = whole > 0 ? canvas::shareText(m_shares.at(i), whole) : QString();
        x += piece.width + gap;
    }
    Q_EMIT piecesChanged();
}

} // namespace kiv::ui
