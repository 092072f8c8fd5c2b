#include "store/CallTranscript.h"

#include <algorithm>

namespace kiv::store {

using namespace Qt::StringLiterals;

void CallTranscript::hear(const QString &who, const QString &text, bool partial, int at) {
    if (who == u"user"_s && !partial) {
        // The service may repeat what was typed as if it had been said.
        const auto typed = std::find_if(m_lines.crbegin(), m_lines.crend(), [&](const auto &line) {
            return line.state == u"typed"_s && line.text == text;
        });
        if (typed != m_lines.crend()) {
            change(m_lines.crend() - typed - 1, text, {});
            return;
        }
    }
    const QString state = partial ? u"partial"_s : QString();
    // Both may speak at once: the open sentence of the same speaker is looked for.
    const auto open = std::find_if(m_lines.crbegin(), m_lines.crend(), [&](const CallLine &line) {
        return line.kind == CallLineKind::Speech && line.who == who && line.isPartial();
    });
    if (open != m_lines.crend()) {
        change(m_lines.crend() - open - 1, text, state);
        return;
    }
    append({.who = who, .text = text, .state = state, .at = at});
}

void CallTranscript::type(const QString &text, int at) {
    append({.who = u"user"_s, .text = text, .state = u"typed"_s, .at = at});
}

QUuid CallTranscript::note(const QString &text, const QString &state, int at) {
    append({.kind = CallLineKind::Event, .text = text, .state = state, .at = at});
    return m_lines.constLast().id;
}

void CallTranscript::settle(const QUuid &event, const QString &text) {
    const auto found = std::ranges::find(m_lines, event, &CallLine::id);
    if (found != m_lines.end())
        change(found - m_lines.begin(), text, {});
}

bool CallTranscript::draw(qint64 row, const QString &title, const QString &art, int at) {
    const QString action = QString::number(row);
    const auto found = std::ranges::find(m_lines, action, &CallLine::action);
    const bool isNew = found == m_lines.end() && !art.isEmpty();
    if (isNew) {
        append({.kind = CallLineKind::Event,
                .text = title,
                .action = action,
                .art = art,
                .question = lastQuestion(),
                .at = at});
    } else if (found != m_lines.end() && art.isEmpty()) {
        remove(found - m_lines.begin());
    } else if (found != m_lines.end() && (found->art != art || found->text != title)) {
        found->art = art;
        change(found - m_lines.begin(), title, {});
    }
    return isNew;
}

std::optional<CallLine> CallTranscript::drawing(qint64 row) const {
    const auto found = std::ranges::find(m_lines, QString::number(row), &CallLine::action);
    return found == m_lines.end() ? std::nullopt : std::optional(*found);
}

void CallTranscript::clear() {
    if (m_lines.isEmpty())
        return;
    beginResetModel();
    m_lines.clear();
    endResetModel();
    Q_EMIT countChanged();
}

/// Empty for nothing yet.
QString CallTranscript::lastQuestion() const {
    const auto found = std::find_if(m_lines.crbegin(), m_lines.crend(), [](const CallLine &line) {
        return line.isOwner() && !line.isPartial();
    });
    return found == m_lines.crend() ? QString() : found->text;
}

void CallTranscript::append(CallLine line) {
    if (m_lines.size() == mostLines)
        remove(0);
    beginInsertRows({}, count(), count());
    m_lines.append(std::move(line));
    endInsertRows();
    Q_EMIT countChanged();
}

void CallTranscript::remove(qsizetype row) {
    beginRemoveRows({}, static_cast<int>(row), static_cast<int>(row));
    m_lines.removeAt(row);
    endRemoveRows();
    Q_EMIT countChanged();
}

void CallTranscript::change(qsizetype row, const QString &text, const QString &state) {
    m_lines[row].text = text;
    m_lines[row].state = state;
    const QModelIndex changed = index(static_cast<int>(row));
    Q_EMIT dataChanged(changed, changed, {TextRole, StateRole, ArtRole});
}

int CallTranscript::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant CallTranscript::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const CallLine &line = m_lines.at(index.row());
    switch (role) {
    case LineIdRole:
        return line.id.toString(QUuid::WithoutBraces);
    case KindRole:
        return QVariant::fromValue(line.kind);
    case WhoRole:
        return line.who;
    case OwnerRole:
        return line.isOwner();
    case Qt::DisplayRole:
    case TextRole:
        return line.text;
    case StateRole:
        return line.state;
    case ActionRole:
        return line.action.value_or(QString());
    case ArtRole:
        return line.art;
    case AtRole:
        return line.at;
    default:
        return {};
    }
}

QHash<int, QByteArray> CallTranscript::roleNames() const {
    return {{LineIdRole, "lineId"}, {KindRole, "kind"}, {WhoRole, "who"},
            {OwnerRole, "owner"},   {TextRole, "text"}, {StateRole, "state"},
            {ActionRole, "action"}, {ArtRole, "art"},   {AtRole, "at"}};
}

} // namespace kiv::store
