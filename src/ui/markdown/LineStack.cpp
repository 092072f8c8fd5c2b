#include "ui/markdown/LineStack.h"

#include <QQuickWindow>
#include <QSGRectangleNode>

namespace kiv::ui {

LineStack::LineStack(QQuickItem *parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
}

void LineStack::setTops(const QList<double> &tops) {
    if (m_tops == tops)
        return;
    m_tops = tops;
    Q_EMIT topsChanged();
    update();
}

void LineStack::setColor(const QColor &color) {
    if (m_color == color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
    update();
}

void LineStack::geometryChange(const QRectF &now, const QRectF &before) {
    QQuickItem::geometryChange(now, before);
    update();
}

QSGNode *LineStack::updatePaintNode(QSGNode *node, UpdatePaintNodeData *) {
    if (!node)
        node = new QSGNode;
    const int count = std::max(0, static_cast<int>(m_tops.size()) - 1);
    while (node->childCount() > count) {
        QSGNode *last = node->lastChild();
        node->removeChildNode(last);
        delete last;
    }
    while (node->childCount() < count)
        node->appendChildNode(window()->createRectangleNode());
    QSGNode *child = node->firstChild();
    for (int i = 0; i < count; ++i, child = child->nextSibling()) {
        auto *line = static_cast<QSGRectangleNode *>(child);
        line->setRect(0, m_tops.at(i + 1), width(), 1);
        line->setColor(m_color);
    }
    return node;
}

} // namespace kiv::ui
