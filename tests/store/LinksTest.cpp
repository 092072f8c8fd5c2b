// Links to chats: what counts as one, and where it leads when.

#include "StoreFixture.h"

#include "store/ChatLink.h"

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::store;
using test::StoreFixture;

class LinksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void links_data() {
        QTest::addColumn<QString>("link");
        QTest::addColumn<QString>("chat"); // "kind id"; empty for no link
        const auto good = [](const char *link, const QString &chat) {
            QTest::newRow(link) << QString::fromLatin1(link) << chat;
        };
        good("kiv://chat/kiv", u"0 "_s);
        good("KIV://Chat/kiv", u"0 "_s);
        good("kiv://chat/project/night-ferry", u"1 night-ferry"_s);
        good("kiv://chat/agent/3f2A_1-b", u"2 3f2A_1-b"_s);
        for (const char *link : {"",
                                 "kiv",
                                 "kiv:",
                                 "kiv://",
                                 "kiv://chat",
                                 "kiv://chat/",
                                 "kiv:chat/kiv",
                                 "kiv:///chat/kiv",
                                 "kiv://chat//kiv",
                                 "kiv://chat/kiv/",
                                 "kiv://chat/kiv?a=1",
                                 "kiv://chat/kiv#a",
                                 "kiv://chat/KIV",
                                 "kiv://chat:80/kiv",
                                 "kiv://a@chat/kiv",
                                 "kiv://chat.example/kiv",
                                 "kiv://call/kiv",
                                 "kiv://chat/agent",
                                 "kiv://chat/agent/",
                                 "kiv://chat/agent/..",
                                 "kiv://chat/agent/a/b",
                                 "kiv://chat/agent/%2e%2e",
                                 "kiv://chat/agent/a%20b",
                                 "kiv://chat/agent/a b",
                                 "kiv://chat/agent/a;b",
                                 "kiv://chat/agent/a\nb",
                                 "kiv://chat/agent/\xd0\xb0",
                                 "kiv://chat/team/a",
                                 "kiv://chat/project/../agent/a",
                                 " kiv://chat/kiv",
                                 "https://chat/kiv",
                                 "file:///chat/kiv",
                                 "--profile"})
            QTest::addRow("no link: %s", link) << QString::fromUtf8(link) << QString();
        QTest::newRow("too long") << u"kiv://chat/agent/"_s + QString(129, u'a') << QString();
        QTest::newRow("with a null") << u"kiv://chat/agent/a"_s + QChar(0) << QString();
    }
    void links() {
        QFETCH(QString, link);
        const auto read = ChatLink::parse(link);
        QTEST(read ? u"%1 %2"_s.arg(int(read->kind)).arg(read->id) : QString(), "chat");
        if (read)
            QCOMPARE(ChatLink::parse(read->toString()), read);
    }

    void opens_data() {
        QTest::addColumn<QString>("link");
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("agent");
        QTest::newRow("kiv") << u"kiv://chat/kiv"_s << QString() << QString();
        QTest::newRow("project") << u"kiv://chat/project/ferry"_s << u"ferry"_s << QString();
        QTest::newRow("agent of a project")
            << u"kiv://chat/agent/scout"_s << u"ferry"_s << u"scout"_s;
        QTest::newRow("agent by itself")
            << u"kiv://chat/agent/ledger"_s << QString() << u"ledger"_s;
    }
    void opens() {
        QFETCH(QString, link);
        StoreFixture f;
        QVERIFY(f.signIn());
        f.store->scope()->enterProject(u"lantern"_s);
        const int asked = f.store->layout()->focusAskRequests();
        f.store->door()->open(*ChatLink::parse(link));
        QTEST(f.store->scope()->project(), "project");
        QTEST(f.store->scope()->agent(), "agent");
        QVERIFY(f.store->layout()->focusAskRequests() > asked);
        QVERIFY(f.store->chat()->connected() == f.store->scope()->chatTarget());
    }

    /// The first chat that is entered is the one of the link, not the one of the last time.
    void opensBeforeAnybodyIsThere() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.store->scope()->enterProject(u"lantern"_s);
        f.restart();
        f.store->door()->open(*ChatLink::parse(u"kiv://chat/agent/ledger"_s));
        f.store->boot();
        SOON_VERIFY(f.store->chat()->connected());
        QCOMPARE(f.store->chat()->connected()->id(), u"ledger"_s);
        QCOMPARE(f.store->session()->authSheet(), AuthSheetMode::Closed);
    }

    void opensAfterSigningIn_data() {
        QTest::addColumn<bool>("known"); // that nobody is signed in, when the link comes
        QTest::newRow("at the start") << false;
        QTest::newRow("later") << true;
    }
    void opensAfterSigningIn() {
        QFETCH(bool, known);
        StoreFixture f;
        const ChatLink link = *ChatLink::parse(u"kiv://chat/project/ferry"_s);
        if (!known)
            f.store->door()->open(link);
        QVERIFY(f.bootSignedOut());
        if (known)
            f.store->door()->open(link);
        QCOMPARE(f.store->session()->authSheet(), AuthSheetMode::Login);
        f.backend.answer(u"POST api/v2/auth/login"_s,
                         R"({"user":{"email":"ada@example.org","name":"Ada"}})");
        f.store->session()->submitAuth(u"ada@example.org"_s, u"difference"_s, false);
        SOON_VERIFY(f.store->chat()->connected());
        QCOMPARE(f.store->scope()->project(), u"ferry"_s);
        QVERIFY(f.store->chat()->connected()->isProject());
    }

    void whereOneIsAlreadyNothingBegins() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.row(1, test::reportBlock);
        SOON_COMPARE(f.msgs().count(), 1);
        const int before = f.store->chat()->chatGen();
        f.store->door()->open({});
        QCOMPARE(f.store->chat()->chatGen(), before);
        QCOMPARE(f.msgs().count(), 1);
    }

    void aChatThatIsNewerThanTheRail() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(u"GET api/v2/custom-agents"_s,
                         R"({"agents":[{"id":"ledger"},{"id":"quill"}]})");
        f.store->door()->open(*ChatLink::parse(u"kiv://chat/agent/quill"_s));
        SOON_COMPARE(f.store->scope()->agent(), u"quill"_s);
    }

    void aChatThatIsNotThere_data() {
        QTest::addColumn<QString>("link");
        QTest::newRow("agent") << u"kiv://chat/agent/nobody"_s;
        QTest::newRow("project") << u"kiv://chat/project/nowhere"_s;
    }
    void aChatThatIsNotThere() {
        QFETCH(QString, link);
        StoreFixture f;
        QVERIFY(f.signIn());
        f.store->scope()->enterProject(u"lantern"_s);
        f.store->door()->open(*ChatLink::parse(link));
        SOON_VERIFY(!f.store->chat()->chatNote().isEmpty());
        QCOMPARE(f.store->scope()->project(), u"lantern"_s);
    }

    void whoGoesElsewhereIsNotCalledBack() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.store->door()->open(*ChatLink::parse(u"kiv://chat/agent/nobody"_s));
        f.store->scope()->enterProject(u"ferry"_s);
        f.settled();
        QCOMPARE(f.store->chat()->chatNote(), QString());
        QCOMPARE(f.store->scope()->project(), u"ferry"_s);
    }
};

QTEST_GUILESS_MAIN(LinksTest)
#include "LinksTest.moc"
