#pragma once

#include "desktop/Notifier.h"

#include <QObject>
#include <QPointer>
#include <QUuid>

class QWindow;

namespace kiv::store {
class AppStore;
}

namespace kiv::app {

/// Tells the person that an answer has come, or will not come, while they do not look at the
/// window, if they want to be told.
class AnswerNotes : public QObject {
    Q_OBJECT
public:
    /// Both outlive this.
    AnswerNotes(store::AppStore &store, desktop::Notifier &notifier);

    void setWindow(QWindow *window);

    /// What a notice shows of an answer: its first words, without mark-up; nothing when it begins
    /// with something else, such as a table.
    static QString firstLine(const QString &answer);

private:
    void tell(const QUuid &answer);
    void show(const QString &text);
    bool isLookedAt() const;

    store::AppStore &m_store;
    desktop::Notifier &m_notifier;
    QPointer<QWindow> m_window;
    QUuid m_told; ///< an answer that goes on after a silence is news once
};

} // namespace kiv::app
