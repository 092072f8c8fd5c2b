#include "soak/Ledger.h"

#include <QRegularExpression>

namespace kiv::soak {

using namespace Qt::StringLiterals;

namespace {

QList<int> numbersIn(const QString &text) {
    static const QRegularExpression tag(u"#k(\\d+)"_s);
    QList<int> numbers;
    for (auto match = tag.globalMatch(text); match.hasNext();)
        numbers.append(match.next().capturedView(1).toInt());
    return numbers;
}

} // namespace

int Ledger::numberIn(const QString &text) {
    const QList<int> numbers = numbersIn(text);
    return numbers.isEmpty() ? 0 : numbers.constLast();
}

bool Ledger::carries(const QString &text, int number) {
    return numbersIn(text).contains(number);
}

QString Ledger::tag(int number) {
    return u"#k%1"_s.arg(number);
}

void Ledger::send(const Chat &chat, const QString &text, qsizetype files, bool isMistimed) {
    const int number = numberIn(text);
    if (number == 0)
        return;
    drop(text); // what it was made of goes on in it
    const auto [entry, isNew] = sent.try_emplace(number, Sent{.chat = chat, .files = files});
    entry->second.isGone = false;
    entry->second.isMistimed |= isMistimed;
    if (!isNew) {
        ++entry->second.most;
        entry->second.files = std::max(entry->second.files, files);
    }
}

void Ledger::drop(const QString &text) {
    for (const int number : numbersIn(text)) {
        const auto entry = sent.find(number);
        if (entry != sent.end())
            entry->second.isGone = true;
    }
}

void Ledger::dropAll(const QString &user) {
    for (auto &[number, message] : sent)
        message.isGone = message.isGone || message.chat.user == user;
    std::erase_if(drafts, [&](const auto &draft) { return draft.first.user == user; });
}

} // namespace kiv::soak
