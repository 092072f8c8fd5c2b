#include "ui/controls/Announcement.h"

#include <QAccessible>

namespace kiv::ui {

Announcement::Announcement(QQuickItem *parent) : QQuickItem(parent) {
    setSize({1, 1});
    setVisible(false);
}

void Announcement::setWords(const QString &words) {
    if (m_words != words)
        say(words);
}

void Announcement::say(const QString &words) {
    setVisible(false);
    m_words = words;
    Q_EMIT wordsChanged();
    if (isComponentComplete())
        alert();
}

void Announcement::componentComplete() {
    QQuickItem::componentComplete();
    alert();
}

void Announcement::alert() {
    if (m_words.isEmpty())
        return;
    setVisible(true);
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace kiv::ui
