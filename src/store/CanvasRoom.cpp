#include "store/CanvasRoom.h"

#include "base/LocalText.h"
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
        if (m_idleView.value() == IdleView::Failure)
            return CanvasState::Failed;
        if (m_idleView.value() == IdleView::KeptScene)
            return CanvasState::Scene;
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

void CanvasRoom::keepScene() {
    if (m_phase.value() == Phase::Done && m_state.value() == CanvasState::Scene)
        m_idleView = IdleView::KeptScene;
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
    putOthersAway();
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
    // Last: a scene that was kept goes over into the new one.
    m_idleView = IdleView::Nothing;
}

QCoro::Task<void> CanvasRoom::finishBuilding(Cancel cancel) {
    co_await m_store.clock().sleep(buildingPause, std::move(cancel));
    m_vis = m_vis + 1;
    m_phase = Phase::Done;
}

void CanvasRoom::putOthersAway() {
    closePanel();
    m_pageView = canvas::SurfaceLink();
    m_canvasHint = QString();
}

void CanvasRoom::clearDrawnArt() {
    m_idleView = IdleView::Nothing;
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
    putOthersAway();
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

void CanvasRoom::refinePoint(const QString &label) {
    m_store.chat()->send(u"Tell me about "_s + label);
}

SceneSource CanvasRoom::sourceOf(const Msg &message) const {
    const ScopeRoom *scope = m_store.scope();
    return {.kind = scope->scopeKind(),
            .name = scope->scopeName(),
            .colorHex = scope->scopeColorHex(),
            .message = message.id,
            .at = message.at};
}

void CanvasRoom::nameSource(const SceneSource &source) {
    MessageModel *messages = m_store.chat()->msgs();
    const bool isHere = messages->rowOf(source.message) >= 0;
    m_history.setSource(m_place, source);
    m_source = source;
    m_sourceTime = source.at ? shortDayTimeText(*source.at) : QString();
    m_sourceMessageId = isHere ? source.message.toString(QUuid::WithoutBraces) : QString();
    messages->setOnCanvas(isHere ? source.message : QUuid());
}

void CanvasRoom::retranslate() {
    if (const auto at = m_source.value().at)
        m_sourceTime = shortDayTimeText(*at);
    canvas::ArtInfo info = m_artInfo;
    info.word = canvas::artWord(info.art);
    m_artInfo = info;
}

void CanvasRoom::forgetSource() {
    m_source = SceneSource();
    m_sourceTime = QString();
    m_sourceMessageId = QString();
    m_store.chat()->msgs()->setOnCanvas({});
}

} // namespace kiv::store
