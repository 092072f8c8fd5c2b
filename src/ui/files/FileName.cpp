#include "ui/files/FileName.h"

#include <QList>

namespace kiv::ui {

using namespace Qt::StringLiterals;

namespace {

/// With three bytes a character and an extension within the 255 bytes of common file systems.
constexpr qsizetype longest = 80;

bool isSafe(char32_t c) {
    constexpr QStringView refused = u"/\\:*?\"<>|";
    return QChar::isPrint(c) && (QChar::requiresSurrogates(c) || !refused.contains(QChar(c)));
}

} // namespace

QString fileNameOf(const QString &title) {
    QString name;
    const QList<uint> codes = title.toUcs4();
    for (const char32_t c : codes)
        name += isSafe(c) ? QString::fromUcs4(&c, 1) : u" "_s;
    name = name.simplified().left(longest);
    if (!name.isEmpty() && name.back().isHighSurrogate())
        name.chop(1);
    // A point in front hides a file, a hyphen makes it an option of commands, and a point at the
    // end some systems drop.
    const auto isEdge = [](QChar c) { return c == u'.' || c.isSpace(); };
    while (!name.isEmpty() && (isEdge(name.front()) || name.front() == u'-'))
        name.remove(0, 1);
    while (!name.isEmpty() && isEdge(name.back()))
        name.chop(1);
    return name;
}

} // namespace kiv::ui
