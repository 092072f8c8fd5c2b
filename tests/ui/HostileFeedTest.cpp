#include "support/HostileAnswers.h"
#include "ui/FrameMeter.h"
#include "ui/Gallery.h"
#include "ui/Workspace.h"

#include <QtTest>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

/// Milliseconds of the main thread.
constexpr double longestFrame = 100;
/// Qt unpacks the picture of an emoji at every measure and, without OpenGL, at every drawing of it,
/// where the font's pictures are wider than 127 pixels: 0.6 ms each time.
constexpr double longestEmojiFrame = 500;

/// It is working time; still, where more wants to run than the machine has cores, caches are shared
/// and twice as much is granted.
double grantedToBusyMachine() {
    double load = 0;
    return getloadavg(&load, 1) == 1 && load > QThread::idealThreadCount() ? 2 : 1;
}

QString lineOf(qsizetype length, const QString &piece) {
    return piece.repeated(length / piece.size() + 1).first(length);
}

/// Stand in a text for halves of surrogate pairs, which only the stream can carry.
const QList<std::pair<QString, QByteArray>> halves{{u"\ue000"_s, "\\ud83d"},
                                                   {u"\ue001"_s, "\\udc00"}};

/// A row of the stream as a server may write it that cuts texts within characters.
QByteArray streamed(const QString &text) {
    QByteArray row = test::rowJson(7, u"assistant"_s, text);
    for (const auto &[mark, half] : halves)
        row.replace(mark.toUtf8(), half);
    return row;
}

/// Each of the characters on its own between letters.
template <typename Code>
QString between(const QList<Code> &codes) {
    QString text;
    for (const Code code : codes)
        text += u"a"_s + QChar(code) + u"b "_s;
    return text;
}

QString controlCharacters() {
    QList<char16_t> codes;
    for (char16_t code = 1; code < 0x20; ++code)
        codes.append(code);
    for (char16_t code = 0x7f; code < 0xa0; ++code)
        codes.append(code);
    return between(codes);
}

} // namespace

/// Answers that are made to hold the window up or to bring it down.
class HostileFeedTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void shows_data();
    void shows();
};

void HostileFeedTest::shows_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("one line") << lineOf(4'000'000, u"a line that never ends "_s);
    QTest::newRow("one word") << lineOf(4'000'000, u"x"_s);
    QTest::newRow("one line of marks") << lineOf(4'000'000, u"**a** `b` [c](https://d/) "_s);
    QTest::newRow("quote marks") << u">"_s.repeated(100'000);
    QTest::newRow("quoted lines") << u"> a\n"_s.repeated(100'000);
    QTest::newRow("list items") << u"- a\n"_s.repeated(1'000'000);
    QTest::newRow("tasks") << u"- [x] a\n"_s.repeated(200'000);
    QTest::newRow("table") << u"| a | b |\n|---|---|\n"_s + u"| 1 | `x` |\n"_s.repeated(100'000);
    QTest::newRow("wide table") << u"|a"_s.repeated(200'000) + u"\n|---|\n"_s +
                                       u"|b"_s.repeated(200'000);
    QTest::newRow("code") << u"```\n"_s + lineOf(1'000'000, u"int x = 1; "_s) + u"\n"_s +
                                 u"line\n"_s.repeated(200'000);
    QTest::newRow("many blocks") << u"# a\n\n---\n\nb\n\n"_s.repeated(30'000);
    QTest::newRow("odd characters")
        << lineOf(500'000, between<char16_t>({0x2028, 0x2029, 0xfffc, 0xfdd0, 0xfdd1, 0xfffe,
                                              0xffff, 0xfeff, 0x200d, 0x0300}));
    QTest::newRow("control characters") << lineOf(500'000, controlCharacters());
    QTest::newRow("broken surrogates") << lineOf(500'000, u"a\ue000b \ue001c \ue001\ue000 "_s);
    QTest::newRow("right to left") << lineOf(1'000'000, u"مرحبا abc שלום \u202e 123 "_s);
    QTest::newRow("stacked marks") << lineOf(300'000, u"a"_s + u"\u0301"_s.repeated(3000));
    QTest::newRow("joined emoji") << lineOf(300'000, u"👩\u200d👩\u200d👧\u200d👦"_s);
}

void HostileFeedTest::shows() {
    QFETCH(const QString, text);
    QTest::failOnWarning(QRegularExpression(u"qrc:|QML"_s));
    Workspace workspace;
    QVERIFY(workspace.signIn());
    Gallery gallery;
    gallery.open(*workspace.store, {1440, 900});
    workspace.store->layout()->toggleDock();
    gallery.item(u"dockFeed"_s);
    FrameMeter meter(gallery.window());
    meter.rest();
    workspace.backend.sendRow(workspace.store->scope()->chatTarget()->streamPath(), streamed(text));
    QTRY_COMPARE_WITH_TIMEOUT(workspace.msgs().count(), 2, 20000);
    meter.frameTime([] {});

    double longest = 0;
    QString slowest;
    const auto frame = [&](const QString &what, const std::function<void()> &step) {
        const double time = meter.frameTime(step);
        if (time > longest) {
            longest = time;
            slowest = what;
        }
    };
    const QPointF place = gallery.middleOf(u"dockFeed"_s);
    for (int notch = 0; notch < 12; ++notch) {
        frame(u"a turn of the wheel"_s, [&] {
            QWheelEvent event(place, place, {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            event.setTimestamp(static_cast<quint64>(1000 + 16 * notch));
            QCoreApplication::sendEvent(&gallery.window(), &event);
        });
    }
    const QQuickItem *feed = gallery.item(u"dockFeed"_s);
    const QPoint corner =
        feed->mapToScene(QPointF(feed->width() - 6, feed->height() - 6)).toPoint();
    QTest::mousePress(&gallery.window(), Qt::LeftButton, {}, corner);
    for (int step = 1; step <= 12; ++step) {
        const int by = static_cast<int>(feed->height()) * step / 12;
        frame(u"a pull at the bar"_s,
              [&] { QTest::mouseMove(&gallery.window(), corner - QPoint(0, by)); });
    }
    QTest::mouseRelease(&gallery.window(), Qt::LeftButton, {},
                        corner - QPoint(0, static_cast<int>(feed->height())));
    frame(u"a wider window"_s, [&] { gallery.window().resize(1500, 900); });
    QCOMPARE_LT(feed->property("contentY").toDouble(),
                feed->property("contentHeight").toDouble() / 2 + feed->height());
    frame(u"a word more"_s, [&] { workspace.row(8, u"Done."_s); });
    for (int next = 0; next < 6; ++next)
        frame(u"what follows"_s, [] {});
    QTRY_COMPARE(workspace.msgs().count(), 3);
    frame(u"the word more"_s, [] {});
    longest /= 1e6;
    qInfo("the longest frame: %.1f ms, %s", longest, qPrintable(slowest));
    const bool isEmoji = text.contains(u"👩"_s);
    const double most = isEmoji ? longestEmojiFrame : longestFrame;
    QVERIFY2(longest < most * grantedToBusyMachine(), qPrintable(slowest));
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::HostileFeedTest)
#include "HostileFeedTest.moc"
