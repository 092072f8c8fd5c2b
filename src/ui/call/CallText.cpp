#include "ui/call/CallText.h"

#include "base/LocalText.h"
#include "store/CallTexts.h"

namespace kiv::ui {

using namespace Qt::StringLiterals;

QString CallText::length(int seconds) {
    return store::CallTexts::length(seconds);
}

QString CallText::start(const QDateTime &at, store::Calendar *calendar) {
    if (!at.isValid())
        return {};
    const QDate today = calendar->today();
    const QDateTime local = at.toLocalTime();
    const QString time = timeText(local);
    const QDate day = local.date();
    if (day == today)
        return time;
    if (day == today.addDays(-1))
        return tr("Yesterday, %1").arg(time);
    return tr("%1, %2").arg(dayText(day, today), time);
}

QString CallText::outcome(const QString &status) {
    if (status == u"in_progress"_s)
        return tr("In progress");
    return status == u"failed"_s ? tr("Failed") : tr("Ended");
}

QString CallText::transcript(store::CallTranscript *lines, const QString &counterpart) {
    QStringList written;
    for (const store::CallLine &line : lines->lines()) {
        const QString speaker = line.kind == store::CallLineKind::Event ? QString()
                                : line.isOwner()                        ? tr("You: ")
                                                                        : counterpart + u": "_s;
        written.append(length(line.at) + u' ' + speaker + line.text);
    }
    return written.join(u'\n');
}

} // namespace kiv::ui
