// Pages of the platform in the canvas: a real engine, in a window off screen, on a server that
// answers from a script.

#include "ui/Gallery.h"
#include "ui/Workspace.h"
#include "web/WebHost.h"

#include <QDesktopServices>
#include <QDir>
#include <QSignalSpy>
#include <QtTest>

#include <csignal>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

const QString workPage = u"GET project/ferry"_s;
const QColor ground(0x0b7d60);
constexpr int rowHeight = 60;

/// A page of rows that fill its width, one below the other, and that tells the server what it
/// shows.
QByteArray pageOf(const QByteArray &rows) {
    return "<!doctype html><title>Ferry</title><style>body{margin:0;background:#0b7d60}"
           "a,input{display:block;box-sizing:border-box;width:100%;height:60px;color:#fff}</style>"
           "<body>" +
           rows +
           "<script>fetch('/seen?'+encodeURIComponent(document.body.innerText.trim()))"
           "</script>";
}

bool processHolds(const QByteArray &library) {
    QFile maps(u"/proc/self/maps"_s);
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(library);
}

QByteArray readAll(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray parentOf(const QString &process) {
    // The second word behind the name.
    const QByteArray state = readAll(u"/proc/%1/stat"_s.arg(process));
    return state.mid(state.lastIndexOf(')') + 2).split(' ').value(1);
}

/// The processes that this one's engine draws pages in: what its own children have started.
QList<pid_t> renderers() {
    QList<pid_t> found;
    for (const QString &id : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
        if (readAll(u"/proc/%1/cmdline"_s.arg(id)).contains("QtWebEngineProcess") &&
            parentOf(QString::fromLatin1(parentOf(id))).toInt() == getpid())
            found.append(id.toInt());
    }
    return found;
}

QQuickItem *findText(QQuickItem *item, const QString &text) {
    if (item->inherits("QQuickTextEdit") && item->property("text").toString().contains(text) &&
        item->isVisible())
        return item;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = findText(child, text))
            return found;
    }
    return nullptr;
}

} // namespace

class PageTest : public QObject {
    Q_OBJECT

public Q_SLOTS:
    void openInBrowser(const QUrl &url) { m_browser.append(url.toString()); }

private Q_SLOTS:
    void init();
    void cleanup();
    void linkInMessage();
    void leadsElsewhere_data();
    void leadsElsewhere();
    void backAndReload();
    void failures_data();
    void failures();
    void endedProcess();
    void refusals_data();
    void refusals();
    void keys();
    void signOutForgets();
    void looks_data();
    void looks();

private:
    void open(const QByteArray &rows);
    void clickRow(int row);
    /// Also while a message stands in its place.
    QQuickItem *page() const { return m_gallery->window().findChild<QQuickItem *>(u"page"_s); }
    int state() const { return page()->property("state").toInt(); }
    QString failure() const { return page()->property("failure").toString(); }
    QString address() const { return page()->property("address").toUrl().toString(); }
    QString at(const QString &path) const { return m_workspace->backend.url().toString() + path; }

    enum { Loading, Shown, Failed, Refused };

    web::WebHost m_host{QStringLiteral(KIV_WEB_PLUGIN_FILE)};
    QStringList m_browser;
    std::unique_ptr<test::ScriptedBackend> m_elsewhere;
    std::unique_ptr<Workspace> m_workspace;
    std::unique_ptr<Gallery> m_gallery;
};

void PageTest::init() {
    QTest::failOnWarning(QRegularExpression(u"qrc:"_s));
    m_browser.clear();
    QDesktopServices::setUrlHandler(u"http"_s, this, "openInBrowser");
    QDesktopServices::setUrlHandler(u"file"_s, this, "openInBrowser");
    m_elsewhere = std::make_unique<test::ScriptedBackend>();
    m_workspace = std::make_unique<Workspace>();
    m_gallery = std::make_unique<Gallery>();
    QNetworkCookie session("kiv_session", "s3cret");
    session.setHttpOnly(true);
    m_workspace->client->cookies().setCookiesFromUrl({session}, m_workspace->backend.url());
    m_workspace->store->setWebHost(&m_host);
    m_workspace->backend.answerPage(u"GET seen"_s, {});
    QVERIFY(m_workspace->signIn());
    m_gallery->open(*m_workspace->store, {1440, 900});
}

void PageTest::cleanup() {
    m_gallery.reset();
    m_workspace.reset();
    m_elsewhere.reset();
    QDesktopServices::unsetUrlHandler(u"http"_s);
    QDesktopServices::unsetUrlHandler(u"file"_s);
}

