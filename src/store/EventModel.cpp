#include "store/EventModel.h"

#include "base/IsoTime.h"
#include "base/Regex.h"

#include <QCoreApplication>

namespace kiv::store {

namespace {

constexpr qint64 minute = 60;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;

QString inUnits(qint64 count, const char *pattern) {
    return QCoreApplication::translate("Age", pattern).arg(count);
}

} // namespace

EventTone toneOf(const QString &kind) {
    static const Regex bad(u"alert|fail|error|block|reject", Regex::CaseInsensitive);
    static const Regex warning(u"warn|approval|request|overdue|late", Regex::CaseInsensitive);
    static const Regex good(u"done|release|complete|finish|success|approved|ship|resolve",
                            Regex::CaseInsensitive);
    if (bad.contains(kind))
        return EventTone::Bad;
    if (good.contains(kind))
        return EventTone::Good;
    return warning.contains(kind) ? EventTone::Warning : EventTone::Neutral;
}

QString ageText(qint64 seconds) {
    if (seconds < minute)
        return QCoreApplication::translate("Age", "now");
    if (seconds < hour)
        return inUnits(seconds / minute, QT_TRANSLATE_NOOP("Age", "%1 m"));
    if (seconds < day)
        return inUnits(seconds / hour, QT_TRANSLATE_NOOP("Age", "%1 h"));
    return inUnits(seconds / day, QT_TRANSLATE_NOOP("Age", "%1 d"));
}

void EventModel::replaceAll(const QList<net::KivAPI::ProjectEvent> &events) {
    if (m_events == events) {
        refreshAges();
        return;
    }
    beginResetModel();
    m_events = events;
    endResetModel();
    Q_EMIT countChanged();
}

void EventModel::refreshAges() {
    if (!m_events.isEmpty())
        Q_EMIT dataChanged(index(0), index(count() - 1), {AgeRole});
}

int EventModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant EventModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const net::KivAPI::ProjectEvent &event = m_events.at(index.row());
    switch (role) {
    case ToneRole:
        return QVariant::fromValue(toneOf(event.kind.value_or(QString())));
    case Qt::DisplayRole:
    case TitleRole:
        return event.title.value_or(event.kind.value_or(QString()));
    case DetailRole:
        return event.detail.value_or(QString());
    case AgeRole: {
        const auto at = parseDate(event.createdAt);
        return at ? ageText(at->secsTo(m_clock.now())) : QString();
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> EventModel::roleNames() const {
    return {{ToneRole, "tone"}, {TitleRole, "title"}, {DetailRole, "detail"}, {AgeRole, "age"}};
}

} // namespace kiv::store
