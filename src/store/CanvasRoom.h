#pragma once

#include "base/Cancel.h"
#include "base/Clock.h"
#include "base/Work.h"
#include "canvas/ArtInfo.h"
#include "canvas/RestoredCanvas.h"
#include "canvas/SceneOut.h"
#include "canvas/SurfaceMatcher.h"
#include "canvas/ViewSpec.h"
#include "store/Enums.h"
#include "store/HistoryModel.h"
#include "store/Msg.h"

#include <QObject>
#include <QProperty>
#include <QSet>

namespace kiv::store {

class AppStore;

/// The canvas: when an answer is final enough to draw, what to draw, and how the canvas moves
/// through its states.
class CanvasRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(kiv::store::Phase phase READ phase NOTIFY phaseChanged)
    Q_PROPERTY(kiv::store::CanvasState state READ state NOTIFY stateChanged)
    Q_PROPERTY(bool framed READ framed NOTIFY stateChanged)
    Q_PROPERTY(QString art READ art NOTIFY artChanged)
    Q_PROPERTY(kiv::canvas::SceneOut artScene READ artScene NOTIFY artSceneChanged)
    Q_PROPERTY(kiv::canvas::ArtInfo artInfo READ artInfo NOTIFY artInfoChanged)
    Q_PROPERTY(QString canvasTitle READ canvasTitle NOTIFY artInfoChanged)
    Q_PROPERTY(QString canvasHint READ canvasHint NOTIFY canvasHintChanged)
    Q_PROPERTY(bool artSkeleton READ artSkeleton NOTIFY artSkeletonChanged)
    Q_PROPERTY(
        kiv::store::SkeletonShape skeletonShape READ skeletonShape NOTIFY skeletonShapeChanged)
    Q_PROPERTY(QString query READ query NOTIFY queryChanged)
    Q_PROPERTY(int vis READ vis NOTIFY visChanged)
    Q_PROPERTY(bool animated READ animated NOTIFY animatedChanged)
    Q_PROPERTY(int thinkingSeconds READ thinkingSeconds NOTIFY thinkingSecondsChanged)
    Q_PROPERTY(kiv::store::SceneSource source READ source NOTIFY sourceChanged)
    Q_PROPERTY(QString sourceTime READ sourceTime NOTIFY sourceTimeChanged)
    Q_PROPERTY(QString sourceMessageId READ sourceMessageId NOTIFY sourceMessageIdChanged)
    Q_PROPERTY(kiv::canvas::SurfaceLink pageView READ pageView NOTIFY pageViewChanged)
    Q_PROPERTY(QString panel READ panel NOTIFY panelChanged)
    Q_PROPERTY(kiv::store::HistoryModel *history READ history CONSTANT)
    Q_PROPERTY(bool hasEarlier READ hasEarlier NOTIFY stepsChanged)
    Q_PROPERTY(bool hasLater READ hasLater NOTIFY stepsChanged)
public:
    explicit CanvasRoom(AppStore &store);

    Phase phase() const { return m_phase; }
    /// What the view shows: a scene in the phases building and done, and one that is kept.
    CanvasState state() const { return m_state; }
    /// Whether there is a scene, or a scene is on its way.
    bool framed() const;
    QString art() const { return m_art; }
    canvas::SceneOut artScene() const { return m_artScene; }
    /// What the scene was made from.
    const canvas::ViewSpec &artSpec() const { return m_artSpec; }
    canvas::ArtInfo artInfo() const { return m_artInfo; }
    QString canvasTitle() const { return m_artInfo.value().title; }
    QString canvasHint() const { return m_canvasHint; }
    bool artSkeleton() const { return m_artSkeleton; }
    SkeletonShape skeletonShape() const { return m_skeletonShape; }
    /// The question that the canvas answers.
    QString query() const { return m_lastQuery; }
    /// Grows by one each time a scene becomes visible.
    int vis() const { return m_vis; }
    /// Whether the scene on screen came with its entrance.
    bool animated() const { return m_animated; }
    int thinkingSeconds() const { return m_thinkingSeconds; }
    /// The answer on the canvas, of whichever chat.
    SceneSource source() const { return m_source; }
    /// When it was written, such as "22 Nov, 09:42".
    QString sourceTime() const { return m_sourceTime; }
    /// Empty when it is not in the conversation that shows.
    QString sourceMessageId() const { return m_sourceMessageId; }
    /// The page of the platform that the canvas shows; without an address for none.
    canvas::SurfaceLink pageView() const { return m_pageView; }
    /// The page of the program itself that the canvas shows, "agents", "calls" or "events";
    /// empty for none.
    QString panel() const { return m_panel; }
    HistoryModel *history() { return &m_history; }
    /// Whether the history holds something older than what the canvas shows, or newer.
    bool hasEarlier() const;
    bool hasLater() const;

