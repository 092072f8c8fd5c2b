#pragma once

#include <QList>
#include <QString>

#include <utility>

namespace kiv::test {

/// A piece again and again, a million characters in all.
QString repeated(const QString &piece);

/// Answers of a million characters, by name, made to be slow to read.
QList<std::pair<QByteArray, QString>> hostileAnswers();

} // namespace kiv::test
