#include "store/CanvasRoom.h"

#include "base/LocalText.h"
#include "canvas/CanvasIntents.h"
#include "canvas/SceneAdapter.h"
#include "canvas/SceneText.h"
#include "net/KivAPI.h"
#include "store/AppStore.h"
#include "store/SkeletonShapes.h"
#include "text/WebLink.h"

namespace kiv::store {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString eventsPanel = u"events"_s;
constexpr auto buildingPause = 500ms;

const QString noDataHint =
    u"No data to draw in this answer — ask for the numbers as a table or a list"_s;

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
        if (!m_panel.value().isEmpty())
            return CanvasState::Panel;
        if (!m_pageView.value().url.isEmpty())
            return CanvasState::Page;
        if (m_failed)
            return CanvasState::Failed;
        return m_canvasHint.value().isEmpty() ? CanvasState::Empty : CanvasState::Hint;
    });
    connect(store.scope(), &ScopeRoom::authChanged, this,
            [this] { m_signedOut = m_store.scope()->auth() == AuthPhase::Anon; });
    connect(&m_history, &HistoryModel::countChanged, this, &CanvasRoom::stepsChanged);
    connect(this, &CanvasRoom::stateChanged, this, [this] {
        if (!framed())
            m_store.layout()->leaveCanvasFull();
    });
}

bool CanvasRoom::framed() const {
    const CanvasState state = m_state;
    return state == CanvasState::ThinkingSkeleton || state == CanvasState::BuildingScene ||
           state == CanvasState::Scene;
}

void CanvasRoom::setIdle() {
    m_buildTask.cancel();
    m_seconds.cancel();
    m_phase = Phase::Idle;
}

void CanvasRoom::showHint() {
    clearDrawnArt();
    closePanel();
    m_pageView = canvas::SurfaceLink();
    m_canvasHint = noDataHint;
    setIdle();
}

bool CanvasRoom::drawScenario(const canvas::ViewSpec &spec, const QList<canvas::ReplyChip> &chips,
                              Entrance entrance, Record record) {
    const bool onScreen = m_phase.value() == Phase::Building || m_phase.value() == Phase::Done;
    if (spec.jsonKey == m_drawnSpecKey && onScreen)
        return true;
    const auto scene = canvas::SceneAdapter::vals(spec, m_lastIntent);
    if (!scene)
        return false;
    if (entrance == Entrance::OfAnotherArt)
        entrance = scene->art == m_art.value() ? Entrance::Still : Entrance::Animated;
    m_drawnSpecKey = spec.jsonKey;
    m_artSpec = spec;
    m_store.account()->giveWay();
    show(*scene, canvas::ArtInfoFactory::make(scene->art, spec, *scene, chips), entrance);
    if (record != Record::None)
        remember(entryOf(m_lastQuery, m_lastIntent, spec, *scene), record);
    return true;
}

void CanvasRoom::show(const canvas::SceneOut &scene, const canvas::ArtInfo &info,
                      Entrance entrance) {
    setPlace({});
    closePanel();
    m_pageView = canvas::SurfaceLink();
    m_canvasHint = QString();
    m_failed = false;
    // Known before the scene shows.
    m_animated = entrance == Entrance::Animated;
    m_artScene = scene;
    m_artInfo = info;
    m_art = scene.art;
    // What is still a skeleton has the shape of what comes.
    m_skeletonShape = skeletonShapeFor(scene.art);
    m_artSkeleton = false;
    m_seconds.cancel();
    if (entrance == Entrance::Animated) {
        m_phase = Phase::Building;
        m_buildTask.restart([this](Cancel cancel) { return finishBuilding(std::move(cancel)); });
    } else {
        m_buildTask.cancel();
        m_vis = m_vis + 1;
        m_phase = Phase::Done;
    }
}

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
            .message = {}};
}

QCoro::Task<void> CanvasRoom::finishBuilding(Cancel cancel) {
    co_await m_store.clock().sleep(buildingPause, std::move(cancel));
    m_vis = m_vis + 1;
    m_phase = Phase::Done;
}

