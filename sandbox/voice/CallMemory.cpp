#include "voice/CallMemory.h"

#include "voice/SpokenText.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr qsizetype mostAdditions = 20;
constexpr qsizetype longestAddition = 4000;

bool asksForThePast(const QString &question) {
    static const QRegularExpression words(
        u"\\b(earlier|before this call|last question|did (I|we) (ask|talk|discuss|write)|"
        "talk(ed|ing)? about|remember)\\b|раньше|до звонка|говорили|спрашивал|обсуждали|помнишь"_s,
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return words.match(question).hasMatch();
}

QString lastOf(const QStringList &lines, const QString &speaker) {
    for (auto line = lines.crbegin(); line != lines.crend(); ++line) {
        if (line->startsWith(speaker))
            return line->sliced(speaker.size());
    }
    return {};
}

} // namespace

void CallMemory::add(const QString &text) {
    additions.append(text.left(longestAddition));
    if (additions.size() > mostAdditions)
        additions.removeFirst();
}

QString CallMemory::recall(const QString &question) const {
    if (!asksForThePast(question))
        return {};
    const QStringList lines =
        (digest.isEmpty() ? additions.join(u'\n') : digest).split(u'\n', Qt::SkipEmptyParts);
    const QString asked = lastOf(lines, u"You: "_s);
    if (asked.isEmpty())
        return u"I have nothing from before this call."_s;
    const QString answered = lastOf(lines, u"Agent: "_s);
    return answered.isEmpty() ? u"Before this call you wrote: %1"_s.arg(asked)
                              : u"Before this call you wrote: %1 And the answer was: %2"_s.arg(
                                    asked, spokenText(answered));
}

} // namespace kiv::sandbox