    /// How long nothing more has to come of an answer until it is taken to be complete.
    static constexpr Clock::Milliseconds settleTime{1200};
    bool awaitingAnswer() const { return m_awaitingAnswer; }
    /// Whether a row of the agent's side belongs to the answer of the current turn: one that is
    /// awaited, or one that had settled and goes on.
    bool isAnswer(const Msg &message) const;
    bool isKnown(qint64 id) const { return m_knownIds.contains(id); }
    /// Rows that turned out to be older than the question; none of them is its answer.
    void addKnown(const QSet<qint64> &ids) { m_knownIds.unite(ids); }

    Q_INVOKABLE void openHistory(int row);
    /// Go through the history without adding to it.
    Q_INVOKABLE void stepBack() { step(1); }
    Q_INVOKABLE void stepForward() { step(-1); }
    Q_INVOKABLE void refinePoint(const QString &label);
    /// Draws what a message carries once more.
    Q_INVOKABLE void showMessageCanvas(const QString &messageId);
    Q_INVOKABLE void clearCanvas();
    /// Opens a link of a message in the canvas when it leads to a page of the platform. What comes
    /// back is the address to open in the browser; empty when there is none.
    Q_INVOKABLE QUrl openLink(const QString &link);
    /// Shows a page of the program itself in place of what was drawn.
    Q_INVOKABLE void openPanel(const QString &id);
    Q_INVOKABLE void closePanel() { m_panel = QString(); }

    /// A question was sent: the old scene goes, the skeleton comes.
    void beginTurn(const QString &question, QSet<qint64> knownIds);
    /// The turn ended without a scene: the canvas goes back to what is idle.
    void abandonTurn();
    /// As abandonTurn, and the canvas says that no answer came.
    void failTurn();
    /// The connection is new: nothing of the old chat is waited for.
    void resetTurn();
    /// Ends the phase without touching what was drawn.
    void setIdle();
    /// The scene that is drawn stays in sight while its chat is read anew.
    void keepScene();
    void scheduleScenario(int gen, const Msg &message);
    /// A message answers a question that was spoken: it is the answer of the turn, unless that of
    /// a question that was typed is awaited.
    void adoptAnswer(const QUuid &answer, const QString &question);
    /// `answer` is the newest answer, which it was restored from.
    void applyRestoredCanvas(const canvas::RestoredCanvas &canvas, const Msg &answer);
    /// Signed out: canvas and history go.
    void forgetAll();
    /// The language has changed.
    void retranslate();

Q_SIGNALS:
    void phaseChanged();
    void stateChanged();
    void artChanged();
    void artSceneChanged();
    void artInfoChanged();
    void canvasHintChanged();
    void artSkeletonChanged();
    void skeletonShapeChanged();
    void queryChanged();
    void visChanged();
    void animatedChanged();
    void thinkingSecondsChanged();
    void sourceChanged();
    void sourceTimeChanged();
    void sourceMessageIdChanged();
    void pageViewChanged();
    void stepsChanged();
    void panelChanged();

private:
    /// How a scene comes: with its entrance, without, or with it unless that art is drawn already.
    enum class Entrance { Animated, Still, OfAnotherArt };
    /// What of the history a drawn canvas becomes: the entry of the current turn, a new one, none.
    enum class Record { Turn, New, None };
    enum class LinkOpening { Open, Leave };
    /// What the canvas shows in the phase idle when nothing else wants it.
    enum class IdleView { Nothing, Failure, KeptScene };
    /// The question whose answer is awaited, whatever the canvas shows meanwhile.
    struct Turn {
        QString query;
        std::optional<QString> intent;
        QUuid historyEntry;
        std::optional<QString> drawnSpecKey;
        QUuid answer; ///< the message that settled as the answer
    };

