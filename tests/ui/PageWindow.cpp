#include "ui/PageWindow.h"

#include "app/Graphics.h"
#include "support/Processes.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

constexpr int rowHeight = 60;

} // namespace

QByteArray PageWindow::pageOf(const QByteArray &rows) {
    return "<!doctype html><title>Ferry</title><style>body{margin:0;background:#0b7d60}"
           "a,input{display:block;box-sizing:border-box;width:100%;height:60px;color:#fff}</style>"
           "<body>" +
           rows +
           "<script>fetch('/seen?'+encodeURIComponent(document.body.innerText.trim()))"
           "</script>";
}

void PageWindow::init() {
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

void PageWindow::cleanup() {
    m_gallery.reset();
    m_workspace.reset();
    m_elsewhere.reset();
    QDesktopServices::unsetUrlHandler(u"http"_s);
    QDesktopServices::unsetUrlHandler(u"file"_s);
}

void PageWindow::open(const QByteArray &rows) {
    m_workspace->backend.answerPage(workPage, pageOf(rows));
    QVERIFY(m_workspace->store->canvas()->openLink(u"/project/ferry"_s).isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(state(), int(Shown), 15000);
    // Before words are drawn the engine takes no click.
    const QPoint middle = m_gallery->middleOf(u"page"_s);
    QTRY_COMPARE(m_gallery->window().grabWindow().pixelColor(middle), ground);
}

void PageWindow::clickRow(int row) {
    const QPointF place = page()->mapToScene(QPointF(200, row * rowHeight + rowHeight / 2));
    QTest::mouseClick(&m_gallery->window(), Qt::LeftButton, {}, place.toPoint());
}

int runPageTest(QObject &test, int argc, char **argv) {
    app::Graphics::choose();
    test::letEngineRunAsRoot();
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--use-fake-device-for-media-stream");
    QGuiApplication application(argc, argv);
    const app::Graphics graphics;
    return QTest::qExec(&test, argc, argv);
}

} // namespace kiv::ui
