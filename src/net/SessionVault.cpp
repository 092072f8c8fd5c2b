#include "net/SessionVault.h"

#include "base/PrivateFile.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>

namespace kiv::net {

using namespace Qt::StringLiterals;

namespace {

constexpr auto chainKey = "inKeyChain"_L1;
constexpr auto cookiesKey = "cookies"_L1;
/// What is larger was not written here.
constexpr qint64 largestFile = 1024 * 1024;

/// Nothing for what was not written by this program. A bare list has no key chain beside it.
std::optional<SessionVault::Content> parse(const QByteArray &bytes) {
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (document.isArray())
        return SessionVault::Content{false, document.array()};
    if (!document.object().value(chainKey).isBool())
        return std::nullopt;
    return SessionVault::Content{document.object().value(chainKey).toBool(),
                                 document.object().value(cookiesKey).toArray()};
}

QByteArray bytesOf(const QJsonArray &cookies) {
    return QJsonDocument(cookies).toJson(QJsonDocument::Compact);
}

} // namespace

SessionVault::SessionVault(QString file, Clock *clock, SecretStore *secrets)
    : m_file(std::move(file)), m_clock(clock), m_secrets(clock ? secrets : nullptr) {
    connect(&m_writer, &FileWriter::written, this, [this](const QString &failure) {
        if (!failure.isEmpty())
            qWarning("The session cannot be saved: %s", qUtf8Printable(failure));
        Q_EMIT written(failure);
    });
}

SessionVault::~SessionVault() {
    if (m_unsafe)
        writeFile(false, m_cookies);
    m_writer.finish();
}

QJsonArray SessionVault::open() {
    Content content;
    if (QFileInfo::exists(m_file)) {
        const auto bytes = PrivateFile::read(m_file, largestFile);
        if (auto read = bytes ? parse(*bytes) : std::nullopt)
            content = std::move(*read);
        else
            setAside(content);
    }
    m_cookies = content.cookies;
    m_inChain = content.inChain;
    m_chainRead = !content.inChain;
    if (!m_secrets)
        return m_cookies;
    if (m_chainRead) {
        if (!m_cookies.isEmpty())
            hand();
        return m_cookies;
    }
    m_waiting = m_cookies.isEmpty();
    m_secrets->read([this, alive = std::weak_ptr(m_alive), era = m_era](auto outcome,
                                                                        const QByteArray &secret) {
        if (alive.lock() && era == m_era)
            take(outcome, secret);
    });
    m_readTimer = m_clock->after(patience, [this] {
        qWarning("The key chain does not answer; the session in it is left alone.");
        stopWaiting();
    });
    return m_cookies;
}

/// Nobody knows any more what stood there: the key chain may still have the session.
void SessionVault::setAside(Content &content) {
    qWarning("The saved session cannot be read; its file is set aside");
    m_setAside = PrivateFile::setAside(m_file);
    content.inChain = m_secrets != nullptr;
}

void SessionVault::take(SecretStore::Outcome outcome, const QByteArray &secret) {
    m_readTimer.stop();
    if (outcome == SecretStore::Outcome::Failed) {
        qWarning("The key chain cannot be read; the session in it is left alone.");
        m_chainGone = true;
    } else {
        m_chainRead = true;
        m_chainWorks = true;
        if (outcome == SecretStore::Outcome::NotFound)
            writeFile(false, m_cookies);
        else
            Q_EMIT found(QJsonDocument::fromJson(secret).array());
    }
    stopWaiting();
}

void SessionVault::stopWaiting() {
    if (std::exchange(m_waiting, false))
        Q_EMIT settled();
}

void SessionVault::keep(const QJsonArray &cookies) {
    if (cookies.isEmpty()) {
        forget();
        return;
    }
    m_cookies = cookies;
    // What the chain holds unseen stays there, and joins these when it is seen.
    const bool mayHand = m_secrets && m_chainRead && !m_chainGone;
    if (!mayHand || !m_chainWorks)
        writeFile(!m_chainRead, m_cookies);
    if (!mayHand)
        return;
    m_unsafe = m_chainWorks;
    hand();
}

void SessionVault::forget() {
    ++m_era;
    const bool mayBeInChain = m_inChain || m_chainWorks || m_handing;
    m_cookies = {};
    m_unsafe = false;
    m_handing = false;
    m_readTimer.stop();
    m_handTimer.stop();
    removeFile();
    PrivateFile::removeSetAside(m_file);
    if (m_secrets && mayBeInChain)
        m_secrets->remove();
    m_inChain = false;
    m_chainRead = true;
    stopWaiting();
}

/// Gives the newest cookies to the chain, one lot after another.
void SessionVault::hand() {
    if (m_handing)
        return;
    m_handing = true;
    m_handTimer = m_clock->after(patience, [this] {
        qWarning("The key chain does not answer; the session is kept in a file.");
        m_chainWorks = false;
        m_unsafe = false;
        writeFile(false, m_cookies);
    });
    m_secrets->write(bytesOf(m_cookies), [this, alive = std::weak_ptr(m_alive), era = m_era,
                                          handed = m_cookies](auto outcome, const QByteArray &) {
        if (alive.lock() && era == m_era)
            takeReceipt(outcome, handed);
    });
}

void SessionVault::takeReceipt(SecretStore::Outcome outcome, const QJsonArray &handed) {
    m_handing = false;
    m_handTimer.stop();
    if (outcome != SecretStore::Outcome::Done) {
        qWarning("The key chain does not take the session; it is kept in a file.");
        m_chainGone = true;
        m_unsafe = false;
        writeFile(false, m_cookies);
        return;
    }
    m_chainWorks = true;
    if (handed != m_cookies) {
        hand();
        return;
    }
    m_unsafe = false;
    writeFile(true, {});
}

void SessionVault::writeFile(bool inChain, const QJsonArray &cookies) {
    m_inChain = inChain;
    if (!inChain && cookies.isEmpty()) {
        removeFile();
        return;
    }
    const QJsonObject content{{chainKey, inChain}, {cookiesKey, cookies}};
    m_writer.write([file = m_file, bytes = QJsonDocument(content).toJson()] {
        return PrivateFile::write(file, bytes);
    });
}

/// At once, and no writing of before brings it back.
void SessionVault::removeFile() {
    m_writer.giveUp();
    QFile::remove(m_file);
}

} // namespace kiv::net