void CanvasRoom::clearDrawnArt() {
    m_art = QString();
    m_artSpec = canvas::ViewSpec();
    m_artScene = canvas::SceneOut();
    m_artInfo = canvas::ArtInfo();
    m_vis = 0;
    m_artSkeleton = false;
    setPlace({});
    forgetSource();
}

void CanvasRoom::clearCanvas() {
    clearDrawnArt();
    m_drawnSpecKey.reset();
    closePanel();
    m_pageView = canvas::SurfaceLink();
    m_canvasHint = QString();
    m_failed = false;
    setIdle();
}

void CanvasRoom::openPanel(const QString &id) {
    m_store.layout()->closePopovers();
    m_store.layout()->closePages();
    clearCanvas();
    m_panel = id;
    if (id == eventsPanel)
        m_store.events()->loadEvents();
}

void CanvasRoom::forgetAll() {
    resetTurn();
    clearCanvas();
    m_lastQuery = QString();
    m_lastIntent.reset();
    m_turn = {};
    m_history.clear();
}

void CanvasRoom::openSurface(const canvas::SurfaceLink &link, Record record) {
    m_store.layout()->closePages();
    clearDrawnArt();
    m_drawnSpecKey.reset();
    closePanel();
    m_canvasHint = QString();
    m_failed = false;
    m_pageView = link;
    setIdle();
    if (record != Record::None) {
        HistoryEntry entry;
        entry.query = m_lastQuery;
        entry.time = m_store.stamp();
        entry.intent = m_lastIntent;
        entry.title = link.title;
        entry.page = link;
        m_history.record(entry);
        setPlace(entry.id);
    }
    net::KivAPI::rum(&m_store.net(), u"canvas_open"_s, {{u"page"_s, link.title}});
}

QUrl CanvasRoom::openLink(const QString &link) {
    const QUrl &base = m_store.net().baseUrl();
    const auto page = canvas::SurfaceMatcher::page(link, base);
    if (!page) {
        const QString target = text::linkTarget(link);
        return target.isEmpty() ? QUrl() : base.resolved(QUrl(target));
    }
    openSurface(*page, Record::New);
    return {};
}

void CanvasRoom::openHistory(int row) {
    if (row >= 0 && row < m_history.count())
        reopen(HistoryEntry(m_history.at(row)), Record::New);
}

bool CanvasRoom::hasEarlier() const {
    return m_history.rowOf(m_place) + 1 < m_history.count();
}

bool CanvasRoom::hasLater() const {
    return m_history.rowOf(m_place) > 0;
}

void CanvasRoom::step(int rows) {
    const int row = m_history.rowOf(m_place) + rows;
    if (row < 0 || row >= m_history.count())
        return;
    const HistoryEntry entry = m_history.at(row);
    reopen(entry, Record::None);
    setPlace(entry.id);
}

void CanvasRoom::setPlace(const QUuid &entry) {
    if (std::exchange(m_place, entry) != entry)
        Q_EMIT stepsChanged();
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
        const bool isDrawn = drawScenario(*entry.spec, {}, Entrance::Still, record);
        const MessageModel *messages = m_store.chat()->msgs();
        const qsizetype source = messages->rowOf(entry.message);
        if (isDrawn && source >= 0)
            nameSource(messages->messages().at(source));
    }
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

void CanvasRoom::refinePoint(const QString &label) {
    m_store.chat()->send(u"Tell me about "_s + label);
}

void CanvasRoom::nameSource(const Msg &message) {
    m_history.setMessage(m_place, message.id);
    m_sourceAt = message.at;
    m_sourceTime = message.at ? shortDayTimeText(*message.at) : QString();
    m_sourceMessageId = message.id.toString(QUuid::WithoutBraces);
    m_store.chat()->msgs()->setOnCanvas(message.id);
}

void CanvasRoom::retranslate() {
    if (m_sourceAt)
        m_sourceTime = shortDayTimeText(*m_sourceAt);
    canvas::ArtInfo info = m_artInfo;
    info.word = canvas::artWord(info.art);
    m_artInfo = info;
}

void CanvasRoom::forgetSource() {
    m_sourceAt.reset();
    m_sourceTime = QString();
    m_sourceMessageId = QString();
    m_store.chat()->msgs()->setOnCanvas({});
}

} // namespace kiv::store
