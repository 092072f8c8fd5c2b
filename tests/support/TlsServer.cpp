#include "TlsServer.h"

#include <QSslConfiguration>
#include <QTcpSocket>

#include <openssl/pem.h>
#include <openssl/x509v3.h>

namespace kiv::test {

using namespace Qt::StringLiterals;

namespace {

constexpr long day = 24 * 3600;

QByteArray take(BIO *out) {
    char *data = nullptr;
    const auto size = BIO_get_mem_data(out, &data);
    const QByteArray bytes(data, size);
    BIO_free(out);
    return bytes;
}

void extend(X509 *certificate, int kind, const char *value) {
    X509_EXTENSION *extension = X509V3_EXT_conf_nid(nullptr, nullptr, kind, value);
    X509_add_ext(certificate, extension, -1);
    X509_EXTENSION_free(extension);
}

} // namespace

QSslCertificate Identity::shown() const {
    BIO *out = BIO_new(BIO_s_mem());
    PEM_write_bio_X509(out, certificate.get());
    return QSslCertificate(take(out));
}

QSslKey Identity::secret() const {
    BIO *out = BIO_new(BIO_s_mem());
    PEM_write_bio_PrivateKey(out, key.get(), nullptr, nullptr, 0, nullptr, nullptr);
    return QSslKey(take(out), QSsl::Ec);
}

Identity makeIdentity(const char *names, long days, const Identity *issuer) {
    static long serial = 0;
    const Identity identity{{X509_new(), X509_free}, {EVP_EC_gen("P-256"), EVP_PKEY_free}};
    X509 *certificate = identity.certificate.get();
    X509_set_version(certificate, 2);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate), ++serial);
    X509_gmtime_adj(X509_getm_notBefore(certificate), -30 * day);
    X509_gmtime_adj(X509_getm_notAfter(certificate), days * day);
    X509_set_pubkey(certificate, identity.key.get());
    X509_NAME *subject = X509_get_subject_name(certificate);
    const QByteArray name = "kiv test " + QByteArray::number(serial);
    X509_NAME_add_entry_by_txt(subject, "CN", MBSTRING_ASC,
                               reinterpret_cast<const unsigned char *>(name.constData()), -1, -1,
                               0);
    const Identity &voucher = issuer ? *issuer : identity;
    X509_set_issuer_name(certificate, X509_get_subject_name(voucher.certificate.get()));
    extend(certificate, NID_basic_constraints, names ? "CA:FALSE" : "critical,CA:TRUE");
    if (names)
        extend(certificate, NID_subject_alt_name, names);
    X509_sign(certificate, voucher.key.get(), EVP_sha256());
    return identity;
}

TlsServer::TlsServer(const Identity &identity) {
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(identity.shown());
    configuration.setPrivateKey(identity.secret());
    setSslConfiguration(configuration);
    connect(this, &QTcpServer::pendingConnectionAvailable, this, [this] {
        while (QTcpSocket *peer = nextPendingConnection())
            connect(peer, &QTcpSocket::readyRead, this, [this, peer] {
                received += peer->readAll();
                peer->write(answer);
            });
    });
    connect(this, &QSslServer::startedEncryptionHandshake, this, [this] { ++contacts; });
    listen(QHostAddress::LocalHost);
}

QUrl TlsServer::url() const {
    return QUrl(u"https://127.0.0.1:%1"_s.arg(serverPort()));
}

} // namespace kiv::test
