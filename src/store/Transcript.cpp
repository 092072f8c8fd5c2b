#include "store/Transcript.h"

#include "base/LocalText.h"

#include <QCoreApplication>

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

/// A name with what Markdown would read in it told to stand for itself.
QString escaped(const QString &name) {
    QString text;
    for (const QChar c : name.simplified()) {
        if (u"\\`*_{}[]<>#|~"_s.contains(c))
            text += u'\\';
        text += c;
    }
    return text;
}

/// A fence that a message leaves open would take in all that follows.
QString closed(const QString &text) {
    bool isOpen = false;
    const auto lines = QStringView(text).split(u'\n');
    for (const QStringView line : lines)
        isOpen ^= line.trimmed().startsWith(u"```"_s);
    return isOpen ? text + u"\n```"_s : text;
}

QString words(const char *text) {
    return QCoreApplication::translate("Transcript", text);
}

QString head(const QString &name, const Msg &message) {
    QStringList parts{u"**%1**"_s.arg(
        escaped(message.who == Who::You ? words(QT_TRANSLATE_NOOP("Transcript", "You")) : name))};
    if (!message.memberLabel.isEmpty())
        parts.append(
            words(QT_TRANSLATE_NOOP("Transcript", "with %1")).arg(escaped(message.memberLabel)));
    if (message.at)
        parts.append(dayTimeText(*message.at));
    if (message.isUnsent())
        parts.append(words(QT_TRANSLATE_NOOP("Transcript", "not sent")));
    return parts.join(u" · "_s);
}

} // namespace

QString transcript(const QString &name, const QList<Msg> &messages) {
    QStringList pieces{u"# "_s + escaped(name)};
    for (const Msg &message : messages) {
        const bool isSpoken = message.fromCall && !message.callHead;
        if (!message.serverID && !message.isUnsent() && !isSpoken)
            continue;
        pieces.append(head(name, message));
        if (!message.text.trimmed().isEmpty())
            pieces.append(closed(message.text.trimmed()));
        QStringList files;
        for (const MsgFile &file : message.files)
            files.append(u"- "_s + escaped(file.name));
        if (!files.isEmpty())
            pieces.append(files.join(u'\n'));
    }
    return pieces.join(u"\n\n"_s) + u'\n';
}

} // namespace kiv::store
