#include "store/CanvasRoom.h"

#include "canvas/CanvasIntents.h"
#include "canvas/TableScene.h"
#include "net/KivAPI.h"
#include "store/AppStore.h"
#include "store/DrawnArts.h"

#include <QLocale>

namespace kiv::store {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto settleTime = 1200ms;
constexpr auto buildingPause = 500ms;

const QString noDataHint =
    u"No data to draw in this answer — ask for the numbers as a table or a list"_s;

SkeletonShape shapeFor(const std::optional<QString> &intent) {
    static const QSet<QString> boards{u"retro"_s, u"brief"_s, u"week"_s, u"hiring"_s};
    static const QSet<QString> plots{u"cashflow"_s, u"funnel"_s, u"pulse"_s, u"heatmap"_s};
    static const QSet<QString> cards{u"report"_s, u"unit"_s};
    if (!intent || cards.contains(*intent))
        return SkeletonShape::Cards;
    if (boards.contains(*intent))
        return SkeletonShape::Board;
    return plots.contains(*intent) ? SkeletonShape::Plot : SkeletonShape::Rows;
}

} // namespace

CanvasRoom::CanvasRoom(AppStore &store) : m_store(store) {
    m_state.setBinding([this] {
        switch (m_phase.value()) {
        case Phase::Thinking:
            return CanvasState::ThinkingSkeleton;
        case Phase::Building:
            return CanvasState::BuildingScene;
        case Phase::Done:
            return m_art.value().isEmpty() ? CanvasState::Empty : CanvasState::Scene;
        case Phase::Idle:
            break;
        }
        if (m_signedOut)
            return CanvasState::SignedOut;
        if (m_failed)
            return CanvasState::Failed;
        return m_canvasHint.value().isEmpty() ? CanvasState::Empty : CanvasState::Hint;
    });
    connect(store.scope(), &ScopeRoom::authChanged, this,
            [this] { m_signedOut = m_store.scope()->auth() == AuthPhase::Anon; });
}

void CanvasRoom::beginTurn(const QString &question, QSet<qint64> knownIds) {
    m_scenarioTask.cancel();
    m_buildTask.cancel();
    m_lastIntent = canvas::CanvasIntents::classify(question);
    m_lastQuery = question;
    m_turn = {question, m_lastIntent, {}, {}};
    m_skeletonShape = shapeFor(m_lastIntent);
    clearDrawnArt();
    m_drawnSpecKey.reset();
    m_panel = QString();
    m_pageView.reset();
    m_canvasHint = QString();
    m_failed = false;
    m_awaitingAnswer = true;
    m_knownIds = std::move(knownIds);
    m_scenarioDone.clear();
    m_artSkeleton = true;
    m_phase = Phase::Thinking;
    m_seconds.restart([this](Cancel cancel) { return countSeconds(std::move(cancel)); });
}

QCoro::Task<void> CanvasRoom::countSeconds(Cancel cancel) {
    m_thinkingSeconds = 0;
    while (m_phase.value() == Phase::Thinking) {
        co_await m_store.clock().sleep(1s, cancel);
        m_thinkingSeconds = m_thinkingSeconds + 1;
    }
}

void CanvasRoom::abandonTurn() {
    m_awaitingAnswer = false;
    m_scenarioTask.cancel();
    m_artSkeleton = false;
    if (m_phase.value() == Phase::Thinking || m_phase.value() == Phase::Building)
        setIdle();
}

void CanvasRoom::failTurn() {
    const bool unanswered = m_phase.value() == Phase::Thinking;
    abandonTurn();
    m_failed = unanswered;
}

void CanvasRoom::resetTurn() {
    m_awaitingAnswer = false;
    m_knownIds.clear();
    m_scenarioDone.clear();
    m_earlyDrawnFor.clear();
    m_scenarioTask.cancel();
    m_failed = false;
    m_artSkeleton = false;
    setIdle();
}

void CanvasRoom::setIdle() {
    m_buildTask.cancel();
    m_seconds.cancel();
    m_phase = Phase::Idle;
}

