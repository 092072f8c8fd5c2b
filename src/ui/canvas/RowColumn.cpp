#include "ui/canvas/RowColumn.h"

#include <QFontMetricsF>
#include <QMetaProperty>

#include <algorithm>
#include <cmath>

namespace kiv::ui {

void RowColumn::setRows(const QVariant &rows) {
    if (m_rows == rows)
        return;
    m_rows = rows;
    Q_EMIT inputChanged();
    addUp();
    measure();
}

void RowColumn::setField(const QString &field) {
    if (std::exchange(m_field, field) == field)
        return;
    Q_EMIT inputChanged();
    addUp();
    measure();
}

void RowColumn::setFont(const QFont &font) {
    if (std::exchange(m_font, font) == font)
        return;
    Q_EMIT inputChanged();
    measure();
}

QVariantList RowColumn::values() const {
    QVariantList values;
    const auto rows = m_rows.value<QVariantList>();
    for (const QVariant &row : rows) {
        const QMetaObject *fields = row.metaType().metaObject();
        const int place = fields ? fields->indexOfProperty(m_field.toLatin1()) : -1;
        if (place >= 0)
            values.append(fields->property(place).readOnGadget(row.constData()));
    }
    return values;
}

void RowColumn::addUp() {
    m_lowest = m_highest = m_sum = 0;
    bool first = true;
    const QVariantList figures = values();
    for (const QVariant &value : figures) {
        const double figure = value.toDouble();
        m_lowest = first ? figure : std::min(m_lowest, figure);
        m_highest = first ? figure : std::max(m_highest, figure);
        m_sum += figure;
        first = false;
    }
    Q_EMIT figuresChanged();
}

void RowColumn::measure() {
    const QFontMetricsF words(m_font);
    double widest = 0;
    const QVariantList texts = values();
    for (const QVariant &text : texts)
        widest = std::max(widest, words.horizontalAdvance(text.toString()));
    m_widest = std::ceil(widest);
    Q_EMIT widestChanged();
}

} // namespace kiv::ui
