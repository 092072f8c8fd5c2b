#include "ui/chat/LineSpacing.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace kiv::ui {

void LineSpacing::setDocument(QQuickTextDocument *document) {
    if (m_document == document)
        return;
    if (m_document)
        m_document->textDocument()->disconnect(this);
    m_document = document;
    if (document)
        connect(document->textDocument(), &QTextDocument::contentsChange, this,
                &LineSpacing::apply);
    Q_EMIT documentChanged();
    apply();
}

void LineSpacing::setLineHeight(double lineHeight) {
    if (std::exchange(m_lineHeight, lineHeight) == lineHeight)
        return;
    Q_EMIT lineHeightChanged();
    apply();
}

void LineSpacing::apply() {
    if (!m_document || m_lineHeight <= 0 || m_applying)
        return;
    m_applying = true;
    QTextBlockFormat spacing;
    spacing.setLineHeight(m_lineHeight, QTextBlockFormat::FixedHeight);
    QTextDocument *text = m_document->textDocument();
    for (QTextBlock block = text->begin(); block.isValid(); block = block.next()) {
        if (qFuzzyCompare(block.blockFormat().lineHeight() + 1, m_lineHeight + 1))
            continue;
        // Part of the edit that it follows, so that one undo takes both back.
        QTextCursor cursor(block);
        cursor.joinPreviousEditBlock();
        cursor.mergeBlockFormat(spacing);
        cursor.endEditBlock();
    }
    m_applying = false;
}

} // namespace kiv::ui
