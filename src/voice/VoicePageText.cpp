#include "voice/VoicePageText.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace kiv::voice::VoicePageText {

using namespace Qt::StringLiterals;

QString script() {
    QFile file(u":/kiv/voice/voicepage.js"_s);
    if (!file.open(QFile::ReadOnly))
        qFatal("The voice page is missing from the program");
    return QString::fromUtf8(file.readAll());
}

QString html() {
    return u"<!doctype html><html><head><meta charset=\"utf-8\"></head><body><script>"_s +
           script() + u"</script></body></html>"_s;
}

QString jsString(const QString &text) {
    QByteArray literal = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    // No text may end the element that the script stands in.
    literal.replace("/", "\\/");
    return QString::fromUtf8(literal.sliced(1, literal.size() - 2));
}

} // namespace kiv::voice::VoicePageText
