#pragma once

#include <QByteArray>
#include <QString>

namespace kiv::sandbox {

/// Gets the cryptography ready; to be called once before anything below.
void startSecrets();

/// Argon2id with a salt of its own, in the text form that carries its parameters.
QByteArray hashPassword(const QString &password);
bool verifyPassword(const QByteArray &hash, const QString &password);
/// Takes as long as verifying: for addresses that have no account, so that time tells nothing.
void verifyNobody(const QString &password);

/// 256 random bits, safe in a cookie, a path and a file name.
QByteArray randomToken();
/// Whether a text has the form of one.
bool isToken(const QByteArray &text);
/// What is stored of a token.
QByteArray tokenHash(const QByteArray &token);

} // namespace kiv::sandbox
