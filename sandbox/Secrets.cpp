#include "Secrets.h"

#include <sodium.h>

#include <array>
#include <mutex>

namespace kiv::sandbox {

namespace {

constexpr qsizetype tokenBytes = 32;
constexpr auto tokenForm = QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals;

/// One at a time: each run takes 64 MiB.
std::mutex hashing;

} // namespace

void startSecrets() {
    if (sodium_init() < 0)
        qFatal("libsodium does not start");
}

QByteArray hashPassword(const QString &password) {
    const QByteArray utf8 = password.toUtf8();
    std::array<char, crypto_pwhash_STRBYTES> hash{};
    const std::lock_guard lock(hashing);
    if (crypto_pwhash_str(hash.data(), utf8.constData(), static_cast<quint64>(utf8.size()),
                          crypto_pwhash_OPSLIMIT_INTERACTIVE,
                          crypto_pwhash_MEMLIMIT_INTERACTIVE) != 0)
        qFatal("Out of memory while hashing a password");
    return QByteArray(hash.data());
}

bool verifyPassword(const QByteArray &hash, const QString &password) {
    const QByteArray utf8 = password.toUtf8();
    const std::lock_guard lock(hashing);
    return crypto_pwhash_str_verify(hash.constData(), utf8.constData(),
                                    static_cast<quint64>(utf8.size())) == 0;
}

void verifyNobody(const QString &password) {
    static const QByteArray nobody = hashPassword(QString::fromLatin1(randomToken()));
    verifyPassword(nobody, password);
}

QByteArray randomToken() {
    QByteArray bytes(tokenBytes, Qt::Uninitialized);
    randombytes_buf(bytes.data(), static_cast<size_t>(bytes.size()));
    return bytes.toBase64(tokenForm);
}

bool isToken(const QByteArray &text) {
    const auto bytes = QByteArray::fromBase64Encoding(
        text, QByteArray::Base64UrlEncoding | QByteArray::AbortOnBase64DecodingErrors);
    return bytes && bytes.decoded.size() == tokenBytes;
}

QByteArray tokenHash(const QByteArray &token) {
    QByteArray hash(crypto_hash_sha256_BYTES, Qt::Uninitialized);
    crypto_hash_sha256(reinterpret_cast<unsigned char *>(hash.data()),
                       reinterpret_cast<const unsigned char *>(token.constData()),
                       static_cast<quint64>(token.size()));
    return hash;
}

} // namespace kiv::sandbox
