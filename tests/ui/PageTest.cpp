#include "support/Processes.h"
#include "ui/PageWindow.h"

#include <QtTest>

#include <csignal>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kiv::ui {

/// A page in the canvas: its states, its keys, and what is left of it.
class PageTest : public PageWindow {
    Q_OBJECT

private Q_SLOTS:
    void backAndReload();
    void failures_data();
    void failures();
    void endedProcess();
    void goesBeforeItIsThere();
    void refusals_data();
    void refusals();
    void keys();
    void signOutForgets();
};

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
    const QList<qint64> found = test::renderers();
    QVERIFY(!found.isEmpty());
    for (const qint64 process : found)
        kill(static_cast<pid_t>(process), SIGKILL);
    QTRY_COMPARE(state(), int(Failed));
    QVERIFY2(failure().contains(u"stopped"_s), qPrintable(failure()));
    m_gallery->click(u"canvasChip:0"_s);
    QTRY_COMPARE(state(), int(Shown));
}

/// The session's cookies may still be on their way into the engine.
void PageTest::goesBeforeItIsThere() {
    open("<a>x</a>");
    QVERIFY(m_workspace->store->canvas()->openLink(u"/team/ferry"_s).isEmpty());
    QTRY_COMPARE(state(), int(Loading));
    QCoreApplication::processEvents();
    m_gallery.reset();
    QTest::qWait(50);
    QCOMPARE(m_workspace->backend.count(u"GET team/ferry"_s), 0);
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
    open("<a>Name</a><input oninput=\"if (this.value.endsWith('y')) fetch('/seen?'+this.value)\">");
    QTRY_COMPARE(m_workspace->backend.count(u"GET seen"_s), 1);
    clickRow(1);
    QTRY_VERIFY(page()->hasActiveFocus());
    for (const char letter : {'f', 'e', 'r', 'r', 'y'})
        QTest::keyClick(&m_gallery->window(), letter);
    QTRY_COMPARE(m_workspace->backend.count(u"GET seen"_s), 2);
    QCOMPARE(m_workspace->backend.requests(u"GET seen"_s).last().query, u"ferry"_s);
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

} // namespace kiv::ui

int main(int argc, char **argv) {
    kiv::ui::PageTest test;
    QTEST_SET_MAIN_SOURCE_PATH
    return kiv::ui::runPageTest(test, argc, argv);
}

#include "PageTest.moc"
