#include "store/LayoutRoom.h"

#include "store/AppStore.h"

#include <QSettings>

#include <algorithm>
#include <cmath>

namespace kiv::store {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString railWKey = u"zandor.railW"_s;
const QString dockWKey = u"zandor.dockW"_s;
const QString navigatorShareKey = u"zandor.navigatorShare"_s;
const QString railCollapsedKey = u"zandor.railCollapsed"_s;
const QString dockOpenKey = u"zandor.dockOpen"_s;
constexpr auto saveDelay = 200ms;
const QString firstAccountTab = u"profile"_s;

/// A saved size within its limits; nothing when there is none or it is no number.
std::optional<double> savedSize(const QSettings &settings, const QString &key, double least,
                                double most) {
    bool isNumber = false;
    const double size = settings.value(key).toDouble(&isNumber);
    if (!isNumber || !std::isfinite(size))
        return std::nullopt;
    return std::clamp(size, least, most);
}

/// `wanted`, but no more than there is room for and at least `least`.
double clampedFrom(double least, double wanted, double room) {
    return std::clamp(wanted, least, std::max(least, room));
}

} // namespace

LayoutRoom::LayoutRoom(AppStore &store, QSettings &settings, Clock &clock)
    : m_store(store), m_settings(settings), m_clock(clock) {
    m_railShown.setBinding([this] {
        const double dock = m_dockOpen ? dockMinW : 0;
        return !m_railCollapsed && m_windowWidth >= railMinW + dock + canvasMinW;
    });
    m_shownDockW.setBinding([this] {
        const double rail = m_railShown ? m_railW.value() : stripW;
        return clampedFrom(dockMinW, m_dockW, m_windowWidth - rail - canvasMinW);
    });
    m_shownRailW.setBinding([this] {
        const double dock = m_dockOpen ? m_shownDockW.value() : 0;
        return clampedFrom(railMinW, m_railW, m_windowWidth - dock - canvasMinW);
    });
}

LayoutRoom::~LayoutRoom() {
    saveNow();
}

void LayoutRoom::setWindowWidth(double width) {
    m_windowWidth = width;
}

void LayoutRoom::dragRail(double width) {
    if (std::isfinite(width))
        m_railW = std::clamp(width, railMinW, railMaxW);
}

void LayoutRoom::dragDock(double width) {
    if (std::isfinite(width))
        m_dockW = std::clamp(width, dockMinW, dockMaxW);
}

void LayoutRoom::dragNavigator(double share) {
    if (std::isfinite(share))
        m_navigatorShare = std::clamp(share, navigatorMinShare, navigatorMaxShare);
}

void LayoutRoom::toggleRail() {
    // What the canvas hides comes back before it is changed, and a rail that folded by itself
    // beside the dock comes back when the dock goes.
    const bool foldedByItself = m_dockOpen && !m_railShown && !m_railCollapsed;
    if (!leaveCanvasFull() && !foldedByItself)
        m_railCollapsed = !m_railCollapsed;
    m_dockOpen = false;
    close(Popover::TopScope);
    m_store.chat()->markSeen();
}

void LayoutRoom::toggleDock() {
    m_dockOpen = leaveCanvasFull() || !m_dockOpen;
    m_store.chat()->markSeen();
}

void LayoutRoom::toggleCanvasFull() {
    m_canvasFull = !m_canvasFull && m_store.canvas()->framed();
}

bool LayoutRoom::leaveCanvasFull() {
    const bool wasFull = m_canvasFull;
    m_canvasFull = false;
    return wasFull;
}

void LayoutRoom::dockToRail() {
    m_dockOpen = false;
    m_railCollapsed = false;
    m_store.chat()->markSeen();
}

void LayoutRoom::toggle(Popover popover) {
    const bool wasOpen = m_popover == popover;
    closePopovers();
    if (!wasOpen)
        m_popover = popover;
}

void LayoutRoom::toggleScope() {
    toggle(Popover::Scope);
}

void LayoutRoom::toggleTopScope() {
    leaveCanvasFull();
    toggle(Popover::TopScope);
}

