#include "ui/canvas/StackLayout.h"

#include "canvas/ChartRows.h"
#include "canvas/SceneFigures.h"

#include <algorithm>
#include <numeric>

namespace kiv::ui {

namespace {

constexpr double gap = 3;
constexpr double leastPiece = 6;

} // namespace

void StackLayout::setParts(const QVariant &parts) {
    if (m_parts == parts)
        return;
    setRedrawn(!m_pieces.isEmpty());
    m_parts = parts;
    m_all.clear();
    for (const canvas::Seg &part : parts.value<QList<canvas::Seg>>())
        m_all.append({{.label = part.label, .color = part.bg}, part.w});
    for (const canvas::UeRow &part : parts.value<QList<canvas::UeRow>>())
        m_all.append({{.label = part.name, .color = part.color}, part.w});
    const double all = whole(m_all);
    for (Part &part : m_all)
        part.piece.share = all > 0 ? canvas::shareText(part.share, all) : QString();
    Q_EMIT partsChanged();
    layOut();
}

void StackLayout::setWidth(double width) {
    if (std::exchange(m_width, width) == width)
        return;
    setRedrawn(false);
    Q_EMIT widthChanged();
    layOut();
}

void StackLayout::setRedrawn(bool redrawn) {
    if (std::exchange(m_redrawn, redrawn) != redrawn)
        Q_EMIT redrawnChanged();
}

double StackLayout::whole(const QList<Part> &parts) {
    return std::accumulate(parts.begin(), parts.end(), 0.0,
                           [](double sum, const Part &part) { return sum + part.share; });
}

/// Parts below the least share become one.
QList<StackLayout::Part> StackLayout::gathered(const QList<Part> &parts, double least) {
    QList<Part> wide;
    Part rest;
    for (const Part &part : parts) {
        if (part.share >= least) {
            wide.append(part);
        } else {
            rest.share += part.share;
            ++rest.piece.others;
        }
    }
    if (rest.piece.others == 0)
        return parts;
    rest.piece.share = canvas::shareText(rest.share, whole(parts));
    return wide << rest;
}

void StackLayout::layOut() {
    m_pieces.clear();
    const double all = whole(m_all);
    if (all > 0 && m_width > 0) {
        // At their least widths, pieces and gaps may take half of the bar.
        const bool crowded = static_cast<double>(m_all.size()) * (gap + leastPiece) > m_width / 2;
        // What has a piece of its own is wide enough for it and its gap, beside the piece of all
        // others.
        const double least = (leastPiece + gap) / std::max(1.0, m_width - leastPiece);
        const QList<Part> parts = crowded ? gathered(m_all, least * all) : m_all;
        const auto count = static_cast<double>(parts.size());
        const double room = m_width - gap * (count - 1);
        const auto extra = [&](const Part &part) {
            return std::max(0.0, part.share / all * room - leastPiece);
        };
        // What narrow pieces get beyond their share is taken from what others have above the least.
        double extras = 0;
        for (const Part &part : parts)
            extras += extra(part);
        const double scale = extras > 0 ? (room - leastPiece * count) / extras : 0;
        double x = 0;
        for (const Part &part : parts) {
            StackPiece piece = part.piece;
            piece.x = x;
            piece.width = leastPiece + extra(part) * scale;
            m_pieces.append(piece);
            x += piece.width + gap;
        }
    }
    Q_EMIT piecesChanged();
}

} // namespace kiv::ui
