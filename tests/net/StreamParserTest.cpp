// The bytes of a stream, however they are cut, become the same events.

#include "net/APIError.h"
#include "net/LineSplitter.h"

#include <QTest>

using namespace kiv::net;
using namespace Qt::StringLiterals;

using Events = QList<SSERawEvent>;
Q_DECLARE_METATYPE(Events)

namespace {

Events eventsOf(const QByteArrayList &pieces) {
    LineSplitter lines;
    SSEFrameParser frames;
    Events events;
    for (const QByteArray &piece : pieces) {
        lines.feed(piece, [&](QByteArrayView line) {
            if (const auto event = frames.feed(line))
                events.append(*event);
        });
    }
    return events;
}

QByteArray filler(qsizetype size) {
    return QByteArray(size, 'x');
}

} // namespace

class StreamParserTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void bytesBecomeEvents_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<Events>("events");
        const auto row = [](const char *name, QByteArray bytes, Events events) {
            QTest::newRow(name) << bytes << events;
        };
        row("named", "event: message-insert\ndata: {}\n\n", {{"message-insert", "{}"}});
        row("no spaces", "event:a\ndata:b\n\n", {{"a", "b"}});
        row("one space only", "event:  a\ndata:  b \n\n", {{" a", " b "}});
        row("without a name", "data: x\n\n", {{"message", "x"}});
        row("the name is forgotten", "event: a\ndata: x\n\ndata: y\n\n",
            {{"a", "x"}, {"message", "y"}});
        row("the last name counts", "event: a\nevent: b\ndata: x\n\n", {{"b", "x"}});
        row("lines are joined", "data: a\ndata:\ndata: b\n\n", {{"message", "a\n\nb"}});
        row("two empty data lines", "data:\ndata\ndata:\n\n", {{"message", "\n"}});
        row("ready", "event: ready\n\n", {{"ready", ""}});
        row("stray blank lines", "\n\n\ndata:\n\n\n", {});
        row("comments and others", ": hi\nid: 7\nretry: 1\nfoo\n data: x\ndatax: y\ndata: z\n\n",
            {{"message", "z"}});
        row("unfinished", "data: a\n\ndata: b\n", {{"message", "a"}});
        row("CR LF", "event: a\r\ndata: b\r\ndata: c\r\n\r\n", {{"a", "b\nc"}});
        row("lone CR", "event: a\rdata: b\r\rdata: c\r\r", {{"a", "b"}, {"message", "c"}});
        row("mixed ends", "data: a\r\n\ndata: b\n\r\ndata: c\r\r\n",
            {{"message", "a"}, {"message", "b"}, {"message", "c"}});
        row("a byte-order mark",
            "\xEF\xBB\xBF"
            "data: a\n\n\xEF\xBB\xBF"
            "data: b\n\n",
            {{"message", "a"}});
        row("not only ASCII", "event: имя\ndata: Ж😀\n\n", {{"имя", "Ж😀"}});
        row("zero bytes", QByteArray("data: a\0b\n\n", 11), {{"message", QByteArray("a\0b", 3)}});
    }
    /// In one piece, byte by byte, and cut in two at every place.
    void bytesBecomeEvents() {
        QFETCH(QByteArray, bytes);
        QFETCH(Events, events);
        QVERIFY(eventsOf({bytes}) == events);
        QByteArrayList single;
        for (const char byte : bytes)
            single.append(QByteArray(1, byte));
        QVERIFY(eventsOf(single) == events);
        for (qsizetype cut = 0; cut <= bytes.size(); ++cut)
            QVERIFY2(eventsOf({bytes.first(cut), bytes.sliced(cut)}) == events,
                     QByteArray::number(cut));
    }

    void whatIsTooLargeBreaksTheStream_data() {
        QTest::addColumn<QByteArrayList>("pieces");
        QTest::addColumn<bool>("breaks");
        const qsizetype room = streamEventLimit - 6; // behind "data: "
        QTest::newRow("the longest line")
            << QByteArrayList{"data: ", filler(room), "\n\n"} << false;
        QTest::newRow("a longer line") << QByteArrayList{"data: ", filler(room), "x"} << true;
        QTest::newRow("in one piece") << QByteArrayList{"data: " + filler(room) + "x\n\n"} << true;
        QTest::newRow("a long comment") << QByteArrayList{":" + filler(streamEventLimit)} << true;
        const QByteArray half = "data: " + filler(streamEventLimit / 2) + "\n";
        QTest::newRow("many data lines") << QByteArrayList{half, half} << true;
        QTest::newRow("many events") << QByteArrayList{half, "\n", half, "\n", half, "\n"} << false;
        QTest::newRow("only empty data lines")
            << QByteArrayList{"data:\n"_ba.repeated(streamEventLimit + 2)} << true;
    }
    void whatIsTooLargeBreaksTheStream() {
        QFETCH(QByteArrayList, pieces);
        QFETCH(bool, breaks);
        if (breaks)
            QVERIFY_THROWS_EXCEPTION(APIError, eventsOf(pieces));
        else
            QVERIFY(!eventsOf(pieces).isEmpty());
    }
};

QTEST_APPLESS_MAIN(StreamParserTest)
#include "StreamParserTest.moc"
