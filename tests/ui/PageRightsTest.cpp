#include "support/TlsServer.h"
#include "ui/PageWindow.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

/// What a page of the platform may do, and who may show one.
class PageRightsTest : public PageWindow {
    Q_OBJECT

private Q_SLOTS:
    void certificates();
    void framesFromElsewhere();
    void rights_data();
    void rights();
};

/// A server that cannot prove who it is is not asked for the page, with the session's cookie.
void PageRightsTest::certificates() {
    test::TlsServer stranger(test::makeIdentity("IP:127.0.0.1", 30, nullptr));
    m_workspace->client->setBaseUrl(stranger.url());
    QVERIFY(m_workspace->store->canvas()->openLink(u"/project/ferry"_s).isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(state(), int(Failed), 15000);
    QVERIFY(stranger.contacts > 0);
    QCOMPARE(stranger.received, QByteArray());
}

/// Not even encrypted ones are asked for.
void PageRightsTest::framesFromElsewhere() {
    test::TlsServer stranger(test::makeIdentity("IP:127.0.0.1", 30, nullptr));
    open("<a>x</a><iframe src='" + stranger.url().toEncoded() + "'></iframe>");
    QTest::qWait(300); // for what must not happen
    QCOMPARE(stranger.contacts, 0);
}

/// What a page may not do, said by the page itself.
void PageRightsTest::rights_data() {
    QTest::addColumn<QByteArray>("promise");
    QTest::addColumn<QString>("result");
    QTest::newRow("a file") << QByteArray("fetch('file:///etc/hostname').then(() => 'read')")
                            << u"TypeError"_s;
    QTest::newRow("another server, unencrypted")
        << QByteArray("fetch('ELSEWHERE/x', {mode: 'no-cors'}).then(() => 'read')")
        << u"TypeError"_s;
    QTest::newRow("the program")
        << QByteArray("Promise.resolve(typeof qt + typeof webkit + typeof QWebChannel)")
        << u"undefinedundefinedundefined"_s;
    QTest::newRow("the session") << QByteArray("Promise.resolve('[' + document.cookie + ']')")
                                 << u"[]"_s;
    QTest::newRow("the microphone")
        << QByteArray("navigator.mediaDevices.getUserMedia({audio: true}).then(() => 'heard')")
        << u"NotAllowedError"_s;
    QTest::newRow("the place")
        << QByteArray("new Promise((yes, no) => navigator.geolocation.getCurrentPosition(yes, no))"
                      ".catch(e => { throw {name: 'refused ' + e.code} })")
        << u"refused 1"_s;
    QTest::newRow("the clipboard")
        << QByteArray("navigator.clipboard.readText().then(() => 'read')") << u"NotAllowedError"_s;
    QTest::newRow("messages of the desktop")
        << QByteArray("Notification.requestPermission()") << u"denied"_s;
    QTest::newRow("the log") << QByteArray("Promise.resolve(console.warn('said to itself') + '')")
                             << u"undefined"_s;
}

void PageRightsTest::rights() {
    QFETCH(QByteArray, promise);
    QFETCH(QString, result);
    QTest::failOnWarning(QRegularExpression(u"said to itself"_s));
    m_workspace->backend.answerPage(u"GET told"_s, {});
    m_elsewhere->answerPage(u"GET x"_s, "elsewhere");
    promise.replace("ELSEWHERE", m_elsewhere->url().toString().toUtf8());
    open("<a>x</a><script>" + promise +
         ".catch(e => e.name).then(t => fetch('/told?' + encodeURIComponent(t)))</script>");
    QTRY_COMPARE(m_workspace->backend.count(u"GET told"_s), 1);
    const QString told = m_workspace->backend.requests(u"GET told"_s).first().query;
    QCOMPARE(QUrl::fromPercentEncoding(told.toUtf8()), result);
    QCOMPARE(m_elsewhere->count(u"GET x"_s), 0);
}

} // namespace kiv::ui

int main(int argc, char **argv) {
    kiv::ui::PageRightsTest test;
    QTEST_SET_MAIN_SOURCE_PATH
    return kiv::ui::runPageTest(test, argc, argv);
}

#include "PageRightsTest.moc"
