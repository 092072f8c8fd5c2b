#include "speech/ModelFiles.h"

#include <QFile>

#include <openssl/evp.h>

#include <memory>

namespace kiv::speech {

using namespace Qt::StringLiterals;

namespace {

/// By the processor's own instructions, which QCryptographicHash does not use: this is waited for.
QByteArray sha256(QFile &file) {
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> hash(EVP_MD_CTX_new(),
                                                                       &EVP_MD_CTX_free);
    EVP_DigestInit_ex(hash.get(), EVP_sha256(), nullptr);
    QByteArray piece(1 << 20, Qt::Uninitialized);
    for (qint64 size; (size = file.read(piece.data(), piece.size())) > 0;)
        EVP_DigestUpdate(hash.get(), piece.constData(), static_cast<size_t>(size));
    QByteArray digest(EVP_MD_size(EVP_sha256()), Qt::Uninitialized);
    EVP_DigestFinal_ex(hash.get(), reinterpret_cast<unsigned char *>(digest.data()), nullptr);
    return digest.toHex();
}

void check(const QString &path, const QString &name, const QByteArray &expected) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw ModelError(ModelError::Missing, u"The speech file %1 is missing."_s.arg(name));
    // Libraries are the business of whoever installs them, who may have taken symbols out.
    if (!name.endsWith(".so"_L1) && sha256(file) != expected)
        throw ModelError(ModelError::Damaged, u"The speech file %1 is damaged."_s.arg(name));
}

} // namespace

ModelFiles::ModelFiles(const QString &folder, const QString &model)
    : m_folder(folder), m_model(model) {
    // The list by which the files were laid out: place, SHA-256 and where it comes from.
    QFile list(u":/kiv/speech-files.txt"_s);
    if (!list.open(QIODevice::ReadOnly))
        qFatal("The list of speech files is not built in");
    const QString all = u"speech/"_s;
    while (!list.atEnd()) {
        const QStringList fields = QString::fromUtf8(list.readLine()).simplified().split(u' ');
        if (fields.size() < 2 || !fields.first().startsWith(all))
            continue;
        const QString name = fields.first().sliced(all.size());
        const bool ofOtherModel = name.contains(u'/') && !name.startsWith(model + u'/');
        if (!ofOtherModel)
            check(place(name), name, fields.at(1).toLatin1());
    }
}

} // namespace kiv::speech
