#include "ui/chat/InterimText.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

namespace kiv::ui {

void InterimText::setTarget(QQuickItem *field) {
    if (m_field == field)
        return;
    if (m_field)
        m_field->removeEventFilter(this);
    m_field = field;
    if (field)
        field->installEventFilter(this);
    Q_EMIT changed();
}

void InterimText::setDocument(QQuickTextDocument *document) {
    if (m_document == document)
        return;
    hide();
    m_document = document;
    Q_EMIT changed();
    scheduleShow();
}

void InterimText::setWords(const QString &words) {
    if (m_words == words)
        return;
    m_words = words;
    Q_EMIT changed();
    scheduleShow();
}

void InterimText::setAt(int at) {
    if (m_at == at)
        return;
    m_at = at;
    Q_EMIT changed();
    scheduleShow();
}

void InterimText::setColor(const QColor &color) {
    if (m_color == color)
        return;
    m_color = color;
    Q_EMIT changed();
    scheduleShow();
}

void InterimText::insert(int at, const QString &words) {
    hide();
    QTextCursor edit(m_document->textDocument());
    edit.setPosition(at);
    // A block of its own: the document takes it together neither with what was typed before nor
    // with what was spoken before.
    edit.beginEditBlock();
    edit.insertText(words);
    edit.endEditBlock();
}

bool InterimText::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        m_isPressed = true;
        hide();
        break;
    case QEvent::MouseButtonRelease:
    case QEvent::UngrabMouse:
        m_isPressed = false;
        scheduleShow();
        break;
    case QEvent::KeyPress:
    case QEvent::InputMethod:
        hide();
        scheduleShow();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

/// Once the field is done with what it does now, and before the next frame.
void InterimText::scheduleShow() {
    if (m_isScheduled || (m_words.isEmpty() && m_shownIn.isNull()))
        return;
    m_isScheduled = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isScheduled = false;
            show();
        },
        Qt::QueuedConnection);
}

void InterimText::show() {
    hide();
    if (!m_document || m_isPressed || m_words.isEmpty())
        return;
    QTextDocument *text = m_document->textDocument();
    m_shownIn = QTextCursor(text);
    m_shownIn.setPosition(std::clamp(m_at, 0, text->characterCount() - 1));
    m_shown = m_words;
    setInLayout(m_shownIn.positionInBlock(), m_words);
}

void InterimText::hide() {
    if (m_shownIn.isNull())
        return;
    // An input method may have put its own words there.
    if (m_shownIn.block().layout()->preeditAreaText() == m_shown)
        setInLayout(-1, {});
    m_shownIn = {};
}

void InterimText::setInLayout(int position, const QString &words) {
    QTextLayout *layout = m_shownIn.block().layout();
    QList<QTextLayout::FormatRange> formats;
    if (!words.isEmpty()) {
        QTextLayout::FormatRange range;
        range.start = position;
        range.length = static_cast<int>(words.size());
        range.format.setForeground(m_color);
        formats.append(range);
    }
    // The end of the edit makes the field lay the line out and draw it anew.
    m_shownIn.beginEditBlock();
    layout->setPreeditArea(position, words);
    layout->setFormats(formats);
    m_shownIn.endEditBlock();
}

} // namespace kiv::ui
