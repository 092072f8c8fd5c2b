#pragma once

#include "store/ChatRoom.h"

#include <QPointer>
#include <QtQmlIntegration>

namespace kiv::ui {

/// What a screen reader is told of answers: of each once it is complete, not piece by piece, and
/// not again when an answer that had come to rest goes on.
class AnswerNews : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kiv::store::ChatRoom *chat READ chat WRITE setChat NOTIFY chatChanged REQUIRED)
    /// Who answers.
    Q_PROPERTY(QString name MEMBER m_name NOTIFY nameChanged REQUIRED)
public:
    using QObject::QObject;

    store::ChatRoom *chat() const { return m_chat; }
    void setChat(store::ChatRoom *chat);

Q_SIGNALS:
    void chatChanged();
    void nameChanged();
    void told(const QString &words);

private:
    void tell(const QUuid &answer);

    QPointer<store::ChatRoom> m_chat;
    QString m_name;
    QUuid m_told;
};

} // namespace kiv::ui
