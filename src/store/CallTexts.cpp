#include "store/CallTexts.h"

#include "base/Regex.h"
#include "base/Text.h"
#include "net/APIError.h"

namespace kiv::store::CallTexts {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype digestLines = 24;
constexpr qsizetype digestCharacters = 1600;

const QString noTokens = u"Not enough tokens — top up in Billing to call."_s;
const QString noProvider = u"Voice provider is unavailable right now."_s;
const QString notConfigured = u"Voice is not configured on the server."_s;

QString refusalNote(const QString &code, const QString &message) {
    if (code == u"insufficient_balance"_s)
        return noTokens;
    if (code == u"call_in_progress"_s)
        return u"A call is already in progress."_s;
    if (code == u"voice_unavailable"_s)
        return notConfigured;
    if (code == u"token_mint_failed"_s || code == u"byok_voice_setup_failed"_s)
        return noProvider;
    if (message.toLower().contains(u"rate limit"_s))
        return u"Too many calls — try again in a minute."_s;
    return message;
}

} // namespace

QString hint(const QString &voiceReason) {
    if (voiceReason == u"insufficient_balance"_s)
        return noTokens;
    if (voiceReason == u"not_configured"_s)
        return notConfigured;
    if (voiceReason == u"browser_unsupported"_s)
        return u"This Mac cannot make voice calls — check microphone access."_s;
    return u"Voice call is unavailable right now."_s;
}

QString liveCallNote(const std::exception &error) {
    static const Regex access(u"permission|denied|not allowed", Regex::CaseInsensitive);
    if (const auto *refusal = dynamic_cast<const net::APIError *>(&error)) {
        if (refusal->code())
            return refusalNote(*refusal->code(), refusal->message());
    }
    const QString text = net::errorText(error);
    return access.contains(text) ? u"Microphone access denied"_s : text;
}

QString disconnectNote(const voice::VoiceEngine::Disconnect &disconnect) {
    QStringList details{disconnect.reason,
                        disconnect.closeCode ? QString::number(disconnect.closeCode) : QString(),
                        disconnect.message, disconnect.closeReason};
    details.removeAll(QString());
    details.removeDuplicates();
    const QString error = u"Voice connection error"_s;
    return details.isEmpty() ? error : error + u": "_s + details.join(u", "_s);
}

QString chatDigest(const QList<Msg> &messages) {
    QStringList lines;
    for (const Msg &message : messages) {
        const QString text = message.text.simplified();
        if (message.fromCall || !message.pendingID.isEmpty() || text.isEmpty())
            continue;
        lines.append((message.who == Who::You ? u"You: "_s : u"Agent: "_s) + text);
    }
    if (lines.size() > digestLines)
        lines = lines.last(digestLines);
    return lastCharacters(lines.join(u'\n'), digestCharacters);
}

QString chatContext(const QString &digest) {
    return u"Recent text chat with the owner — use it as memory, do not read it aloud:\n"_s +
           digest;
}

QString length(int seconds) {
    constexpr int minute = 60;
    constexpr int hour = 60 * minute;
    const auto two = [](int number) { return u"%1"_s.arg(number, 2, 10, QChar(u'0')); };
    const int minutes = seconds % hour / minute;
    const QString hours = seconds < hour ? QString::number(minutes)
                                         : QString::number(seconds / hour) + u':' + two(minutes);
    return hours + u':' + two(seconds % minute);
}

QString callLine(std::optional<int> seconds, const QString &status) {
    const QString detail = seconds ? length(*seconds) : status;
    return detail.isEmpty() ? u"Call"_s : u"Call · "_s + detail;
}

} // namespace kiv::store::CallTexts
