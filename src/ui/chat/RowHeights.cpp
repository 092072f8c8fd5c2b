#include "ui/chat/RowHeights.h"

#include <bit>

namespace kiv::ui {

void RowHeights::assign(QList<double> heights) {
    m_heights = std::move(heights);
    sum();
}

void RowHeights::insert(int row, const QList<double> &heights) {
    m_heights = m_heights.first(row) + heights + m_heights.sliced(row);
    sum();
}

void RowHeights::remove(int row, int count) {
    m_heights.remove(row, count);
    sum();
}

void RowHeights::sum() {
    m_sums.fill(0, m_heights.size() + 1);
    for (qsizetype i = 1; i < m_sums.size(); ++i) {
        m_sums[i] += m_heights.at(i - 1);
        const qsizetype above = i + (i & -i);
        if (above < m_sums.size())
            m_sums[above] += m_sums.at(i);
    }
}

void RowHeights::set(int row, double height) {
    const double change = height - m_heights.at(row);
    m_heights[row] = height;
    for (qsizetype i = row + 1; i < m_sums.size(); i += i & -i)
        m_sums[i] += change;
}

double RowHeights::top(int row) const {
    double sum = 0;
    for (qsizetype i = row; i > 0; i -= i & -i)
        sum += m_sums.at(i);
    return sum;
}

int RowHeights::rowAt(double y) const {
    qsizetype row = 0;
    for (auto step = std::bit_floor(static_cast<size_t>(m_heights.size())); step > 0; step /= 2) {
        const qsizetype next = row + static_cast<qsizetype>(step);
        if (next < m_sums.size() && m_sums.at(next) <= y) {
            row = next;
            y -= m_sums.at(next);
        }
    }
    return static_cast<int>(
        std::clamp(row, qsizetype(0), std::max(m_heights.size() - 1, qsizetype(0))));
}

} // namespace kiv::ui
