// From a question to its drawing: when an answer is final enough to draw, and what of it.

#include "canvas/CanvasIntents.h"
#include "canvas/SceneAdapter.h"
#include "net/KivAPI.h"
#include "store/AppStore.h"
#include "store/CanvasRoom.h"
#include "store/SkeletonShapes.h"

namespace kiv::store {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

void CanvasRoom::beginTurn(const QString &question, QSet<qint64> knownIds) {
    m_scenarioTask.cancel();
    m_buildTask.cancel();
    m_lastIntent = canvas::CanvasIntents::classify(question);
    m_lastQuery = question;
    m_turn = {question, m_lastIntent, {}, {}, {}};
    m_skeletonShape = skeletonShapeFor(m_lastIntent);
    clearDrawnArt();
    m_drawnSpecKey.reset();
    putOthersAway();
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
    m_turn.answer = QUuid();
    m_scenarioTask.cancel();
    m_artSkeleton = false;
    if (m_phase.value() == Phase::Thinking || m_phase.value() == Phase::Building)
        setIdle();
}

void CanvasRoom::failTurn() {
    const bool unanswered = m_phase.value() == Phase::Thinking;
    abandonTurn();
    if (unanswered)
        m_idleView = IdleView::Failure;
}

void CanvasRoom::resetTurn() {
    m_awaitingAnswer = false;
    m_turn.answer = QUuid();
    m_knownIds.clear();
    m_scenarioDone.clear();
    m_earlyDrawnFor.clear();
    m_scenarioTask.cancel();
    if (m_idleView.value() == IdleView::Failure)
        m_idleView = IdleView::Nothing;
    m_artSkeleton = false;
    setIdle();
}

bool CanvasRoom::isAnswer(const Msg &message) const {
    if (!m_awaitingAnswer)
        return message.id == m_turn.answer;
    return !message.serverID || !m_knownIds.contains(*message.serverID);
}

void CanvasRoom::scheduleScenario(int gen, const Msg &message) {
    if (gen != m_store.chat()->chatGen() || !isAnswer(message))
        return;
    if (!message.serverID) {
        // It cannot grow: no later row can be told to be the same. The answer may still come.
        runScenario(message, LinkOpening::Open);
        return;
    }
    if (mayDrawEarly(message)) {
        m_earlyDrawnFor.insert(*message.serverID);
        runScenario(message, LinkOpening::Leave);
    }
    m_scenarioTask.restart([this, gen, local = message.id](Cancel cancel) {
        return settle(gen, local, std::move(cancel));
    });
}

/// A structured answer shows on the canvas while its prose still streams, once.
bool CanvasRoom::mayDrawEarly(const Msg &message) const {
    const qint64 id = *message.serverID;
    const bool isDrawable = message.isWhole && !message.art.isEmpty();
    return isDrawable && message.spec->jsonKey != m_drawnSpecKey && !m_scenarioDone.contains(id) &&
           !m_earlyDrawnFor.contains(id);
}

QCoro::Task<void> CanvasRoom::settle(int gen, QUuid message, Cancel cancel) {
    co_await m_store.clock().sleep(settleTime, std::move(cancel));
    const MessageModel *messages = m_store.chat()->msgs();
    const qsizetype row = messages->rowOf(message);
    if (gen != m_store.chat()->chatGen() || row < 0)
        co_return;
    const Msg answer = messages->messages().at(row);
    m_store.chat()->answerSettled(answer.id);
    m_awaitingAnswer = false;
    const bool isDrawnBefore =
        m_scenarioDone.contains(*answer.serverID) || m_earlyDrawnFor.contains(*answer.serverID);
    m_turn.answer = answer.id;
    m_scenarioDone.insert(*answer.serverID);
    if (isDrawnBefore)
        drawAgain(answer);
    else
        runScenario(answer, LinkOpening::Open);
}

void CanvasRoom::adoptAnswer(const QUuid &answer, const QString &question) {
    if (!m_awaitingAnswer)
        m_turn = {question, canvas::CanvasIntents::classify(question), {}, {}, answer};
}

/// Whether the scene on the canvas was made from this message.
bool CanvasRoom::isDrawn(const Msg &message) const {
    return m_state.value() == CanvasState::Scene &&
           m_sourceMessageId.value() == message.id.toString(QUuid::WithoutBraces);
}

bool CanvasRoom::hasNewDrawing(const Msg &answer) const {
    return answer.spec && answer.spec->jsonKey != m_turn.drawnSpecKey;
}

void CanvasRoom::runScenario(const Msg &message, LinkOpening links) {
    m_lastQuery = m_turn.query;
    m_lastIntent = m_turn.intent;
    if (message.spec) {
        m_turn.drawnSpecKey = message.spec->jsonKey;
        // An answer that goes on moves the marks of its scene.
        const Entrance entrance = isDrawn(message) ? Entrance::OfAnotherArt : Entrance::Animated;
        if (drawScenario(*message.spec, message.chips, entrance, Record::Turn)) {
            nameSource(message);
            return;
        }
    } else if (links == LinkOpening::Open) {
        const auto link = canvas::SurfaceMatcher::match(message.text, m_store.net().baseUrl());
        if (link) {
            openSurface(*link, Record::New);
            return;
        }
    }
    showHint();
    net::KivAPI::rum(&m_store.net(), u"canvas_no_data"_s, QJsonObject());
}

/// An answer whose figures were drawn or told to be missing has settled, and may have gone on.
void CanvasRoom::drawAgain(const Msg &answer) {
    if (!hasNewDrawing(answer))
        return;
    // A copy that was opened from the history stays as it was.
    const bool isOwn = m_place.isNull() || m_place == m_turn.historyEntry;
    if ((isOwn && isDrawn(answer)) || m_state.value() == CanvasState::Hint) {
        runScenario(answer, LinkOpening::Leave);
        return;
    }
    // The person looks at another canvas; the history has this one as it is now.
    const auto scene = canvas::SceneAdapter::vals(*answer.spec, m_turn.intent);
    if (!scene)
        return;
    m_history.amend(m_turn.historyEntry,
                    entryOf(m_turn.query, m_turn.intent, *answer.spec, *scene));
    m_history.setSource(m_turn.historyEntry, sourceOf(answer));
}

} // namespace kiv::store
