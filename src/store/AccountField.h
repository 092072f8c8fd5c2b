#pragma once

#include "base/Work.h"
#include "store/FieldDraft.h"

#include <QObject>
#include <QStringList>
#include <QtQmlIntegration/qqmlintegration.h>

namespace kiv::net {
class APIClient;
}

namespace kiv::store {

/// One field of the account profile: a text, a flag or a list of texts. It is saved by itself, and
/// one save after another, so that no edit overwrites another one.
class AccountField : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the account")
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(bool on READ isOn NOTIFY changed)
    Q_PROPERTY(QStringList entries READ entries NOTIFY changed)
    Q_PROPERTY(kiv::store::SaveState state READ state NOTIFY changed)
    /// Why the last save failed; empty unless it did.
    Q_PROPERTY(QString error READ error NOTIFY changed)
public:
    /// `key` is the profile's key on the wire. The client outlives the field.
    AccountField(net::APIClient &client, QString key, QVariant empty, QObject *parent);

    const QString &key() const { return m_key; }
    QString text() const { return m_draft.value().toString(); }
    bool isOn() const { return m_draft.value().toBool(); }
    QStringList entries() const { return m_draft.value().toStringList(); }
    SaveState state() const { return m_draft.state(); }
    QString error() const { return m_error; }
    bool isUnsaved() const { return m_draft.isUnsaved(); }

    /// What is typed, not yet saved.
    Q_INVOKABLE void edit(const QString &text);
    /// Saves what was entered, if it is something new.
    Q_INVOKABLE void commit();
    /// Enters and saves at once.
    Q_INVOKABLE void choose(const QString &text);
    Q_INVOKABLE void turn(bool on);
    /// Blank entries, and those that are there already, are left out.
    Q_INVOKABLE void addEntry(const QString &entry);
    Q_INVOKABLE void removeEntry(const QString &entry);
    Q_INVOKABLE void undo();
    Q_INVOKABLE void discard();

    void load(const QVariant &stored);
    /// The last save is no longer news.
    void settle();
    /// Gives up what is under way and forgets the value.
    void clear();

Q_SIGNALS:
    void changed();
    /// The server keeps the value now.
    void saved();
    void saveFailed();

private:
    void enter(const QVariant &value);
    void send(const std::optional<QVariant> &value);
    QCoro::Task<void> save(QVariant value, Cancel cancel);

    net::APIClient &m_client;
    const QString m_key;
    const QVariant m_empty;
    FieldDraft m_draft;
    QString m_error;
    Work m_save;
};

} // namespace kiv::store
