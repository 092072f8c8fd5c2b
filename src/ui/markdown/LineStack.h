#pragma once

#include <QColor>
#include <QQuickItem>

namespace kiv::ui {

/// Hairlines across its width: one above every row but the first.
class LineStack : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// The upper edges of the rows, in device-independent pixels.
    Q_PROPERTY(QList<double> tops READ tops WRITE setTops NOTIFY topsChanged REQUIRED)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged REQUIRED)
public:
    explicit LineStack(QQuickItem *parent = nullptr);

    QList<double> tops() const { return m_tops; }
    void setTops(const QList<double> &tops);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);

Q_SIGNALS:
    void topsChanged();
    void colorChanged();

protected:
    void geometryChange(const QRectF &now, const QRectF &before) override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *) override;

private:
    QList<double> m_tops;
    QColor m_color;
};

} // namespace kiv::ui