    bool mayDrawEarly(const Msg &message) const;
    QString questionAbove(qsizetype row) const;
    bool isDrawn(const Msg &message) const;
    bool hasNewDrawing(const Msg &answer) const;
    QCoro::Task<void> settle(int gen, QUuid message, Cancel cancel);
    QCoro::Task<void> finishBuilding(Cancel cancel);
    QCoro::Task<void> countSeconds(Cancel cancel);
    void runScenario(const Msg &message, LinkOpening links);
    void drawAgain(const Msg &answer);
    /// Whether there is anything to draw in it.
    bool drawScenario(const canvas::ViewSpec &spec, const QList<canvas::ReplyChip> &chips,
                      Entrance entrance, Record record);
    void show(const canvas::SceneOut &scene, const canvas::ArtInfo &info, Entrance entrance);
    void remember(const HistoryEntry &entry, Record record);
    void step(int rows);
    void reopen(const HistoryEntry &entry, Record record);
    void setPlace(const QUuid &entry);
    HistoryEntry entryOf(const QString &query, const std::optional<QString> &intent,
                         const canvas::ViewSpec &spec, const canvas::SceneOut &scene) const;
    void showHint();
    void clearDrawnArt();
    /// What stands in the place of a scene goes: panel, page, hint, failure.
    void putOthersAway();
    void openSurface(const canvas::SurfaceLink &link, Record record);
    /// The source that a message of the conversation is.
    SceneSource sourceOf(const Msg &message) const;
    void nameSource(const SceneSource &source);
    void nameSource(const Msg &message) { nameSource(sourceOf(message)); }
    void forgetSource();

    AppStore &m_store;
    HistoryModel m_history;
    QUuid m_place; ///< the entry of the history that the canvas shows; null for none
    bool m_awaitingAnswer = false;
    QSet<qint64> m_knownIds;
    QSet<qint64> m_scenarioDone;
    QSet<qint64> m_earlyDrawnFor;
    Turn m_turn;
    std::optional<QString> m_drawnSpecKey;
    canvas::ViewSpec m_artSpec;
    std::optional<QString> m_lastIntent;

    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CanvasRoom, Phase, m_phase, Phase::Idle,
                                         &CanvasRoom::phaseChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CanvasRoom, CanvasState, m_state, CanvasState::Empty,
                                         &CanvasRoom::stateChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CanvasRoom, QString, m_art, &CanvasRoom::artChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CanvasRoom, canvas::SceneOut, m_artScene,
                               &CanvasRoom::artSceneChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CanvasRoom, canvas::ArtInfo, m_artInfo, &CanvasRoom::artInfoChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CanvasRoom, QString, m_canvasHint, &CanvasRoom::canvasHintChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CanvasRoom, bool, m_artSkeleton, &CanvasRoom::artSkeletonChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CanvasRoom, SkeletonShape, m_skeletonShape,
                                         SkeletonShape::Cards, &CanvasRoom::skeletonShapeChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CanvasRoom, QString, m_lastQuery, &CanvasRoom::queryChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CanvasRoom, int, m_vis, &CanvasRoom::visChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CanvasRoom, bool, m_animated, &CanvasRoom::animatedChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CanvasRoom, IdleView, m_idleView, IdleView::Nothing)
    Q_OBJECT_BINDABLE_PROPERTY(CanvasRoom, bool, m_signedOut)
    Q_OBJECT_BINDABLE_PROPERTY(CanvasRoom, int, m_thinkingSeconds,
                               &CanvasRoom::thinkingSecondsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CanvasRoom, SceneSource, m_source, &CanvasRoom::sourceChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CanvasRoom, QString, m_sourceTime, &CanvasRoom::sourceTimeChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CanvasRoom, QString, m_sourceMessageId,
                               &CanvasRoom::sourceMessageIdChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CanvasRoom, canvas::SurfaceLink, m_pageView,
                               &CanvasRoom::pageViewChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CanvasRoom, QString, m_panel, &CanvasRoom::panelChanged)

    Work m_scenarioTask;
    Work m_buildTask;
    Work m_seconds;
};

} // namespace kiv::store
