#pragma once

#include "base/Clock.h"

#include <QObject>
#include <QProperty>
#include <QtQmlIntegration/qqmlintegration.h>

#include <map>

class QSettings;

namespace kiv::store {

class AppStore;

/// Panels and popovers: what the person set, what is saved of it, and what fits the window.
/// Widths are device-independent pixels.
class LayoutRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(double railW READ railW NOTIFY railWChanged)
    Q_PROPERTY(double dockW READ dockW NOTIFY dockWChanged)
    Q_PROPERTY(double navigatorShare READ navigatorShare NOTIFY navigatorShareChanged)
    Q_PROPERTY(bool railCollapsed READ railCollapsed NOTIFY railCollapsedChanged)
    Q_PROPERTY(bool dockOpen READ dockOpen NOTIFY dockOpenChanged)
    Q_PROPERTY(bool scopeOpen READ scopeOpen NOTIFY popoverChanged)
    Q_PROPERTY(bool topScopeOpen READ topScopeOpen NOTIFY popoverChanged)
    Q_PROPERTY(bool histOpen READ histOpen NOTIFY popoverChanged)
    Q_PROPERTY(bool eventsOpen READ eventsOpen NOTIFY popoverChanged)
    Q_PROPERTY(bool profileOpen READ profileOpen NOTIFY popoverChanged)
    Q_PROPERTY(QString account READ account NOTIFY accountChanged)
    Q_PROPERTY(int focusAskRequests READ focusAskRequests NOTIFY focusAskRequestsChanged)
    Q_PROPERTY(double leastRailW READ leastRailW CONSTANT)
    Q_PROPERTY(double mostRailW READ mostRailW CONSTANT)
    Q_PROPERTY(double leastDockW READ leastDockW CONSTANT)
    Q_PROPERTY(double mostDockW READ mostDockW CONSTANT)
    Q_PROPERTY(double leastNavigatorShare READ leastNavigatorShare CONSTANT)
    Q_PROPERTY(double mostNavigatorShare READ mostNavigatorShare CONSTANT)
    Q_PROPERTY(double shownRailW READ shownRailW NOTIFY shownRailWChanged)
    Q_PROPERTY(double shownDockW READ shownDockW NOTIFY shownDockWChanged)
    Q_PROPERTY(bool railShown READ railShown NOTIFY railShownChanged)
    Q_PROPERTY(bool canvasFull READ canvasFull NOTIFY canvasFullChanged)
public:
    static constexpr double stripW = 56;
    static constexpr double canvasMinW = 360;
    static constexpr double railMinW = 280, railMaxW = 640, railFirstW = 360;
    static constexpr double dockMinW = 480, dockMaxW = 1100, dockFirstW = 760;
    static constexpr double navigatorMinShare = 0.15, navigatorMaxShare = 0.55;

    LayoutRoom(AppStore &store, QSettings &settings, Clock &clock);
    ~LayoutRoom() override;

    double railW() const { return m_railW; }
    double dockW() const { return m_dockW; }
    /// The part of the rail's height that the list of projects and agents may take.
    double navigatorShare() const { return m_navigatorShare; }
    bool railCollapsed() const { return m_railCollapsed; }
    bool dockOpen() const { return m_dockOpen; }
    bool scopeOpen() const { return m_popover == Popover::Scope; }
    bool topScopeOpen() const { return m_popover == Popover::TopScope; }
    bool histOpen() const { return m_popover == Popover::History; }
    bool eventsOpen() const { return m_popover == Popover::Events; }
    bool profileOpen() const { return m_popover == Popover::Profile; }
    QString account() const { return m_account; }
    bool isAccount() const { return !m_account.value().isEmpty(); }
    bool isCreating() const;
    bool isFeed() const { return !isAccount() && !isCreating(); }

    /// Counts how often the cursor was asked into the ask bar; the view follows each.
    int focusAskRequests() const { return m_focusAskRequests; }

    /// What fits the window now; narrowness never changes what the person set. Canvas, rail and
    /// dock share the window: the dock gives way first, then the rail, which then folds by itself.
    double shownRailW() const { return m_shownRailW; }
    double shownDockW() const { return m_shownDockW; }
    bool railShown() const { return m_railShown; }
    /// Whether the canvas has the window for itself.
    bool canvasFull() const { return m_canvasFull; }

    static double leastRailW() { return railMinW; }
    static double mostRailW() { return railMaxW; }
    static double leastDockW() { return dockMinW; }
    static double mostDockW() { return dockMaxW; }
    static double leastNavigatorShare() { return navigatorMinShare; }
    static double mostNavigatorShare() { return navigatorMaxShare; }