void LayoutRoom::toggleHist() {
    leaveCanvasFull();
    toggle(Popover::History);
}

void LayoutRoom::toggleEvents() {
    leaveCanvasFull();
    toggle(Popover::Events);
    if (eventsOpen())
        m_store.events()->loadEvents();
}

void LayoutRoom::toggleProfile() {
    leaveCanvasFull();
    toggle(Popover::Profile);
}

void LayoutRoom::closePopovers() {
    m_popover = Popover::None;
}

void LayoutRoom::close(Popover popover) {
    if (m_popover == popover)
        closePopovers();
}

void LayoutRoom::focusAsk() {
    // The account pages leave no ask bar beside the strip.
    if (!m_dockOpen && !railShown())
        m_store.account()->leave();
    m_focusAskRequests = m_focusAskRequests + 1;
}

void LayoutRoom::openAccount(const QString &tab) {
    leaveCanvasFull();
    closePopovers();
    if (m_store.scope()->auth() == AuthPhase::Anon)
        m_store.session()->openAuthSheet(AuthSheetMode::Login);
    if (m_store.scope()->auth() == AuthPhase::SignedIn)
        m_account = tab.isEmpty() ? firstAccountTab : tab;
}

void LayoutRoom::startCreate(const QString &kind) {
    leaveCanvasFull();
    closePopovers();
    if (m_store.scope()->auth() == AuthPhase::SignedIn)
        m_store.create()->start(kind, m_store.scope()->project());
    else
        m_store.session()->openAuthSheet(AuthSheetMode::Login);
}

bool LayoutRoom::isCreating() const {
    return m_store.create()->isOpen();
}

void LayoutRoom::closeSurfaces() {
    m_store.account()->leave();
    close(Popover::Scope);
    close(Popover::TopScope);
}

void LayoutRoom::closePages() {
    m_store.account()->leave();
    m_store.create()->giveWay();
}

void LayoutRoom::closeAccount() {
    m_account = QString();
}

void LayoutRoom::closeProfile() {
    close(Popover::Profile);
}

void LayoutRoom::closeHistory() {
    close(Popover::History);
}

void LayoutRoom::closeDock() {
    m_dockOpen = false;
}

void LayoutRoom::restoreChrome() {
    if (const auto width = savedSize(m_settings, railWKey, railMinW, railMaxW))
        m_railW = *width;
    if (const auto width = savedSize(m_settings, dockWKey, dockMinW, dockMaxW))
        m_dockW = *width;
    if (const auto share =
            savedSize(m_settings, navigatorShareKey, navigatorMinShare, navigatorMaxShare))
        m_navigatorShare = *share;
    m_railCollapsed = m_settings.value(railCollapsedKey).toBool();
    m_dockOpen = m_settings.value(dockOpenKey).toBool();
}

void LayoutRoom::startPersisting() {
    connect(this, &LayoutRoom::railWChanged, this, [this] { saveSoon(railWKey, railW()); });
    connect(this, &LayoutRoom::dockWChanged, this, [this] { saveSoon(dockWKey, dockW()); });
    connect(this, &LayoutRoom::navigatorShareChanged, this,
            [this] { saveSoon(navigatorShareKey, navigatorShare()); });
    connect(this, &LayoutRoom::railCollapsedChanged, this,
            [this] { m_settings.setValue(railCollapsedKey, railCollapsed()); });
    connect(this, &LayoutRoom::dockOpenChanged, this,
            [this] { m_settings.setValue(dockOpenKey, dockOpen()); });
}

/// Sizes change with every move of the pointer; they are saved once they rest.
void LayoutRoom::saveSoon(const QString &key, double size) {
    m_unsaved[key] = size;
    m_save = m_clock.after(saveDelay, [this] { saveNow(); });
}

void LayoutRoom::saveNow() {
    for (const auto &[key, size] : m_unsaved)
        m_settings.setValue(key, size);
    m_unsaved.clear();
}

} // namespace kiv::store
