// An answer of 20 KB that arrives in 400 pieces: each from the bytes of the stream to rows that are
// laid out in the program's window.

#include "ChatWindow.h"
#include "Measure.h"

#include "net/ChatRecords.h"
#include "net/Decode.h"
#include "net/LineSplitter.h"

#include <numeric>

namespace kiv::bench {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int runs = 3;
constexpr int pieces = 400;
constexpr int some = 20; ///< pieces at either end
constexpr qsizetype length = 20'000;
constexpr double eachMost = 2.5e6;

QString answer() {
    QString text;
    for (int section = 1; text.toUtf8().size() < length; ++section)
        text += mixedSection(section);
    return text.first(length);
}

/// What has arrived of the answer with a piece.
QString grown(const QString &answer, int piece) {
    return answer.first(answer.size() * (piece + 1) / pieces);
}

double mean(const QList<double> &times) {
    return std::accumulate(times.begin(), times.end(), 0.0) / static_cast<double>(times.size());
}

/// The cost of each piece of an answer to a question asked in a fresh window.
QList<double> pieceTimes(const QString &answer) {
    ChatWindow window;
    store::ChatRoom &chat = *window.store().chat();
    chat.send(u"How do the groups stand?"_s);
    window.meter().rest();
    net::LineSplitter lines;
    net::SSEFrameParser frames;
    QList<double> times;
    for (int piece = 0; piece < pieces; ++piece) {
        const QByteArray bytes = "event: message-insert\ndata: " +
                                 test::rowJson(7, u"assistant"_s, grown(answer, piece)) + "\n\n";
        times.append(window.meter().layoutTime([&] {
            lines.feed(bytes, [&](QByteArrayView line) {
                if (const auto event = frames.feed(line))
                    chat.onLiveInsert(chat.chatGen(), net::decodeBody<net::ChatRow>(event->data));
            });
        }));
        window.workspace().clock.advance(25ms);
    }
    return times;
}

/// The last pieces where the text is laid out as a whole each time.
double wholeTime(const QString &answer) {
    QList<double> times;
    for (int piece = pieces - some; piece < pieces; ++piece)
        times.append(documentTime(grown(answer, piece)));
    return mean(times);
}

} // namespace

QList<Row> streaming() {
    const QString text = answer();
    QList<double> first;
    QList<double> last;
    for (int run = 0; run < runs; ++run) {
        const QList<double> times = pieceTimes(text);
        first.append(mean(times.first(some)));
        last.append(mean(times.last(some)));
    }
    return {{u"streaming, last"_s, median(last), u"first 20 pieces"_s, median(first),
             2 * median(first)},
            {u"streaming, last"_s, median(last), u"setMarkdown each"_s, wholeTime(text), eachMost}};
}

} // namespace kiv::bench
