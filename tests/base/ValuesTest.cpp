// Addresses, JSON, patterns and characters: what the ground floor reads from outside.

#include "base/BaseUrl.h"
#include "base/Json.h"
#include "base/PrivateFile.h"
#include "base/Regex.h"
#include "base/Text.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace kiv;

class ValuesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void baseUrl_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("url"); // empty: refused

        QTest::newRow("https") << u"https://kiv.example"_s << u"https://kiv.example"_s;
        QTest::newRow("trailing slash")
            << u" https://kiv.example/app// "_s << u"https://kiv.example/app"_s;
        QTest::newRow("query goes") << u"https://kiv.example?a=1#b"_s << u"https://kiv.example"_s;
        QTest::newRow("loopback") << u"http://127.0.0.1:8080"_s << u"http://127.0.0.1:8080"_s;
        QTest::newRow("loopback 6") << u"http://[::1]:8080"_s << u"http://[::1]:8080"_s;
        QTest::newRow("localhost") << u"http://localhost:1"_s << u"http://localhost:1"_s;
        QTest::newRow("plain http elsewhere") << u"http://kiv.example"_s << QString();
        QTest::newRow("loopback as a label") << u"http://127.0.0.1.kiv.example"_s << QString();
        QTest::newRow("other scheme") << u"ftp://kiv.example"_s << QString();
        QTest::newRow("no host") << u"https://"_s << QString();
        QTest::newRow("not an address") << u"kiv"_s << QString();
        QTest::newRow("credentials") << u"https://a:b@kiv.example"_s << QString();
        QTest::newRow("credentials elsewhere") << u"http://a:b@kiv.example"_s << QString();
    }
    void baseUrl() {
        QFETCH(QString, text);
        QFETCH(QString, url);
        try {
            QCOMPARE(parseBaseUrl(text).toString(), url);
        } catch (const BaseUrlError &error) {
            QVERIFY2(url.isEmpty(), error.what());
            QVERIFY(QString::fromUtf8(error.what()).contains(text.section(u'@', -1)));
            QVERIFY(!QByteArray(error.what()).contains("a:b"));
        }
    }

    /// A file that cannot be written whole is left as it was, and nobody else reads either.
    void privateFiles() {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"own/file"_s);
        QVERIFY(QDir().mkpath(folder.filePath(u"own"_s)));
        QVERIFY(QFile::setPermissions(folder.filePath(u"own"_s), QFile::Permissions(0x7755)));
        QCOMPARE(PrivateFile::write(path, "before"), QString());
        rlimit limit{};
        QVERIFY(getrlimit(RLIMIT_FSIZE, &limit) == 0);
        const rlimit small{10'000, limit.rlim_max};
        const auto ignored = std::signal(SIGXFSZ, SIG_IGN);
        QVERIFY(setrlimit(RLIMIT_FSIZE, &small) == 0);
        const QString failure = PrivateFile::write(path, QByteArray(100'000, 'x'));
        QVERIFY(setrlimit(RLIMIT_FSIZE, &limit) == 0);
        std::signal(SIGXFSZ, ignored);
        QVERIFY(!failure.isEmpty());
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), "before"_ba);
        QCOMPARE(QDir(folder.filePath(u"own"_s)).entryList(QDir::Files), QStringList{u"file"_s});
        for (const QString &own : {path, folder.filePath(u"own"_s)})
            QCOMPARE(QFile::permissions(own) & QFile::Permissions(0x0077), QFile::Permissions());
    }

    void pathSegment_data() {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("asked");
        QTest::newRow("climbing") << u".."_s << u"%2E%2E"_s;
        QTest::newRow("staying") << u"."_s << u"%2E"_s;
        for (const QString &id : {u"a/../b"_s, u"a?b=c#d"_s, u"100%2F"_s, u"план"_s, u"..."_s})
            QTest::newRow(qPrintable(id)) << id << id;
    }
    void pathSegment() {
        QFETCH(QString, id);
        // As servers read it.
        const QUrl url = appendPath(QUrl(u"https://kiv.example/base"_s),
                                    u"api/"_s + kiv::pathSegment(id) + u"/chat"_s)
                             .adjusted(QUrl::NormalizePathSegments);
        const QStringList parts = url.path(QUrl::FullyEncoded).split(u'/');
        QCOMPARE(parts.size(), 5);
        QTEST(QUrl::fromPercentEncoding(parts.at(3).toLatin1()), "asked");
        QVERIFY(!url.hasQuery() && !url.hasFragment());
    }

    void jsonTypes() {
        const JsonDocument document(R"({"text":"Ünï \ud83d\ude80","whole":9007199254740993,
            "real":1.0,"yes":true,"none":null,"list":[1,2],"twice":1,"twice":2})");
        const JsonObject object = *document.root().object();
        QCOMPARE(object.find("text")->string(), u"Ünï 🚀"_s);
        QCOMPARE(object.find("whole")->integer(), 9007199254740993);
        QCOMPARE(object.find("real")->integer(), std::nullopt);
        QCOMPARE(object.find("real")->number(), 1.0);
        QCOMPARE(object.find("whole")->string(), std::nullopt);
        QCOMPARE(object.find("yes")->number(), std::nullopt);
        QCOMPARE(object.find("yes")->boolean(), true);
        QVERIFY(object.find("none")->isNull());
        QVERIFY(!object.find("missing"));
        QCOMPARE(object.find("list")->array()->size(), 2);
        QCOMPARE(object.find("twice")->integer(), 1);
    }

    void jsonRefused_data() {
        QTest::addColumn<QByteArray>("body");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut") << QByteArray(R"({"a":)");
        QTest::newRow("two documents") << QByteArray("{}{}");
        QTest::newRow("bad UTF-8") << QByteArray("{\"a\":\"\xff\"}");
        QTest::newRow("cut in half a pair") << QByteArray("{\"a\":\"\\ud83d\\u12");
        QTest::newRow("bad number") << QByteArray("[01]");
        QTest::newRow("deep") << QByteArray(100000, '[');
    }
    void jsonRefused() {
        QFETCH(QByteArray, body);
        QVERIFY_THROWS_EXCEPTION(DecodingError, JsonDocument{body});
        QVERIFY(!JVal::parse(body));
    }

    /// As a text that was cut within a character is written.
    void jsonHalfPairs() {
        const JsonDocument document(
            "{\"a\":\"x\\ud83dy\\\\ud83d\",\"b\":\"\\udE80\\ud83d\\ude80\\uD83D\"}");
        const JsonObject object = *document.root().object();
        QCOMPARE(object.find("a")->string(), u"x\ufffdy\\ud83d"_s);
        QCOMPARE(object.find("b")->string(), u"\ufffd🚀\ufffd"_s);
    }

    void jsonNumbersOutOfRange() {
        const JsonDocument document(R"({"id":7,"huge":123456789012345678901234567890})");
        const JsonObject object = *document.root().object();
        QCOMPARE(object.find("id")->integer(), 7);
        QCOMPARE(object.find("huge")->number(), 123456789012345678901234567890.0);
        QCOMPARE(object.find("huge")->integer(), std::nullopt);
    }

    void canonical_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("canonical");
        QTest::newRow("numbers") << QByteArray("[1,2.5,-0.5,1e300]") << u"[1.0,2.5,-0.5,1e+300]"_s;
        QTest::newRow("round and small numbers")
            << QByteArray("[1000000,1200000,1e15,1e20,0.0001,0.00001]")
            << u"[1000000.0,1200000.0,1000000000000000.0,1e+20,0.0001,1e-05]"_s;
        QTest::newRow("whole numbers of more than 64 bits")
            << QByteArray("[18446744935577450000,-18446744935577450000,\"1\\\"9\"]")
            << u"[1.844674493557745e+19,-1.844674493557745e+19,\"1\"9\"]"_s;
        QTest::newRow("keys sorted")
            << QByteArray(R"({"b":null,"a":"x\"y"})") << u"{\"a\":\"x\"y\",\"b\":null}"_s;
        QTest::newRow("booleans are numbers") << QByteArray("[true,false]") << u"[1.0,0.0]"_s;
        QTest::newRow("empty") << QByteArray("[[],{}]") << u"[[],{}]"_s;
        QTest::newRow("nought") << "[0,-0,-0.0]"_ba << u"[0.0,0.0,0.0]"_s;
    }
    void canonical() {
        QFETCH(QByteArray, json);
        QTEST(JVal::parse(json)->canonical(), "canonical");
    }

    void regex() {
        const Regex words(u"(\\w+)(?:-(\\d+))?", Regex::CaseInsensitive);
        const QList<Regex::Match> matches = words.findAll(u"план-7 b");
        QCOMPARE(matches.size(), 2);
        QCOMPARE(matches.at(0).captured(1), u"план"_s);
        QCOMPARE(matches.at(0).range(2).start, 5);
        QVERIFY(!matches.at(1).has(2));
        QVERIFY(matches.at(1).captured(2).isEmpty());
        QCOMPARE(words.find(u"ab cd", 2)->range().start, 3);
        QVERIFY(!words.find(u"ab", 5));
        QCOMPARE(words.replaceAll(u"a-1 b", u"<$1>"), u"<a> <b>"_s);
        QVERIFY(Regex(u"ПЛАН", Regex::CaseInsensitive).contains(u"план"));
        QVERIFY(Regex(u"^b$", Regex::AnchorsMatchLines).contains(u"a\nb\nc"));
        QVERIFY(!Regex(u"^b$").contains(u"a\nb\nc"));
    }

    void characters() {
        const QString family = u"👨‍👩‍👧e\u0301x"_s;
        QCOMPARE(characterCount(family), 3);
        QCOMPARE(firstCharacters(family, 1), u"👨‍👩‍👧"_s);
        QCOMPARE(firstCharacters(family, 2), u"👨‍👩‍👧e\u0301"_s);
        QCOMPARE(firstCharacters(family, 9), family);
        QCOMPARE(firstCharacters(u"abc"_s, 0), QString());
    }
};

QTEST_APPLESS_MAIN(ValuesTest)
#include "ValuesTest.moc"
