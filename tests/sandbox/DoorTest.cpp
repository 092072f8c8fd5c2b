// What the server lets in: from whom, how much, how fast, and what it answers with.

#include "sandbox/Client.h"
#include "sandbox/SandboxProcess.h"

#include <QNetworkInterface>
#include <QTcpSocket>
#include <QtTest>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace kiv::test;

namespace {

/// What the server answers to bytes that are sent as they are, until it ends the connection or has
/// said all; empty when it ends it without a word.
QByteArray answerTo(int port, const QByteArray &bytes) {
    QTcpSocket socket;
    socket.connectToHost(u"127.0.0.1"_s, static_cast<quint16>(port));
    socket.waitForConnected();
    for (qsizetype at = 0; at < bytes.size() && socket.isValid(); at += 1 << 16) {
        socket.write(bytes.mid(at, 1 << 16));
        while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(5000)) {
        }
    }
    QByteArray answer = socket.readAll(); // may have come, with the end, while more was written
    while (!answer.contains("\r\n\r\n") && socket.waitForReadyRead(5000))
        answer += socket.readAll();
    return answer;
}

qint64 kilobytesOf(const QProcess &process) {
    QFile status(u"/proc/%1/status"_s.arg(process.processId()));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf("VmRSS:") + 6, 20).simplified().split(' ').first().toLongLong();
}

} // namespace

class DoorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        m_sandbox = std::make_unique<SandboxProcess>(m_folder.path());
        QVERIFY(m_sandbox->ready());
        QVERIFY(!Client(m_sandbox->port()).signUp(u"door@example.com"_s).isEmpty());
    }
    void cleanupTestCase() {
        QVERIFY(m_sandbox->closeInput());
        QCOMPARE(m_sandbox->complaints(), QByteArray());
    }

    void requests_data() {
        QTest::addColumn<QByteArray>("head"); // host and origin are added
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("status"); // 400 also when the connection ends without a word
        const QByteArray login = "POST /api/v2/auth/login HTTP/1.1\r\n";
        const QByteArray files = "POST /api/v2/projects/orchard/chat/files HTTP/1.1\r\n";
        const QByteArray plain = "GET /downloads/ HTTP/1.1\r\n";
        QTest::newRow("in pieces without end") << login + "Transfer-Encoding: chunked\r\n"
                                               << QByteArray("FFFFFFF\r\nx") << 411;
        QTest::newRow("without a length") << login << QByteArray("x") << 411;
        QTest::newRow("both") << login + "Content-Length: 2\r\nTransfer-Encoding: chunked\r\n"
                              << QByteArray("0\r\n\r\n") << 411;
        QTest::newRow("packed") << login + "Content-Length: 9\r\nContent-Encoding: gzip\r\n"
                                << QByteArray("123456789") << 415;
        QTest::newRow("two gigabytes") << login + "Content-Length: 2147483648\r\n"
                                       << QByteArray(4096, 'x') << 413;
        QTest::newRow("two gigabytes of files") << files + "Content-Length: 2147483648\r\n"
                                                << QByteArray(4096, 'x') << 413;
        QTest::newRow("more JSON than any") << login + "Content-Length: 1048577\r\n"
                                            << QByteArray(1048577, ' ') << 413;
        QTest::newRow("files from nobody") << files + "Content-Length: 50000000\r\n"
                                           << QByteArray() << 401;
        const QByteArray deep = QByteArray("[").repeated(500'000);
        QTest::newRow("deep JSON") << login + "Content-Length: 500000\r\n" << deep << 400;
        QTest::newRow("a thousand ranges")
            << plain + "Range: bytes=0-" + QByteArray(",0-").repeated(1000) + "\r\n"
            << QByteArray() << 416;
        QTest::newRow("a hundred thousand headers")
            << plain + QByteArray("X-Long: 0123456789\r\n").repeated(100'000) << QByteArray()
            << 400;
        QTest::newRow("one header without end")
            << plain + "X-Long: " + QByteArray(10'000'000, 'x') << QByteArray() << 400;
        QTest::newRow("an address without end")
            << "GET /" + QByteArray(10'000'000, 'x') << QByteArray() << 400;
        for (const char *path : {"/files/../workspace.sqlite", "/files/..%2fworkspace.sqlite",
                                 "/files/%2e%2e%2fsample-password", "/vendor/../../lock",
                                 "/files//etc/passwd", "/files/%00"})
            QTest::newRow(path) << "GET " + QByteArray(path) + " HTTP/1.1\r\n"
                                << QByteArray() << 404;
    }

    /// Refused before anything of it is kept, and without waiting for what was only announced.
    void requests() {
        QFETCH(QByteArray, head);
        QFETCH(QByteArray, body);
        QFETCH(int, status);
        const qint64 before = kilobytesOf(m_sandbox->process());
        QElapsedTimer timer;
        timer.start();
        const QByteArray answer =
            answerTo(m_sandbox->port(),
                     head + "Host: " + host() + "\r\nOrigin: http://" + host() + "\r\n\r\n" + body);
        const int said = answer.mid(9, 3).toInt();
        QCOMPARE(said == 0 ? 400 : said, status);
        QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(kilobytesOf(m_sandbox->process()) - before < 30'000);
        QCOMPARE(Client(m_sandbox->port()).get(u"/downloads/"_s).status, 200);
    }

    /// Nobody else's page can read or frame an answer, or have it taken for something else.
    void everyAnswerSaysWhatItIs() {
        Client client(m_sandbox->port());
        client.signUp(u"answers@example.com"_s);
        const QString chat = u"/api/v2/projects/orchard/chat/files"_s;
        const QJsonObject page =
            client.upload(chat, {{u"../../x.html"_s, u"text/html"_s, "<script>alert(1)</script>"}})
                .json()[u"files"_s][0]
                .toObject();
        const QString file = QUrl(page[u"url"_s].toString()).path();
        const QByteArray cookie = QByteArray::fromStdString(client.headers.find("Cookie")->second);
        for (const QString &path : {u"/api/v2/projects"_s, u"/nowhere"_s, u"/project/orchard"_s,
                                    u"/downloads/"_s, file}) {
            const QByteArray answer = answerTo(
                m_sandbox->port(), "GET " + path.toLatin1() + " HTTP/1.1\r\nHost: " + host() +
                                       "\r\nCookie: " + cookie + "\r\n\r\n");
            QVERIFY2(answer.contains("X-Content-Type-Options: nosniff\r\n"), answer);
            QVERIFY2(answer.contains("Cross-Origin-Resource-Policy: same-origin\r\n"), answer);
            QCOMPARE(answer.contains("frame-ancestors 'none'"), path == u"/project/orchard"_s);
            QCOMPARE(answer.contains("Content-Security-Policy: sandbox; default-src 'none'"),
                     path == file);
        }
        // Whatever it is called, it lies under a name of the server's own.
        QVERIFY(!QFile::exists(m_folder.filePath(u"x.html"_s)));
        QCOMPARE(QDir(m_folder.filePath(u"files"_s)).entryList(QDir::Files),
                 QStringList{page[u"key"_s].toString()});
    }

    /// Who says nothing, or one letter after another, holds nobody up.
    void silentConnectionsGiveWay() {
        std::vector<std::unique_ptr<QTcpSocket>> silent;
        for (int i = 0; i < 600; ++i) {
            silent.push_back(std::make_unique<QTcpSocket>());
            silent.back()->connectToHost(u"127.0.0.1"_s, static_cast<quint16>(m_sandbox->port()));
            QVERIFY(silent.back()->waitForConnected());
        }
        for (int i = 0; i < 600; i += 3) {
            silent[static_cast<size_t>(i)]->write("GET / HTTP/1.1\r\nX-Slow: ");
            silent[static_cast<size_t>(i)]->flush();
        }
        Client client(m_sandbox->port());
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(client.get(u"/downloads/"_s).status, 200);
        QVERIFY2(timer.elapsed() < 8000, qPrintable(QString::number(timer.elapsed())));
    }

    /// An unfinished head ends in its time, however slowly it grows, and with it the connection.
    void slowHeadsEnd() {
        QTcpSocket slow;
        slow.connectToHost(u"127.0.0.1"_s, static_cast<quint16>(m_sandbox->port()));
        QVERIFY(slow.waitForConnected());
        slow.write("GET / HTTP/1.1\r\nX-Slow: ");
        QElapsedTimer timer;
        timer.start();
        while (!slow.waitForDisconnected(500) && timer.elapsed() < 30'000) {
            slow.write("x");
            slow.flush();
        }
        QCOMPARE(slow.state(), QAbstractSocket::UnconnectedState);
    }

    void otherUsersAreNotServed_data() {
        QTest::addColumn<uint>("user");
        QTest::addColumn<bool>("served");
        QTest::newRow("who runs it") << uint(geteuid()) << true;
        QTest::newRow("somebody else") << uint(65534) << false;
    }

    void otherUsersAreNotServed() {
        QFETCH(uint, user);
        QFETCH(bool, served);
        if (user != geteuid() && geteuid() != 0)
            QSKIP("Only root can be somebody else");
        const int socket = connectionOf(user);
        const QByteArray request = "GET /downloads/ HTTP/1.1\r\nHost: " + host() + "\r\n\r\n";
        ::send(socket, request.constData(), static_cast<size_t>(request.size()), MSG_NOSIGNAL);
        char first = 0;
        QCOMPARE(::recv(socket, &first, 1, 0) == 1, served);
        ::close(socket);
    }

    void whoHasLeftIsNotServed_data() {
        QTest::addColumn<bool>("reset");
        QTest::newRow("closed") << false;
        QTest::newRow("reset") << true;
    }

    /// Somebody else's connection that is gone before the system is asked whose it was does
    /// nothing: here it would use up the attempts at signing in.
    void whoHasLeftIsNotServed() {
        QFETCH(bool, reset);
        const QByteArray body = R"({"email":"left@example.com","password":"a guess"})";
        const QByteArray request =
            "POST /api/v2/auth/login HTTP/1.1\r\nHost: " + host() + "\r\nOrigin: http://" + host() +
            "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
        const linger atOnce{1, 0};
        for (int i = 0; i < 12; ++i) {
            const int socket = connectionOf(geteuid());
            ::send(socket, request.constData(), static_cast<size_t>(request.size()), MSG_NOSIGNAL);
            if (reset)
                ::setsockopt(socket, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
            ::close(socket);
        }
        Client client(m_sandbox->port());
        for (int i = 0; i < 50; ++i)
            QCOMPARE(client.get(u"/downloads/"_s).status, 200);
        QCOMPARE(client.postRaw(u"/api/v2/auth/login"_s, body).status, 401);
    }

    void onlyThisComputerIsServed() {
        QList<QHostAddress> addresses = QNetworkInterface::allAddresses();
        addresses.append(QHostAddress(u"127.0.0.2"_s)); // this computer too, and no address of ours
        for (const QHostAddress &address : std::as_const(addresses)) {
            if (address == QHostAddress(QHostAddress::LocalHost) ||
                address.protocol() != QAbstractSocket::IPv4Protocol)
                continue;
            QTcpSocket socket;
            socket.connectToHost(address, static_cast<quint16>(m_sandbox->port()));
            QVERIFY2(!socket.waitForConnected(2000), qPrintable(address.toString()));
        }
    }

private:
    QByteArray host() const { return "127.0.0.1:" + QByteArray::number(m_sandbox->port()); }

    /// A socket of `user`, which only root may choose.
    int connectionOf(uid_t user) const {
        const uid_t own = geteuid();
        const bool isUser = seteuid(user) == 0;
        const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<quint16>(m_sandbox->port()));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        const bool isOwnAgain = seteuid(own) == 0;
        if (!isUser || !isOwnAgain ||
            ::connect(socket, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0)
            qFatal("There is no connection to the server");
        return socket;
    }

    QTemporaryDir m_folder;
    std::unique_ptr<SandboxProcess> m_sandbox;
};

QTEST_GUILESS_MAIN(DoorTest)
#include "DoorTest.moc"
