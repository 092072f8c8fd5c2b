// The look for a newer release, and which version text is newer.

#include "ClientFixture.h"
#include "net/UpdateCheck.h"

using namespace kiv;
using namespace kiv::net;
using namespace kiv::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Offer = std::optional<UpdateInfo>;

class UpdateTest : public QObject {
    Q_OBJECT

private:
    static Call<Offer> look(ClientFixture &at, const QString &running) {
        return Call<Offer>([&](Cancel cancel) {
            return UpdateCheck::latest(at.client.get(), AppVersion::of(running, {}), cancel);
        });
    }
    static QByteArray item(const QByteArray &version) {
        return "<item><a:shortVersionString>" + version + "</a:shortVersionString></item>";
    }

private Q_SLOTS:
    void newer_data() {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<bool>("newer");
        QTest::newRow("by number") << u"1.10"_s << u"1.9"_s << true;
        QTest::newRow("not by text") << u"1.9"_s << u"1.10"_s << false;
        QTest::newRow("missing is nought") << u"2.0.0"_s << u"2"_s << false;
        QTest::newRow("a further number") << u"2.0.1"_s << u"2"_s << true;
        QTest::newRow("dot at the end") << u"1.2."_s << u"1.2"_s << false;
        QTest::newRow("first difference decides") << u"1.3.0"_s << u"1.2.9"_s << true;
        QTest::newRow("no number is nought") << u"1.x.1"_s << u"1.0.0"_s << true;
        QTest::newRow("too large a number is nought")
            << u"99999999999999999999"_s << u"1"_s << false;
    }
    void newer() {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QTEST(AppVersion::isNewer(a, b), "newer");
    }

    void display() {
        QCOMPARE(AppVersion::of(u"1.4.2"_s, u"57"_s).display(), u"1.4.2 (57)"_s);
        QCOMPARE(AppVersion::of(u"1.4.2"_s, {}).display(), u"1.4.2 (0)"_s);
        QCOMPARE(AppVersion::of({}, u"57"_s).display(), u"dev"_s);
    }

    void feeds_data() {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("feed");
        QTest::addColumn<QString>("running");
        QTest::addColumn<QString>("offered"); // empty: nothing

        QTest::newRow("the newest of two")
            << 200 << item("1.9") + item("1.10") + item("1.2") << u"1.9"_s << u"1.10"_s;
        QTest::newRow("of equal ones the first")
            << 200 << item("3.0") + item("3.0.0") << u"2"_s << u"3.0"_s;
        QTest::newRow("blanks around") << 200 << item("\n 1.5 \t") << u"1.4"_s << u"1.5"_s;
        QTest::newRow("dot at the end") << 200 << item("1.2.") << u"1.1"_s << u"1.2."_s;
        QTest::newRow("the same") << 200 << item("2.0.0") << u"2.0"_s << QString();
        QTest::newRow("older") << 200 << item("1.0") << u"2.0"_s << QString();
        QTest::newRow("no version") << 200 << QByteArray("<rss/>") << u"1"_s << QString();
        QTest::newRow("a word") << 200 << item("next 9") << u"1"_s << QString();
        QTest::newRow("not UTF-8") << 200 << item("9") + "\xff" << u"1"_s << QString();
        QTest::newRow("empty") << 200 << QByteArray() << u"1"_s << QString();
        QTest::newRow("not modified") << 304 << item("9") << u"1"_s << QString();
        QTest::newRow("another success") << 206 << item("9") << u"1"_s << QString();
        QTest::newRow("links that lead elsewhere")
            << 200
            << "<link>javascript:alert(1)</link><enclosure url='http://evil.example/kiv.deb'/>" +
                   item("2.0")
            << u"1"_s << u"2.0"_s;
        QTest::newRow("entities that grow") << 200
                                            << "<!DOCTYPE r [<!ENTITY a '9'><!ENTITY b '&a;&a;'>"
                                               "<!ENTITY x SYSTEM 'file:///etc/passwd'>]>" +
                                                   item("&b;") + item("&x;")
                                            << u"1"_s << QString();
        QTest::newRow("a version without end")
            << 200 << item("9" + QByteArray(".9").repeated(100)) << u"1"_s << QString();
        QTest::newRow("larger than any feed")
            << 200 << item("9") + QByteArray(1024 * 1024, ' ') << u"1"_s << QString();
        QTest::newRow("server error") << 500 << item("9") << u"1"_s << QString();
    }
    void feeds() {
        QFETCH(int, status);
        QFETCH(QByteArray, feed);
        QFETCH(QString, running);
        QFETCH(QString, offered);
        ClientFixture at;
        at.server.answer(status, feed);
        auto call = look(at, running);
        QVERIFY(call.finish());
        QVERIFY(call.succeeded());
        QCOMPARE(call.value().value_or(UpdateInfo()).version, offered);
        if (!offered.isEmpty())
            QCOMPARE(call.value()->page, QUrl(at.server.url().toString() + u"/downloads/"_s));
        QCOMPARE(at.server.last().target, "/downloads/kiv-appcast.xml"_ba);
    }

    void developmentAsksNobody() {
        ClientFixture at;
        auto call = look(at, QString());
        QVERIFY(call.isDone());
        QVERIFY(call.succeeded());
        QVERIFY(!call.value());
    }

    void silentServer() {
        ClientFixture at;
        QPointer<Peer> peer;
        at.server.answer([&](const Peer::Request &request) { peer = request.peer; });
        auto call = look(at, u"1"_s);
        QTRY_VERIFY(peer);
        at.clock.advance(7900ms);
        QVERIFY(!call.isDone());
        at.clock.advance(200ms);
        QVERIFY(call.finish());
        QVERIFY(call.succeeded());
        QVERIFY(!call.value());
    }
};

QTEST_GUILESS_MAIN(UpdateTest)
#include "UpdateTest.moc"
