// What the canvas can go back to: its history, the drawing of a message, and what an opened chat
// left.

#include "canvas/CanvasIntents.h"
#include "net/KivAPI.h"
#include "store/AppStore.h"
#include "store/CanvasRoom.h"

namespace kiv::store {

using namespace Qt::StringLiterals;

void CanvasRoom::remember(const HistoryEntry &entry, Record record) {
    if (record == Record::Turn && m_history.amend(m_turn.historyEntry, entry)) {
        setPlace(m_turn.historyEntry);
        return;
    }
    m_history.record(entry);
    setPlace(entry.id);
    if (record == Record::Turn)
        m_turn.historyEntry = entry.id;
    net::KivAPI::rum(&m_store.net(), u"canvas_scenario"_s,
                     {{u"intent"_s, entry.intent.value_or(QString())}});
}

HistoryEntry CanvasRoom::entryOf(const QString &query, const std::optional<QString> &intent,
                                 const canvas::ViewSpec &spec,
                                 const canvas::SceneOut &scene) const {
    return {.art = scene.art,
            .query = query,
            .time = m_store.stamp(),
            .spec = spec,
            .intent = intent,
            .title = scene.title,
            .page = std::nullopt,
            .source = {}};
}

void CanvasRoom::setPlace(const QUuid &entry) {
    if (std::exchange(m_place, entry) != entry)
        Q_EMIT stepsChanged();
}

bool CanvasRoom::hasEarlier() const {
    return m_history.rowOf(m_place) + 1 < m_history.count();
}

bool CanvasRoom::hasLater() const {
    return m_history.rowOf(m_place) > 0;
}

void CanvasRoom::openHistory(int row) {
    if (row >= 0 && row < m_history.count())
        reopen(HistoryEntry(m_history.at(row)), Record::New);
}

void CanvasRoom::step(int rows) {
    const int row = m_history.rowOf(m_place) + rows;
    if (row < 0 || row >= m_history.count())
        return;
    const HistoryEntry entry = m_history.at(row);
    reopen(entry, Record::None);
    setPlace(entry.id);
}

void CanvasRoom::reopen(const HistoryEntry &entry, Record record) {
    m_store.layout()->closeHistory();
    m_store.layout()->closePages();
    m_lastQuery = entry.query;
    m_lastIntent = entry.intent;
    if (entry.page) {
        openSurface(*entry.page, record);
    } else if (entry.spec) {
        m_drawnSpecKey.reset();
        forgetSource();
        m_phase = Phase::Done;
        if (drawScenario(*entry.spec, {}, Entrance::Still, record))
            nameSource(entry.source);
    }
}

/// Empty when nothing was asked by text.
QString CanvasRoom::questionAbove(qsizetype row) const {
    const QList<Msg> &messages = m_store.chat()->msgs()->messages();
    while (--row >= 0) {
        if (messages.at(row).who == Who::You)
            return messages.at(row).text;
    }
    return {};
}

void CanvasRoom::showMessageCanvas(const QString &messageId) {
    const MessageModel *messages = m_store.chat()->msgs();
    const qsizetype row = messages->rowOf(QUuid::fromString(messageId));
    if (row < 0 || !messages->messages().at(row).spec)
        return;
    const Msg message = messages->messages().at(row);
    m_lastQuery = m_store.call()->spokenQuestion(message).value_or(questionAbove(row));
    m_lastIntent.reset();
    if (!m_lastQuery.value().isEmpty())
        m_lastIntent = canvas::CanvasIntents::classify(m_lastQuery);
    m_drawnSpecKey.reset();
    if (drawScenario(*message.spec, message.chips, Entrance::Still, Record::None))
        nameSource(message);
}

void CanvasRoom::applyRestoredCanvas(const canvas::RestoredCanvas &canvas, const Msg &answer) {
    if (const auto *art = std::get_if<canvas::RestoredArt>(&canvas)) {
        m_lastQuery = art->query;
        m_lastIntent = canvas::CanvasIntents::classify(art->query);
        if (drawScenario(art->spec, answer.chips, Entrance::Still, Record::None))
            nameSource(answer);
        else
            showHint();
    } else if (const auto *hint = std::get_if<canvas::RestoredHint>(&canvas)) {
        m_lastQuery = hint->query;
        showHint();
    }
}

} // namespace kiv::store
