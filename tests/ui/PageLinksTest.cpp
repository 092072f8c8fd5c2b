#include "ui/PageWindow.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

bool processHolds(const QByteArray &library) {
    QFile maps(u"/proc/self/maps"_s);
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(library);
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

/// Where the links of messages and of pages lead.
class PageLinksTest : public PageWindow {
    Q_OBJECT

private Q_SLOTS:
    void linkInMessage();
    void leadsElsewhere_data();
    void leadsElsewhere();
    void staysInItsPlace_data();
    void staysInItsPlace();
};

/// A link in a message opens the page in the canvas, as who is signed in; only then is the engine
/// in the process.
void PageLinksTest::linkInMessage() {
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

void PageLinksTest::leadsElsewhere_data() {
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
    QTest::newRow("a window that nobody asked for")
        << QByteArray("<a>x</a><script>window.open('ELSEWHERE/x')</script>") << QString() << here;
    QTest::newRow("elsewhere, again and again")
        << QByteArray("<a onclick=\"setInterval(() => location = 'ELSEWHERE/x', 20)\">x</a>")
        << u"ELSEWHERE/x"_s << here;
    QTest::newRow("elsewhere, in windows again and again")
        << QByteArray("<a onclick=\"setInterval(() => window.open('ELSEWHERE/x'), 20)\">x</a>")
        << u"ELSEWHERE/x"_s << here;
    QTest::newRow("a file to keep, again and again")
        << QByteArray("<a onclick='setInterval(() => file.click(), 20)'>x</a>"
                      "<a id=file download href='/team/ferry'></a>")
        << u"HERE/team/ferry"_s << here;
    QTest::newRow("a frame from elsewhere")
        << QByteArray("<a onclick=\"document.body.innerHTML="
                      "'<iframe src=ELSEWHERE/x></iframe>'\">x</a>")
        << QString() << here;
}

void PageLinksTest::leadsElsewhere() {
    QFETCH(QByteArray, row);
    QFETCH(QString, browser);
    QFETCH(QString, path);
    const QTemporaryDir home; // where the engine would keep files
    const QByteArray before = qgetenv("HOME");
    const auto restore = qScopeGuard([&] { qputenv("HOME", before); });
    qputenv("HOME", QFile::encodeName(home.path()));
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
    QVERIFY(!QFile::exists(home.filePath(u"Downloads"_s)));
}

void PageLinksTest::staysInItsPlace_data() {
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("told");
    QTest::newRow("words") << "[alert('KIV'), confirm('Stay?'), prompt('Your password?')]"_ba
                           << u",false,"_s;
    QTest::newRow("words again and again")
        << "'x'.repeat(100).replace(/x/g, () => alert('KIV')).length"_ba << u"900"_s;
    QTest::newRow("a print") << "print() + ''"_ba << u"undefined"_s;
    QTest::newRow("what keeps from leaving")
        << "(onbeforeunload = e => { e.preventDefault(); return e.returnValue = 'no' }) && 1"_ba
        << u"1"_s;
}

/// A page has no window for what it says, and whoever leaves it leaves.
void PageLinksTest::staysInItsPlace() {
    QFETCH(QByteArray, script);
    QTest::failOnWarning(QRegularExpression(u"dialog"_s));
    m_workspace->backend.answerPage(u"GET told"_s, {});
    open("<a onclick=\"fetch('/told?' + (" + script + "))\">x</a>");
    const qsizetype windows = QGuiApplication::allWindows().size();
    const qsizetype overlays = m_gallery->window().contentItem()->childItems().size();
    clickRow(0);
    QTRY_COMPARE(m_workspace->backend.count(u"GET told"_s), 1);
    const QString told = m_workspace->backend.requests(u"GET told"_s).first().query;
    QTEST(QUrl::fromPercentEncoding(told.toUtf8()), "told");
    QCOMPARE(QGuiApplication::allWindows().size(), windows);
    QCOMPARE(m_gallery->window().contentItem()->childItems().size(), overlays);
    m_gallery->click(u"pageReload"_s);
    QTRY_COMPARE(m_workspace->backend.count(workPage), 2);
    QTRY_COMPARE(state(), int(Shown));
}

} // namespace kiv::ui

int main(int argc, char **argv) {
    kiv::ui::PageLinksTest test;
    QTEST_SET_MAIN_SOURCE_PATH
    return kiv::ui::runPageTest(test, argc, argv);
}

#include "PageLinksTest.moc"
