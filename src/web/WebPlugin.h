#pragma once

#include "voice/VoicePage.h"

#include <QList>
#include <QNetworkCookie>
#include <QString>
#include <QUrl>
#include <QtPlugin>

#include <memory>

QT_BEGIN_NAMESPACE
class QQmlEngine;
class QQuickItem;
QT_END_NAMESPACE

namespace kiv::web {

enum class PageState { Loading, Shown, Failed };

/// How a page stands.
struct PageStatus {
    PageState state = PageState::Loading;
    QString failure;  ///< a line for the person, when it failed
    int progress = 0; ///< percent of the load
    QUrl url;
    bool canGoBack = false;
};

/// Told what becomes of a page.
class PageWatcher {
public:
    virtual void pageChanged() = 0;
    /// Something that is not shown here was to be opened: a page elsewhere or a file.
    virtual void pageLeft(const QUrl &url) = 0;

protected:
    ~PageWatcher() = default;
};

/// A view of the platform's pages. It has the cookies that it is given and those that its pages
/// set, and takes them with it when it goes.
class Page {
public:
    virtual ~Page() = default;

    /// The item to show; it belongs to the page.
    virtual QQuickItem *view() = 0;
    virtual PageStatus status() const = 0;
    /// Loads an address of the platform with the session's cookies as they are now.
    virtual void open(const QUrl &url, const QList<QNetworkCookie> &session) = 0;
    virtual void back() = 0;
    virtual void reload() = 0;
};

/// What the program wants a page to be.
struct PageWish {
    QUrl home; ///< only pages of its scheme, host and port are shown
    bool dark = false;
};

/// What the web plugin does. The plugin is the only part of the program that knows a web engine,
/// and the engine starts with the first page of either kind.
class WebPlugin {
public:
    virtual ~WebPlugin() = default;

    /// Why the engine cannot run in this process, in a line for the person; empty when it can.
    /// To be asked before a page is made: where it cannot, it would end the process.
    virtual QString refusal() const = 0;
    /// The same about the pages of calls.
    virtual QString callRefusal() const = 0;
    /// `watcher` and `engine` outlive the page.
    virtual std::unique_ptr<Page> makePage(QQmlEngine &engine, const PageWish &wish,
                                           PageWatcher &watcher) = 0;
    /// A page that places calls; it keeps nothing on the disk. `watcher` outlives it. `dark` is the
    /// theme, since the engine may be started for it.
    virtual std::unique_ptr<voice::VoicePage> makeVoicePage(bool dark,
                                                            voice::VoicePageWatcher &watcher) = 0;
};

} // namespace kiv::web

#define KIV_WEB_PLUGIN "kiv.WebPlugin/2"
Q_DECLARE_INTERFACE(kiv::web::WebPlugin, KIV_WEB_PLUGIN)
