// A conversation of 2,000 messages: opened, and scrolled from its end to its beginning.

#include "ChatWindow.h"
#include "Measure.h"

#include <algorithm>

namespace kiv::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int messages = 2000;
constexpr int pages = 200;  ///< frames of a drag through the whole conversation
constexpr int notches = 60; ///< of the wheel
constexpr double openMost = 300e6;
constexpr double frameMost = 33e6;

QString words(int number) {
    if (number % 2 == 0)
        return u"And how does group %1 stand? Коротко, пожалуйста."_s.arg(number);
    if (number % 10 == 5)
        return mixedSection(number);
    return u"Group %1 is **fine**: nothing of it waits for more than %1 hours, and the export "
           "goes on.\n\n- Ads: $1,200 (+4%)\n- Hosting: $17,300"_s.arg(number);
}

QByteArray conversation() {
    QByteArray rows;
    for (int number = 0; number < messages; ++number) {
        rows += rows.isEmpty() ? "" : ",";
        rows +=
            test::rowJson(number + 1, number % 2 == 0 ? u"user"_s : u"assistant"_s, words(number));
    }
    return '[' + rows + ']';
}

/// All of it as one text.
double wholeTime() {
    QString text;
    for (int number = 0; number < messages; ++number)
        text += words(number) + u"\n\n"_s;
    return documentTime(text);
}

/// The longest frame of a plain list of texts that moves to each of these places, of which 1 is the
/// end.
double listTime(const QList<double> &places) {
    QStringList texts;
    for (int number = 0; number < messages; ++number)
        texts.append(words(number));
    ui::Gallery gallery;
    QQuickItem *list = gallery.show(u"MarkdownList.qml"_s, {720, 700}, {{u"model"_s, texts}});
    const auto number = [list](const char *name) { return list->property(name).toDouble(); };
    ui::FrameMeter meter(gallery.window());
    double longest = 0;
    for (const double place : places) {
        longest = std::max(longest, meter.frameTime([&] {
            const double end = number("contentHeight") - list->height();
            list->setProperty("contentY", number("originY") + end * place);
        }));
    }
    return longest;
}

/// From the answer's first byte to the end of the conversation on the screen.
double openTime(ChatWindow &window) {
    window.workspace().history(u"api/v2/custom-agents/ledger/chat"_s, conversation());
    const double start = ui::mainThreadTime();
    window.store().scope()->pickStandaloneAgent(u"ledger"_s);
    while (window.store().chat()->msgs()->count() < messages)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    window.meter().frameTime([] {});
    return ui::mainThreadTime() - start;
}

/// The longest frame while the wheel is turned up.
double wheelTime(ChatWindow &window) {
    const QPointF place = window.gallery().middleOf(u"dockFeed"_s);
    double longest = 0;
    for (int notch = 0; notch < notches; ++notch) {
        longest = std::max(longest, window.meter().frameTime([&] {
            QWheelEvent event(place, place, {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            event.setTimestamp(static_cast<quint64>(1000 + 16 * notch));
            QCoreApplication::sendEvent(&window.gallery().window(), &event);
        }));
    }
    return longest;
}

/// The longest frame while the bar is dragged from the end to the beginning.
double dragTime(ChatWindow &window) {
    QQuickWindow &view = window.gallery().window();
    const QQuickItem *feed = window.gallery().item(u"dockFeed"_s);
    const QPoint corner =
        feed->mapToScene(QPointF(feed->width() - 6, feed->height() - 6)).toPoint();
    window.meter().rest();
    QTest::mousePress(&view, Qt::LeftButton, {}, corner);
    double longest = 0;
    for (int page = 1; page <= pages; ++page) {
        const QPoint at = corner - QPoint(0, static_cast<int>(feed->height()) * page / pages);
        longest = std::max(longest, window.meter().frameTime([&] { QTest::mouseMove(&view, at); }));
    }
    QTest::mouseRelease(&view, Qt::LeftButton, {},
                        corner - QPoint(0, static_cast<int>(feed->height())));
    // Once the bar is let go of, places count from the first row again.
    window.meter().rest();
    if (feed->property("contentY").toDouble() > feed->height())
        qFatal("The conversation does not scroll");
    return longest;
}

} // namespace

QList<Row> longChat() {
    ChatWindow window;
    const double opened = openTime(window);
    if (window.gallery().item(u"dockFeed"_s)->property("contentHeight").toDouble() < messages * 40)
        qFatal("The conversation does not show");
    const double wheel = wheelTime(window);
    const double drag = dragTime(window);
    QList<double> near;
    for (int frame = 0; frame < notches; ++frame)
        near.append(1 - 0.0002 * frame);
    QList<double> far;
    for (int page = 0; page <= pages; ++page)
        far.append(1 - static_cast<double>(page) / pages);
    return {{u"long-chat, open"_s, opened, u"setMarkdown once"_s, wholeTime(), openMost},
            {u"long-chat, wheel"_s, wheel, u"ListView of Text"_s, listTime(near), frameMost},
            {u"long-chat, drag"_s, drag, u"ListView of Text"_s, listTime(far), frameMost}};
}

} // namespace kiv::bench
