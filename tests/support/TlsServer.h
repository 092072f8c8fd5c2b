#pragma once

#include <QSslCertificate>
#include <QSslKey>
#include <QSslServer>
#include <QUrl>

#include <openssl/evp.h>
#include <openssl/x509.h>

#include <memory>

namespace kiv::test {

/// A certificate and its key.
struct Identity {
    std::shared_ptr<X509> certificate;
    std::shared_ptr<EVP_PKEY> key;

    QSslCertificate shown() const;
    QSslKey secret() const;
};

/// Of what `names` says (of somebody who vouches for others without), good until `days` from now,
/// vouched for by `issuer` or else by itself.
Identity makeIdentity(const char *names, long days, const Identity *issuer);

/// An encrypted server that answers everything alike, and keeps what it was told.
class TlsServer : public QSslServer {
    Q_OBJECT
public:
    explicit TlsServer(const Identity &identity);
    QUrl url() const;

    QByteArray answer = "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n{}";
    QByteArray received;
    int contacts = 0; ///< handshakes that were begun
};

} // namespace kiv::test