    Q_INVOKABLE void setWindowWidth(double width);
    Q_INVOKABLE void dragRail(double width);
    Q_INVOKABLE void dragDock(double width);
    Q_INVOKABLE void dragNavigator(double share);
    Q_INVOKABLE void resetRail() { dragRail(railFirstW); }
    Q_INVOKABLE void resetDock() { dragDock(dockFirstW); }
    Q_INVOKABLE void resetNavigator() { dragNavigator(navigatorMaxShare); }
    Q_INVOKABLE void toggleRail();
    Q_INVOKABLE void toggleDock();
    Q_INVOKABLE void dockToRail();
    Q_INVOKABLE void toggleScope();
    Q_INVOKABLE void toggleTopScope();
    Q_INVOKABLE void toggleHist();
    Q_INVOKABLE void toggleEvents();
    Q_INVOKABLE void toggleProfile();
    Q_INVOKABLE void closePopovers();
    Q_INVOKABLE void focusAsk();
    /// Opens the account pages, at the first one when no tab is named.
    Q_INVOKABLE void openAccount(const QString &tab = {});
    /// Opens the wizard for a "project", for an "agent" of the current project, or to ask which.
    /// Somebody who is not signed in is asked to sign in first.
    Q_INVOKABLE void startCreate(const QString &kind = {});
    /// Does nothing while there is no scene.
    Q_INVOKABLE void toggleCanvasFull();
    /// Whether the canvas had the window for itself.
    Q_INVOKABLE bool leaveCanvasFull();

    /// Closes account, wizard and scope popovers before the scope changes.
    void closeSurfaces();
    void closePages();
    void closeAccount();
    void closeProfile();
    void closeHistory();
    void closeDock();

    void restoreChrome();
    void startPersisting();

Q_SIGNALS:
    void railWChanged();
    void dockWChanged();
    void navigatorShareChanged();
    void railCollapsedChanged();
    void dockOpenChanged();
    void popoverChanged();
    void accountChanged();
    void focusAskRequestsChanged();
    void shownRailWChanged();
    void shownDockWChanged();
    void railShownChanged();
    void canvasFullChanged();

private:
    /// One at a time is open.
    enum class Popover { None, Scope, TopScope, History, Events, Profile };

    void toggle(Popover popover);
    void close(Popover popover);
    void saveSoon(const QString &key, double size);
    void saveNow();

    AppStore &m_store;
    QSettings &m_settings;
    Clock &m_clock;
    Clock::Timer m_save;
    std::map<QString, double> m_unsaved; ///< sizes, by the key of their setting

    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(LayoutRoom, double, m_railW, railFirstW,
                                         &LayoutRoom::railWChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(LayoutRoom, double, m_dockW, dockFirstW,
                                         &LayoutRoom::dockWChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(LayoutRoom, double, m_navigatorShare, navigatorMaxShare,
                                         &LayoutRoom::navigatorShareChanged)
    Q_OBJECT_BINDABLE_PROPERTY(LayoutRoom, bool, m_railCollapsed, &LayoutRoom::railCollapsedChanged)
    Q_OBJECT_BINDABLE_PROPERTY(LayoutRoom, bool, m_dockOpen, &LayoutRoom::dockOpenChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(LayoutRoom, Popover, m_popover, Popover::None,
                                         &LayoutRoom::popoverChanged)
    Q_OBJECT_BINDABLE_PROPERTY(LayoutRoom, QString, m_account, &LayoutRoom::accountChanged)
    Q_OBJECT_BINDABLE_PROPERTY(LayoutRoom, int, m_focusAskRequests,
                               &LayoutRoom::focusAskRequestsChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(LayoutRoom, double, m_windowWidth, 1440)
    Q_OBJECT_BINDABLE_PROPERTY(LayoutRoom, double, m_shownRailW, &LayoutRoom::shownRailWChanged)
    Q_OBJECT_BINDABLE_PROPERTY(LayoutRoom, double, m_shownDockW, &LayoutRoom::shownDockWChanged)
    Q_OBJECT_BINDABLE_PROPERTY(LayoutRoom, bool, m_railShown, &LayoutRoom::railShownChanged)
    Q_OBJECT_BINDABLE_PROPERTY(LayoutRoom, bool, m_canvasFull, &LayoutRoom::canvasFullChanged)
};

} // namespace kiv::store