void PageTest::open(const QByteArray &rows) {
    m_workspace->backend.answerPage(workPage, pageOf(rows));
    QVERIFY(m_workspace->store->canvas()->openLink(u"/project/ferry"_s).isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(state(), int(Shown), 15000);
    // Before words are drawn the engine takes no click.
    const QPoint middle = m_gallery->middleOf(u"page"_s);
    QTRY_COMPARE(m_gallery->window().grabWindow().pixelColor(middle), ground);
}

void PageTest::clickRow(int row) {
    const QPointF place = page()->mapToScene(QPointF(200, row * rowHeight + rowHeight / 2));
    QTest::mouseClick(&m_gallery->window(), Qt::LeftButton, {}, place.toPoint());
}

/// A link in a message opens the page in the canvas, as who is signed in; only then is the engine
/// in the process.
void PageTest::linkInMessage() {
    m_workspace->backend.answerPage(workPage, pageOf("<a>Three open tasks</a>"));
    m_workspace->row(7, u"[All of it](/project/ferry?tab=tasks) is there."_s);
    m_workspace->row(8, u"[The notes](http://127.0.0.1:9/notes) are elsewhere."_s);
    const auto follow = [&](const QString &text) {
        QQuickItem *words = nullptr;
        QTRY_VERIFY((words = findText(m_gallery->window().contentItem(), text)));
        QTest::qWait(50); // the feed has come to rest
        QTest::mouseClick(&m_gallery->window(), Qt::LeftButton, {},
                          words->mapToScene(QPointF(20, 10)).toPoint());
    };
    follow(u"elsewhere"_s);
    QTRY_COMPARE(m_browser, QStringList{u"http://127.0.0.1:9/notes"_s});
    QVERIFY(!processHolds("WebEngine"));

    follow(u"is there"_s);
    QTRY_COMPARE(m_workspace->store->canvas()->state(), store::CanvasState::Page);
    QTRY_COMPARE_WITH_TIMEOUT(state(), int(Shown), 15000);
    QVERIFY(processHolds("WebEngine"));
    QTRY_COMPARE(m_workspace->backend.count(u"GET seen"_s), 1);
    const auto &backend = m_workspace->backend;
    QCOMPARE(QUrl::fromPercentEncoding(backend.requests(u"GET seen"_s).first().query.toUtf8()),
             u"Three open tasks"_s);
    QCOMPARE(backend.requests(workPage).first().query, u"tab=tasks"_s);
    QCOMPARE(backend.requests(workPage).first().cookies, QByteArray("kiv_session=s3cret"));
    QCOMPARE(m_workspace->store->canvas()->history()->at(0).title, u"Project Work"_s);
    QCOMPARE(m_browser.size(), 1);
    const QPoint middle = m_gallery->middleOf(u"page"_s);
    QTRY_COMPARE(m_gallery->window().grabWindow().pixelColor(middle), ground);
}

void PageTest::leadsElsewhere_data() {
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QString>("browser"); // empty when nothing may be opened there
    QTest::addColumn<QString>("path");    // what the canvas shows then
    const QString here = u"/project/ferry"_s;
    QTest::newRow("a page of the platform")
        << QByteArray("<a href='/team/ferry'>x</a>") << QString() << u"/team/ferry"_s;
    QTest::newRow("in a window of its own")
        << QByteArray("<a target=_blank href='/team/ferry'>x</a>") << QString() << u"/team/ferry"_s;
    QTest::newRow("elsewhere") << QByteArray("<a href='ELSEWHERE/x'>x</a>") << u"ELSEWHERE/x"_s
                               << here;
    QTest::newRow("elsewhere, in a window of its own")
        << QByteArray("<a target=_blank href='ELSEWHERE/x'>x</a>") << u"ELSEWHERE/x"_s << here;
    QTest::newRow("sent on to elsewhere")
        << QByteArray("<a href='/moved'>x</a>") << u"ELSEWHERE/x"_s << here;
    QTest::newRow("a file to keep")
        << QByteArray("<a href='/export.csv'>x</a>") << u"HERE/export.csv"_s << here;
    QTest::newRow("a file to keep, by its link")
        << QByteArray("<a download href='/team/ferry'>x</a>") << u"HERE/team/ferry"_s << here;
    QTest::newRow("a file of this computer")
        << QByteArray("<a href='file:///etc/hostname'>x</a>") << QString() << here;
    QTest::newRow("another program")
        << QByteArray("<a href='mailto:a@b.example'>x</a>") << QString() << here;
    QTest::newRow("a frame from elsewhere")
        << QByteArray("<a onclick=\"document.body.innerHTML="
                      "'<iframe src=ELSEWHERE/x></iframe>'\">x</a>")
        << QString() << here;
}

void PageTest::leadsElsewhere() {
    QFETCH(QByteArray, row);
    QFETCH(QString, browser);
    QFETCH(QString, path);
    test::ScriptedBackend &backend = m_workspace->backend;
    const QString elsewhere = m_elsewhere->url().toString();
    browser.replace(u"ELSEWHERE"_s, elsewhere).replace(u"HERE"_s, at({}));
    backend.answerPage(u"GET team/ferry"_s, pageOf("<a>The team</a>"));
    backend.answerPage(u"GET moved"_s, {}, 302, "Location: " + elsewhere.toUtf8() + "/x\r\n");
    backend.answerPage(u"GET export.csv"_s, "a,b", 200,
                       "Content-Disposition: attachment; filename=export.csv\r\n");
    m_elsewhere->answerPage(u"GET x"_s, "elsewhere");
    open(row.replace("ELSEWHERE", elsewhere.toUtf8()));

    clickRow(0);
    if (!browser.isEmpty())
        QTRY_COMPARE(m_browser, QStringList{browser});
    QTRY_COMPARE(address(), at(path));
    QTRY_COMPARE(state(), int(Shown));
    QTest::qWait(150); // for what must not happen
    QCOMPARE(m_browser, browser.isEmpty() ? QStringList() : QStringList{browser});
    QCOMPARE(m_elsewhere->count(u"GET x"_s), 0);
    QCOMPARE(address(), at(path));
}

void PageTest::backAndReload() {
    m_workspace->backend.answerPage(u"GET team/ferry"_s, pageOf("<a>The team</a>"));
    open("<a href='/team/ferry'>x</a>");
    QVERIFY(!m_gallery->item(u"pageBack"_s)->isEnabled());
    clickRow(0);
    QTRY_COMPARE(address(), at(u"/team/ferry"_s));
    QTRY_VERIFY(m_gallery->item(u"pageBack"_s)->isEnabled());
    QTRY_COMPARE(state(), int(Shown));
    m_gallery->click(u"pageReload"_s);
    QTRY_COMPARE(m_workspace->backend.count(u"GET team/ferry"_s), 2);
    QTRY_COMPARE(state(), int(Shown));
    m_gallery->click(u"pageBrowser"_s);
    QTRY_COMPARE(m_browser, QStringList{at(u"/team/ferry"_s)});
    m_gallery->click(u"pageBack"_s);
    QTRY_COMPARE(address(), at(u"/project/ferry"_s));
}

void PageTest::failures_data() {
    QTest::addColumn<int>("status"); // 0 when the connection breaks
    QTest::addColumn<QString>("line");
    QTest::newRow("broken off") << 0 << u"could not be reached"_s;
    QTest::newRow("an error of the server") << 503 << u"(503)"_s;
}

/// What failed is what the line names and what is tried again, whatever showed before.
void PageTest::failures() {
    QFETCH(int, status);
    QFETCH(QString, line);
    test::ScriptedBackend &backend = m_workspace->backend;
    open("<a>x</a>");
    const QString teamPage = u"GET team/ferry"_s;
    backend.answerPage(teamPage, "<h1>Down</h1>", status);
    if (status == 0)
        backend.breakOff(teamPage);
    QVERIFY(m_workspace->store->canvas()->openLink(u"/team/ferry"_s).isEmpty());
    QTRY_COMPARE(state(), int(Failed));
    QVERIFY2(failure().contains(line), qPrintable(failure()));
    QCOMPARE(address(), at(u"/team/ferry"_s));
    backend.answerPage(teamPage, pageOf("<a>Back again</a>"));
    m_gallery->click(u"canvasChip:0"_s);
    QTRY_COMPARE(state(), int(Shown));
    QCOMPARE(address(), at(u"/team/ferry"_s));
    QTRY_COMPARE(m_gallery->window().grabWindow().pixelColor(m_gallery->middleOf(u"page"_s)),
                 ground);
}

void PageTest::endedProcess() {
    open("<a>x</a>");
    const QList<pid_t> found = renderers();
    QVERIFY(!found.isEmpty());
    for (const pid_t process : found)
        kill(process, SIGKILL);
    QTRY_COMPARE(state(), int(Failed));
    QVERIFY2(failure().contains(u"stopped"_s), qPrintable(failure()));
    m_gallery->click(u"canvasChip:0"_s);
    QTRY_COMPARE(state(), int(Shown));
}

void PageTest::refusals_data() {
    QTest::addColumn<bool>("installed");
    QTest::newRow("not installed") << false;
    QTest::newRow("as root") << true;
}

void PageTest::refusals() {
    QFETCH(bool, installed);
    if (installed && geteuid() != 0)
        QSKIP("only root is refused");
    const QByteArray before = qgetenv("QTWEBENGINE_DISABLE_SANDBOX");
    const auto restore = qScopeGuard([&] { qputenv("QTWEBENGINE_DISABLE_SANDBOX", before); });
    qunsetenv("QTWEBENGINE_DISABLE_SANDBOX");
    web::WebHost nothing(u"/nowhere/kiv-web"_s);
    if (!installed)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Pages cannot be shown: "_s));
    m_workspace->store->setWebHost(installed ? &m_host : &nothing);
    QVERIFY(m_workspace->store->canvas()->openLink(u"/project/ferry"_s).isEmpty());
    QTRY_COMPARE(state(), int(Refused));
    QVERIFY2(failure().contains(installed ? u"root"_s : u"not installed"_s), qPrintable(failure()));
    QCOMPARE(m_workspace->backend.count(workPage), 0);
    m_gallery->save(installed ? u"page-refused-root"_s : u"page-not-installed"_s);
    m_gallery->click(u"canvasChip:0"_s);
    QTRY_COMPARE(m_browser, QStringList{at(u"/project/ferry"_s)});
}

/// The keys go into the page and lead out of it again.
void PageTest::keys() {
    open("<a>Name</a><input oninput=\"fetch('/seen?'+this.value)\">");
    QTRY_COMPARE(m_workspace->backend.count(u"GET seen"_s), 1);
    clickRow(1);
    QTRY_VERIFY(page()->hasActiveFocus());
    for (const char letter : {'f', 'e', 'r', 'r', 'y'})
        QTest::keyClick(&m_gallery->window(), letter);
    QTRY_COMPARE(m_workspace->backend.requests(u"GET seen"_s).last().query, u"ferry"_s);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(m_gallery->hasFocus(u"pageReload"_s));
    m_gallery->press(Qt::Key_Tab);
    QVERIFY(m_gallery->hasFocus(u"pageBrowser"_s));
    m_gallery->press(Qt::Key_Tab);
    QTRY_VERIFY(page()->hasActiveFocus());
    m_gallery->press(Qt::Key_F6);
    QTRY_VERIFY(!page()->hasActiveFocus());
    QVERIFY(!m_gallery->hasFocus(u"pageReload"_s));
}

/// Who signs in next gets neither the page nor what it stored.
void PageTest::signOutForgets() {
    m_workspace->backend.answerPage(u"GET team/ferry"_s, pageOf("<a>x</a>"), 200,
                                    "Set-Cookie: seen=yes; Path=/; Max-Age=3600\r\n");
    open("<a href='/team/ferry'>x</a>");
    clickRow(0);
    QTRY_COMPARE(address(), at(u"/team/ferry"_s));
    QTRY_COMPARE(state(), int(Shown));
    m_workspace->store->session()->logout();
    QTRY_COMPARE(m_workspace->store->scope()->auth(), store::AuthPhase::Anon);
    QTRY_VERIFY(!m_gallery->find(u"page"_s));
    m_workspace->client->cookies().clear();
    QVERIFY(m_workspace->signIn());
    open("<a>x</a>");
    QCOMPARE(m_workspace->backend.requests(workPage).last().cookies, QByteArray());
}

void PageTest::looks_data() {
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

/// Pictures of the states, to be looked at.
void PageTest::looks() {
    QFETCH(bool, dark);
    m_gallery->setDark(dark);
    const QString theme = dark ? u"dark"_s : u"light"_s;
    open("<a href='/team/ferry'>A link</a>");
    m_gallery->save(u"page-%1"_s.arg(theme));
    m_workspace->backend.hold(u"GET team/ferry"_s);
    clickRow(0);
    QTRY_COMPARE(state(), int(Loading));
    m_gallery->save(u"page-loading-%1"_s.arg(theme));
    m_workspace->backend.breakOff(workPage);
    m_workspace->store->canvas()->openLink(u"/project/ferry?tab=finance"_s);
    QTRY_COMPARE(state(), int(Failed));
    m_gallery->save(u"page-failed-%1"_s.arg(theme));
}

} // namespace kiv::ui

int main(int argc, char **argv) {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    if (geteuid() == 0) {
        std::fputs("Running as root: the web engine's sandbox is off for these tests.\n", stderr);
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    }
    QGuiApplication application(argc, argv);
    kiv::ui::PageTest test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}
#include "PageTest.moc"
