#pragma once

#include <QMap>
#include <QObject>
#include <QUrl>
#include <QtQmlIntegration/qqmlintegration.h>

namespace kiv::store {

/// What the disk does not take, and what on it was found damaged: what the person has to know of
/// the files that keep their things.
class StorageRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(QString trouble READ trouble NOTIFY troubleChanged)
    Q_PROPERTY(QString damage READ damage NOTIFY damageChanged)
    Q_PROPERTY(QUrl damageFolder READ damageFolder NOTIFY damageChanged)
public:
    /// What is kept, what matters most first.
    enum class Kept { Typed, Workspace, Session, Settings };

    using QObject::QObject;

    /// What cannot be saved now, and why; empty when everything is. Of several what matters most.
    QString trouble() const;
    /// What could not be read and has been set aside; empty when there is nothing, or when the
    /// person has seen it.
    QString damage() const;
    /// Where the damaged files are.
    QUrl damageFolder() const { return m_damageFolder; }

    /// Tries to save again.
    Q_INVOKABLE void retry() { Q_EMIT retryRequested(); }
    /// The person has seen what is damaged.
    Q_INVOKABLE void dismissDamage();

    /// Why `kept` cannot be saved; nothing when it is saved again.
    void reportTrouble(Kept kept, const QString &why);
    /// `kept` was damaged and has gone to this path; nothing to tell for an empty one.
    void reportDamage(Kept kept, const QString &path);
    /// The language has changed.
    void retranslate();

Q_SIGNALS:
    void troubleChanged();
    void damageChanged();
    void retryRequested();

private:
    QMap<Kept, QString> m_troubles;
    QList<Kept> m_damaged;
    QUrl m_damageFolder;
};

} // namespace kiv::store
