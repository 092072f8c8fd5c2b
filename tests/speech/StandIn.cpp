// Stands in for kiv-speech. The "sound" it gets is a word and a text: "interim:so far",
// "final:text", "keep:text" (to be finished by the end), "die", "hang", "babble", "flood" or "id".

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <csignal>
#include <iostream>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QString kept;

void say(const QString &key, const QJsonValue &value) {
    std::cout << QJsonDocument(QJsonObject{{key, value}}).toJson(QJsonDocument::Compact).constData()
              << std::endl;
}

void hear(const QString &sound) {
    const QString word = sound.section(u':', 0, 0);
    const QString text = sound.section(u':', 1);
    if (word == "keep"_L1)
        kept = text;
    else if (word == "id"_L1)
        say(u"final"_s, QString::number(::getpid()));
    else if (word == "die"_L1)
        ::raise(SIGKILL);
    else if (word == "hang"_L1)
        ::raise(SIGSTOP);
    else if (word == "babble"_L1)
        std::cout << "no JSON" << std::endl;
    else if (word == "flood"_L1)
        std::cout << std::string(4 << 20, 'x') << std::flush;
    else
        say(word, text);
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.contains(u"--damaged"_s)) {
        say(u"error"_s, u"The speech file voice.onnx is damaged."_s);
        return 1;
    }
    if (!arguments.contains(u"--never-ready"_s))
        say(u"ready"_s, true);
    std::string line;
    while (std::getline(std::cin, line)) {
        const QJsonObject request =
            QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
        if (request.contains("audio"_L1)) {
            hear(QString::fromUtf8(
                QByteArray::fromBase64(request.value("audio"_L1).toString().toLatin1())));
        } else if (request.contains("cancel"_L1)) {
            kept.clear();
        } else {
            if (!kept.isEmpty())
                say(u"final"_s, std::exchange(kept, {}));
            say(u"ended"_s, true);
        }
    }
}
