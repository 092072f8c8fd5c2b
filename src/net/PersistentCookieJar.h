#pragma once

#include <QNetworkCookieJar>

namespace kiv::net {

/// The session's credentials: every cookie the backend sets, kept across restarts in a file that
/// only its owner can read. A cookie goes back to exactly the host that set it, whatever its
/// Domain says, and to all of that host unless it names a path. A file that cannot be read counts
/// as empty.
class PersistentCookieJar : public QNetworkCookieJar {
    Q_OBJECT
public:
    /// `path` is the file; its folder is made (for the owner alone) when it is missing.
    explicit PersistentCookieJar(QString path, QObject *parent = nullptr);
    ~PersistentCookieJar() override;

    QList<QNetworkCookie> cookiesForUrl(const QUrl &url) const override;
    bool setCookiesFromUrl(const QList<QNetworkCookie> &cookies, const QUrl &url) override;

    /// Forgets everything, on disk too, before it returns.
    void clear();

private:
    void load();
    void save();
    void scheduleSave();

    QString m_path;
    bool m_savePending = false;
};

} // namespace kiv::net
