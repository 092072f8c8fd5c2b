#pragma once

#include <QList>

namespace kiv::ui {

/// The heights of a long column of rows, with the place of any row and the row at any place found
/// in logarithmic time.
class RowHeights {
public:
    int count() const { return static_cast<int>(m_heights.size()); }
    double height(int row) const { return m_heights.at(row); }
    void set(int row, double height);
    void insert(int row, const QList<double> &heights);
    void remove(int row, int count);
    void assign(QList<double> heights);

    /// Where a row begins; for the count, where the last one ends.
    double top(int row) const;
    double total() const { return top(count()); }
    /// The row at `y`: the first for what is above all, the last for what is below.
    int rowAt(double y) const;

private:
    void sum();

    QList<double> m_heights;
    /// A Fenwick tree: entry i holds the sum of as many heights before it as its lowest bit says.
    QList<double> m_sums;
};

} // namespace kiv::ui
