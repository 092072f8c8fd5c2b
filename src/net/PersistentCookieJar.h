#pragma once

#include "net/SessionVault.h"

#include <QNetworkCookieJar>

namespace kiv::net {

/// The session's credentials: every cookie the backend sets, kept across restarts in a vault. A
/// cookie goes back to exactly the host that set it, whatever its Domain says, and to all of that
/// host unless it names a path. A file that cannot be read counts as empty and is set aside.
class PersistentCookieJar : public QNetworkCookieJar {
    Q_OBJECT
public:
    /// `file` is the vault's file; its folder is made (for the owner alone) when it is missing.
    /// Clock and `secrets` are the vault's too.
    explicit PersistentCookieJar(QString file, Clock *clock = nullptr,
                                 SecretStore *secrets = nullptr, QObject *parent = nullptr);
    ~PersistentCookieJar() override;

    QList<QNetworkCookie> cookiesForUrl(const QUrl &url) const override;
    bool setCookiesFromUrl(const QList<QNetworkCookie> &cookies, const QUrl &url) override;

    /// Who is signed in cannot be told before settled(): the key chain has not answered yet.
    bool isWaiting() const { return m_vault.isWaiting(); }

    /// Forgets everything, on disk too, before it returns.
    void clear();
    /// Saves at once what there is.
    void save();
    /// Where a damaged file has gone; empty when there was none.
    const QString &setAside() const { return m_vault.setAside(); }

Q_SIGNALS:
    void settled();
    /// The key chain had cookies that were not known here, perhaps long after settled().
    void joined();
    /// The session has been written to its file, or why it has not.
    void written(const QString &failure);

private:
    void join(const QJsonArray &found);
    void scheduleSave();

    SessionVault m_vault;
    bool m_savePending = false;
};

} // namespace kiv::net
