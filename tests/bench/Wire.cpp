// What comes from the server, until it is a record: beside the least that reading it takes.

#include "ChatWindow.h"
#include "Measure.h"

#include "base/Json.h"
#include "net/ChatRecords.h"
#include "net/LineSplitter.h"

#include <benchmark/benchmark.h>

#include <cstring>

namespace kiv::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int rows = 80;
constexpr qsizetype piece = 16 * 1024; ///< what a socket hands over at once
constexpr double target = 2;           ///< times the floor

QByteArray row(int number) {
    return test::rowJson(number, number % 2 == 0 ? u"user"_s : u"assistant"_s,
                         mixedSection(number));
}

QByteArray stream() {
    QByteArray bytes;
    for (int number = 1; number <= rows; ++number)
        bytes += "event: message-insert\nid: " + QByteArray::number(number) +
                 "\ndata: " + row(number) + "\n\n";
    return bytes;
}

QByteArray page() {
    QByteArray list;
    for (int number = 1; number <= rows; ++number)
        list += (list.isEmpty() ? "" : ",") + row(number);
    return "{\"messages\":[" + list + "]}";
}

/// Lines found and copied out, and nothing told of them.
qsizetype scan(QByteArrayView bytes) {
    qsizetype total = 0;
    const char *from = bytes.data();
    const char *end = from + bytes.size();
    while (from < end) {
        const void *found = std::memchr(from, '\n', static_cast<size_t>(end - from));
        const char *to = found ? static_cast<const char *>(found) : end;
        const QByteArray line(from, to - from);
        total += line.size();
        from = to + 1;
    }
    return total;
}

} // namespace

QList<Row> streamParser() {
    const QByteArray bytes = stream();
    Row row{.name = u"stream-parser"_s, .peer = u"a bare line scan"_s};
    row.figure = measure(row.name, [&] {
        net::LineSplitter lines;
        net::SSEFrameParser frames;
        qsizetype total = 0;
        for (qsizetype from = 0; from < bytes.size(); from += piece) {
            const qsizetype length = std::min(piece, bytes.size() - from);
            lines.feed(QByteArrayView(bytes).sliced(from, length), [&](QByteArrayView line) {
                if (const auto event = frames.feed(line))
                    total += event->data.size();
            });
        }
        benchmark::DoNotOptimize(total);
    });
    row.peerFigure = measure(row.peer, [&] { benchmark::DoNotOptimize(scan(bytes)); });
    row.target = target * row.peerFigure;
    return {row};
}

QList<Row> pageDecode() {
    const QByteArray bytes = page();
    Row row{.name = u"page-decode"_s, .peer = u"its JSON parse"_s};
    row.figure = measure(row.name, [&] {
        auto decoded = net::decodeBody<net::ChatPage>(bytes);
        benchmark::DoNotOptimize(decoded);
    });
    row.peerFigure = measure(row.peer, [&] {
        const JsonDocument document(bytes);
        benchmark::DoNotOptimize(&document);
    });
    row.target = target * row.peerFigure;
    return {row};
}

} // namespace kiv::bench
