#include "canvas/Groups.h"
#include "canvas/SceneBuilders.h"
#include "canvas/SceneText.h"

#include <QSet>

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

/// An event and the lane it belongs to.
struct Event {
    QString lane;
    ViewSpec::Point point;
};

/// The owner of an event; a time or a number in its place belongs to the event itself.
QString ownerOf(const ViewSpec::Point &point) {
    const QString hint = point.hint.value_or(QString()).trimmed();
    return hint.isEmpty() || hint.front().isDigit() ? QString() : hint;
}

QString titleOf(const ViewSpec::Point &point, const QString &unit) {
    QStringList parts{point.label.trimmed(), valueText(point, unit)};
    if (ownerOf(point).isEmpty())
        parts.append(point.hint.value_or(QString()).trimmed());
    parts.removeAll(QString());
    return parts.join(u" · ");
}

/// Events lie on the lanes of their owners.
QList<Event> eventsOf(const ViewSpec &spec) {
    QList<Event> events;
    for (const ViewSpec::Point &point : spec.points) {
        if (!point.label.trimmed().isEmpty())
            events.append({ownerOf(point), point});
    }
    return events;
}

QString summaryOf(const QList<Event> &events) {
    QStringList parts;
    for (const QString &status : {u"done"_s, u"doing"_s, u"blocked"_s, u"todo"_s}) {
        const auto count =
            std::count_if(events.begin(), events.end(),
                          [&status](const Event &event) { return event.point.status == status; });
        const QString word = status == u"todo" ? u"to do"_s : status;
        if (count > 0)
            parts.append(QString::number(count) + u' ' + word);
    }
    return parts.join(u" · ");
}

/// Whether the answer tells the work of one lane after that of another. Then nothing says in which
/// order the work of different lanes stands.
bool isGrouped(const QList<Event> &events) {
    QSet<QString> seen;
    for (qsizetype i = 0; i < events.size(); ++i) {
        const QString &lane = events.at(i).lane;
        if (i > 0 && lane == events.at(i - 1).lane)
            continue;
        if (seen.contains(lane))
            return false;
        seen.insert(lane);
    }
    return seen.size() < events.size();
}

/// The place of each event in the order of its lane, or of all events.
QList<qsizetype> placesOf(const QList<Event> &events) {
    const bool grouped = isGrouped(events);
    QList<qsizetype> places;
    for (qsizetype i = 0; i < events.size(); ++i) {
        const bool first = i == 0 || (grouped && events.at(i).lane != events.at(i - 1).lane);
        places.append(first ? 0 : places.last() + 1);
    }
    return places;
}

} // namespace

std::optional<SceneOut> buildAgents(const ViewSpec &spec) {
    const QList<Event> events = eventsOf(spec);
    if (events.isEmpty())
        return std::nullopt;
    const QString unit = spec.unit.value_or(QString());
    const QList<qsizetype> places = placesOf(events);
    const auto count = static_cast<double>(*std::max_element(places.cbegin(), places.cend()) + 1);
    SceneOut scene;
    Groups<Lane> lanes;
    for (qsizetype i = 0; i < events.size(); ++i) {
        const auto &[name, point] = events.at(i);
        const QString lane = name.isEmpty() ? u"Events"_s : name;
        lanes.of(lane, {.name = lane})
            .tasks.append({.title = titleOf(point, unit),
                           .left = static_cast<double>(places.at(i)) / count,
                           .width = 1 / count,
                           .status = point.status.value_or(u"unknown"_s)});
    }
    scene.lanes = lanes.all();
    scene.agentSummary = summaryOf(events);
    scene.countLine = QString::number(events.size()) +
                      (events.size() == 1 ? u" event"_s : u" events"_s) + u" · from the answer"_s;
    scene.insight = u"Laid out from the agent's answer, in order."_s;
    return scene;
}

} // namespace kiv::canvas
