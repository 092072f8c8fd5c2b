#pragma once

#include <QObject>
#include <QProperty>
#include <QtQmlIntegration/qqmlintegration.h>

namespace kiv::store {

/// Talking by voice.
class CallRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(QString callHint READ callHint NOTIFY callHintChanged)
public:
    /// Why no call was started; shown once, then taken back with dismissHint().
    QString callHint() const { return m_callHint; }

    /// The call button.
    Q_INVOKABLE void callAction();
    Q_INVOKABLE void dismissHint() { m_callHint = QString(); }

Q_SIGNALS:
    void callHintChanged();

private:
    Q_OBJECT_BINDABLE_PROPERTY(CallRoom, QString, m_callHint, &CallRoom::callHintChanged)
};

} // namespace kiv::store
