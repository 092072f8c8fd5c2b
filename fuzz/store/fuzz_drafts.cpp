#include "../FuzzFile.h"

#include "store/Drafts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

using namespace Qt::StringLiterals;
using kiv::store::Drafts;

namespace {

/// Time stands still.
class StillClock : public kiv::Clock {
public:
    QDateTime now() const override { return QDateTime::fromSecsSinceEpoch(0); }
    Milliseconds elapsed() const override { return {}; }

protected:
    quint64 schedule(Milliseconds, Callback) override { return 1; }
    void unschedule(quint64) override {}
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
    beSilent();
    return 0;
}

/// Every draft that a file was found to hold is still there after the next saving.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const FuzzFile file(data, size);
    StillClock clock;
    const QJsonArray entries = QJsonDocument::fromJson(bytes).array();
    QList<std::array<QString, 3>> held;
    {
        const Drafts drafts(clock, file.path());
        for (const QJsonValue entry : entries) {
            const QString user = entry[u"user"_s].toString();
            const QString chat = entry[u"chat"_s].toString();
            held.append({user, chat, drafts.text(user, chat)});
        }
    }
    {
        Drafts drafts(clock, file.path());
        drafts.setText(u"kiv"_s, u"fuzz"_s, u"newest"_s);
    }
    const Drafts drafts(clock, file.path());
    mustHold(drafts.text(u"kiv"_s, u"fuzz"_s) == u"newest"_s);
    constexpr qsizetype most = 49; // are kept beside the newest
    for (const auto &[user, chat, text] : held) {
        if (held.size() <= most && (user != u"kiv"_s || chat != u"fuzz"_s))
            mustHold(drafts.text(user, chat) == text);
    }
    return 0;
}
