#include "store/CallHistory.h"

#include "base/IsoTime.h"

#include <algorithm>

namespace kiv::store {

void CallHistory::replaceAll(const QList<net::KivAPI::VoiceCallEntry> &calls) {
    if (m_calls == calls)
        return;
    beginResetModel();
    m_calls = calls;
    endResetModel();
    Q_EMIT countChanged();
}

void CallHistory::open(const QString &callID) {
    const QString before = std::exchange(m_open, callID);
    m_lines.reset();
    touch(before);
    touch(callID);
}

void CallHistory::setLines(const std::optional<QList<PastLine>> &lines) {
    m_lines = lines;
    touch(m_open);
}

void CallHistory::touch(const QString &callID) {
    const auto found = std::ranges::find(m_calls, callID, &net::KivAPI::VoiceCallEntry::id);
    if (found == m_calls.end())
        return;
    const QModelIndex changed = index(static_cast<int>(found - m_calls.begin()));
    Q_EMIT dataChanged(changed, changed, {OpenRole, LoadingRole, LinesRole});
}

int CallHistory::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant CallHistory::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const net::KivAPI::VoiceCallEntry &call = m_calls.at(index.row());
    const bool isOpen = call.id == m_open;
    switch (role) {
    case CallIdRole:
        return call.id;
    case StatusRole:
        return call.status.value_or(QString());
    case DurationSecsRole:
        return static_cast<int>(call.durationSecs.value_or(0));
    case StartedAtRole: {
        const auto at = parseDate(call.startedAt);
        return at ? at->toLocalTime() : QDateTime();
    }
    case Qt::DisplayRole:
    case SnippetRole:
        return call.snippet.value_or(QString());
    case HasTranscriptRole:
        return call.hasTranscript.value_or(false);
    case OpenRole:
        return isOpen;
    case LoadingRole:
        return isOpen && !m_lines;
    case LinesRole:
        return QVariant::fromValue(isOpen ? m_lines.value_or(QList<PastLine>())
                                          : QList<PastLine>());
    default:
        return {};
    }
}

QHash<int, QByteArray> CallHistory::roleNames() const {
    return {{CallIdRole, "callId"},
            {StatusRole, "status"},
            {DurationSecsRole, "durationSecs"},
            {StartedAtRole, "startedAt"},
            {SnippetRole, "snippet"},
            {HasTranscriptRole, "hasTranscript"},
            {OpenRole, "open"},
            {LoadingRole, "loading"},
            {LinesRole, "lines"}};
}

} // namespace kiv::store
