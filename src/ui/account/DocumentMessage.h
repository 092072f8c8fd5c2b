#pragma once

#include "store/MessageModel.h"

#include <QtQmlIntegration>

namespace kiv::ui {

/// A text as the one message of a conversation, for the views of messages.
class DocumentMessage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged REQUIRED)
    Q_PROPERTY(QObject *messages READ messages CONSTANT)
public:
    using QObject::QObject;

    QString text() const { return m_text; }
    void setText(const QString &text);
    QObject *messages() { return &m_messages; }

Q_SIGNALS:
    void textChanged();

private:
    QString m_text;
    store::MessageModel m_messages;
};

} // namespace kiv::ui
