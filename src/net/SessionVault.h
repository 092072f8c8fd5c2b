#pragma once

#include "base/Clock.h"
#include "base/FileWriter.h"
#include "base/SecretStore.h"

#include <QJsonArray>
#include <QObject>

#include <memory>

namespace kiv::net {

/// Where the session's cookies are kept across restarts: in the desktop's key chain as long as that
/// does what it is asked in time, else in a file that only its owner can read. The file always says
/// which. What was in the file goes to the chain as soon as there is one; what the chain does not
/// take stays in the file. A chain that is locked or stuck costs nobody the session: its entry is
/// left alone, and an answer that comes late is told all the same.
class SessionVault : public QObject {
    Q_OBJECT
public:
    /// What the file says.
    struct Content {
        bool inChain = false;
        QJsonArray cookies;
    };

    /// How long anybody waits for an answer of the key chain.
    static constexpr Clock::Milliseconds patience{4000};

    /// Without a clock and `secrets`, which outlive the vault, there is the file alone.
    explicit SessionVault(QString file, Clock *clock = nullptr, SecretStore *secrets = nullptr);
    ~SessionVault() override;

    /// What the file holds. When it says that the rest is in the key chain, that is asked too. A
    /// file that cannot be read is set aside.
    QJsonArray open();
    /// Where a damaged file has gone; empty when there was none.
    const QString &setAside() const { return m_setAside; }
    /// The key chain may still have cookies where the file has none: to know who is signed in one
    /// must wait for settled(), which comes within `patience`.
    bool isWaiting() const { return m_waiting; }
    /// These are the cookies from now on. The file is written on another thread.
    void keep(const QJsonArray &cookies);
    /// There is no session any more; of the file nothing is left when this returns.
    void forget();

Q_SIGNALS:
    /// What the key chain held; at most once, perhaps long after settled().
    void found(const QJsonArray &cookies);
    void settled();
    /// The file has been written, or why it has not.
    void written(const QString &failure);

private:
    void setAside(Content &content);
    void take(SecretStore::Outcome outcome, const QByteArray &secret);
    void stopWaiting();
    void hand();
    void takeReceipt(SecretStore::Outcome outcome, const QJsonArray &handed);
    void writeFile(bool inChain, const QJsonArray &cookies);
    void removeFile();

    QString m_file;
    FileWriter m_writer;
    QString m_setAside;
    Clock *m_clock;
    SecretStore *m_secrets;
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true); ///< answers outlive the vault
    QJsonArray m_cookies;
    bool m_inChain = false;    ///< the file says so
    bool m_chainRead = false;  ///< nothing is in the chain that is not known here
    bool m_chainWorks = false; ///< it has answered in this run
    bool m_chainGone = false;  ///< it has refused in this run
    bool m_handing = false;    ///< a receipt of the chain is waited for
    bool m_unsafe = false;     ///< the newest cookies are in memory alone
    bool m_waiting = false;
    quint64 m_era = 0; ///< increased when what is under way counts no more
    Clock::Timer m_readTimer;
    Clock::Timer m_handTimer;
};

} // namespace kiv::net