void CanvasRoom::scheduleScenario(int gen, const Msg &message) {
    if (gen != m_store.chat()->chatGen() || !m_awaitingAnswer)
        return;
    if (!message.serverID) {
        runScenario(message, LinkOpening::Open);
        return;
    }
    const qint64 id = *message.serverID;
    if (m_knownIds.contains(id) || m_scenarioDone.contains(id))
        return;
    const bool drawable = message.spec && !message.art.isEmpty();
    const bool fresh = drawable && message.spec->jsonKey != m_drawnSpecKey;
    if (fresh && !m_earlyDrawnFor.contains(id)) {
        m_earlyDrawnFor.insert(id);
        runScenario(message, LinkOpening::Leave);
    }
    m_scenarioTask.restart([this, gen, local = message.id](Cancel cancel) {
        return settle(gen, local, std::move(cancel));
    });
}

QCoro::Task<void> CanvasRoom::settle(int gen, QUuid message, Cancel cancel) {
    co_await m_store.clock().sleep(settleTime, std::move(cancel));
    const MessageModel *messages = m_store.chat()->msgs();
    const qsizetype row = messages->rowOf(message);
    if (gen != m_store.chat()->chatGen() || !m_awaitingAnswer || row < 0)
        co_return;
    const Msg answer = messages->messages().at(row);
    if (!answer.serverID || m_scenarioDone.contains(*answer.serverID))
        co_return;
    m_scenarioDone.insert(*answer.serverID);
    m_awaitingAnswer = false;
    m_store.chat()->answerSettled();
    const bool drawnEarly = m_earlyDrawnFor.contains(*answer.serverID) && answer.spec &&
                            answer.spec->jsonKey == m_turn.drawnSpecKey;
    // Drawn as it is; the person may look at another canvas by now.
    if (!drawnEarly)
        runScenario(answer, LinkOpening::Open);
}

void CanvasRoom::runScenario(const Msg &message, LinkOpening links) {
    m_lastQuery = m_turn.query;
    m_lastIntent = m_turn.intent;
    if (message.spec) {
        m_turn.drawnSpecKey = message.spec->jsonKey;
        nameSource(message);
        drawScenario(*message.spec, Entrance::Animated, Record::Turn);
        return;
    }
    if (links == LinkOpening::Open) {
        const auto link = canvas::SurfaceMatcher::match(message.text, m_store.net().baseUrl());
        if (link) {
            openSurface(*link);
            return;
        }
    }
    showHint();
    net::KivAPI::rum(&m_store.net(), u"canvas_no_data"_s, QJsonObject());
}

void CanvasRoom::showHint() {
    clearDrawnArt();
    m_canvasHint = noDataHint;
    setIdle();
}

void CanvasRoom::drawScenario(const canvas::ViewSpec &spec, Entrance entrance, Record record) {
    const bool onScreen = m_phase.value() == Phase::Building || m_phase.value() == Phase::Done;
    if (spec.jsonKey == m_drawnSpecKey && onScreen)
        return;
    const auto scene = canvas::SceneAdapter::valsAmong(drawnArts(), spec, m_lastIntent);
    if (!scene) {
        showHint();
        return;
    }
    m_drawnSpecKey = spec.jsonKey;
    m_store.layout()->closeAccount();
    m_panel = QString();
    m_pageView.reset();
    m_canvasHint = QString();
    m_failed = false;
    m_artScene = *scene;
    m_artInfo = canvas::ArtInfoFactory::make(scene->art, spec, *scene, {});
    m_art = scene->art;
    // What is still a skeleton has the shape of what comes.
    m_skeletonShape = shapeFor(scene->art);
    m_artSkeleton = false;
    m_animated = entrance == Entrance::Animated;
    m_seconds.cancel();
    if (entrance == Entrance::Animated) {
        m_phase = Phase::Building;
        m_buildTask.restart([this](Cancel cancel) { return finishBuilding(std::move(cancel)); });
    } else {
        m_buildTask.cancel();
        m_vis = m_vis + 1;
        m_phase = Phase::Done;
    }
    if (record == Record::None)
        return;
    const HistoryEntry entry{.art = scene->art,
                             .query = m_lastQuery,
                             .time = m_store.stamp(),
                             .spec = spec,
                             .intent = m_lastIntent,
                             .title = m_artInfo.value().title};
    if (record == Record::Turn && m_history.amend(m_turn.historyEntry, entry))
        return;
    m_history.record(entry);
    if (record == Record::Turn)
        m_turn.historyEntry = entry.id;
    net::KivAPI::rum(&m_store.net(), u"canvas_scenario"_s,
                     {{u"intent"_s, m_lastIntent.value_or(QString())}});
}

