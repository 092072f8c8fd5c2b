#pragma once

#include "store/ChatRoom.h"

#include <QPointer>
#include <QQuickItem>

namespace kiv::ui {

/// Tells a screen reader of every answer once it is complete: not piece by piece, and not again
/// when an answer that had come to rest goes on. An alert without anything to see, which comes and
/// goes.
class AnswerNews : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kiv::store::ChatRoom *chat READ chat WRITE setChat NOTIFY chatChanged REQUIRED)
    /// Who answers.
    Q_PROPERTY(QString name MEMBER m_name NOTIFY nameChanged REQUIRED)
    /// What is told; empty when there is nothing new.
    Q_PROPERTY(QString words READ words NOTIFY wordsChanged)
public:
    explicit AnswerNews(QQuickItem *parent = nullptr);

    store::ChatRoom *chat() const { return m_chat; }
    void setChat(store::ChatRoom *chat);
    QString words() const { return m_words; }

Q_SIGNALS:
    void chatChanged();
    void nameChanged();
    void wordsChanged();

private:
    void tell(const QUuid &answer);

    QPointer<store::ChatRoom> m_chat;
    QString m_name;
    QString m_words;
    QUuid m_told;
};

} // namespace kiv::ui
