#pragma once

#include "ui/canvas/SceneLayout.h"

namespace kiv::ui {

/// A column of a comparison after the name column. Lengths are device-independent pixels.
struct CompareColumn {
    Q_GADGET
    QML_VALUE_TYPE(compareColumn)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(int cell MEMBER cell)
    Q_PROPERTY(double x MEMBER x)
    Q_PROPERTY(double width MEMBER width)
    Q_PROPERTY(bool numeric MEMBER numeric)
public:
    QString title;
    int cell = 0;         ///< index into the cells of a row
    double x = 0;         ///< of the words, from the left edge of the cells
    double width = 0;     ///< of the words
    bool numeric = false; ///< all filled cells are figures: set right
    friend bool operator==(const CompareColumn &, const CompareColumn &) = default;
};

/// How the columns of a comparison share a width: figures always get the room that they need, text
/// columns give way, and what still does not fit scrolls sideways beside the name column.
/// Columns that are only padding are left out.
class CompareColumns : public kiv::ui::SceneLayout {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString nameTitle READ nameTitle NOTIFY changed)
    Q_PROPERTY(double nameWidth READ nameWidth NOTIFY changed)
    Q_PROPERTY(double cellsWidth READ cellsWidth NOTIFY changed)
    Q_PROPERTY(bool cut READ isCut NOTIFY changed)
    Q_PROPERTY(QList<kiv::ui::CompareColumn> columns READ columns NOTIFY changed)
public:
    using SceneLayout::SceneLayout;

    QString nameTitle() const { return scene().cpCols.value(0); }
    /// Of the words of the names; the cells begin behind it.
    double nameWidth() const { return m_nameWidth; }
    /// All columns together; more than what is left beside the name column when they scroll.
    double cellsWidth() const { return m_cellsWidth; }
    /// Whether words are cut short, or columns out of sight.
    bool isCut() const { return m_isCut; }
    QList<CompareColumn> columns() const { return m_columns; }

    /// A row as a screen reader says it: the name, then each filled cell after its column.
    Q_INVOKABLE QString spoken(const kiv::canvas::CpRow &row) const;

protected:
    void measure() override;
    void layOut() override;

private:
    QList<CompareColumn> m_columns;
    QList<double> m_natural; ///< the width that the words of each column would like to have
    double m_naturalName = 0;
    double m_nameWidth = 0;
    double m_cellsWidth = 0;
    bool m_isLong = false; ///< some words are longer than a column may be
    bool m_isCut = false;
};

} // namespace kiv::ui