QCoro::Task<void> CanvasRoom::finishBuilding(Cancel cancel) {
    co_await m_store.clock().sleep(buildingPause, std::move(cancel));
    m_vis = m_vis + 1;
    m_phase = Phase::Done;
}

void CanvasRoom::clearDrawnArt() {
    m_art = QString();
    m_artScene = canvas::SceneOut();
    m_artInfo = canvas::ArtInfo();
    m_vis = 0;
    m_artSkeleton = false;
    nameSource({});
}

void CanvasRoom::clearCanvas() {
    clearDrawnArt();
    m_drawnSpecKey.reset();
    m_canvasHint = QString();
    m_failed = false;
    setIdle();
}

void CanvasRoom::forgetAll() {
    resetTurn();
    clearCanvas();
    m_panel = QString();
    m_pageView.reset();
    m_lastQuery = QString();
    m_lastIntent.reset();
    m_turn = {};
    m_history.clear();
}

void CanvasRoom::openSurface(const canvas::SurfaceLink &link) {
    m_store.layout()->closePages();
    clearDrawnArt();
    m_panel = QString();
    m_pageView = link;
    setIdle();
    m_history.record(
        {.art = QString(), .query = m_lastQuery, .time = m_store.stamp(), .title = link.title});
    net::KivAPI::rum(&m_store.net(), u"canvas_open"_s, {{u"page"_s, link.title}});
}

void CanvasRoom::openHistory(int row) {
    if (row < 0 || row >= m_history.count())
        return;
    const HistoryEntry entry = m_history.at(row);
    m_store.layout()->closeHistory();
    m_store.layout()->closePages();
    if (!entry.spec)
        return;
    m_lastQuery = entry.query;
    m_lastIntent = entry.intent;
    m_drawnSpecKey.reset();
    nameSource({});
    m_phase = Phase::Done;
    drawScenario(*entry.spec, Entrance::Still, Record::New);
}

void CanvasRoom::showMessageCanvas(const QString &messageId) {
    const MessageModel *messages = m_store.chat()->msgs();
    const qsizetype row = messages->rowOf(QUuid::fromString(messageId));
    if (row < 0 || !messages->messages().at(row).spec)
        return;
    const Msg message = messages->messages().at(row);
    m_lastQuery = QString();
    m_lastIntent.reset();
    for (qsizetype before = row - 1; before >= 0; --before) {
        if (messages->messages().at(before).who == Who::You) {
            m_lastQuery = messages->messages().at(before).text;
            m_lastIntent = canvas::CanvasIntents::classify(m_lastQuery);
            break;
        }
    }
    m_drawnSpecKey.reset();
    nameSource(message);
    drawScenario(*message.spec, Entrance::Still, Record::None);
}

void CanvasRoom::applyRestoredCanvas(const canvas::RestoredCanvas &canvas) {
    if (const auto *art = std::get_if<canvas::RestoredArt>(&canvas)) {
        m_lastQuery = art->query;
        m_lastIntent = canvas::CanvasIntents::classify(art->query);
        const MessageModel *messages = m_store.chat()->msgs();
        for (qsizetype row = messages->count() - 1; row >= 0; --row) {
            const Msg &message = messages->messages().at(row);
            if (message.spec && message.spec->jsonKey == art->spec.jsonKey) {
                nameSource(message);
                break;
            }
        }
        drawScenario(art->spec, Entrance::Still, Record::None);
    } else if (const auto *hint = std::get_if<canvas::RestoredHint>(&canvas)) {
        m_lastQuery = hint->query;
        showHint();
    }
}

void CanvasRoom::refinePoint(const QString &label) {
    m_store.chat()->send(u"Tell me about "_s + label);
}

void CanvasRoom::nameSource(const Msg &message) {
    const bool known = message.at.has_value();
    m_sourceTime =
        known ? QLocale().toString(message.at->toLocalTime(), u"d MMM, HH:mm"_s) : QString();
    m_sourceMessageId = known ? message.id.toString(QUuid::WithoutBraces) : QString();
    m_store.chat()->msgs()->setOnCanvas(known ? message.id : QUuid());
}

} // namespace kiv::store
