#include "canvas/CanvasEngine.h"
#include "ui/Gallery.h"
#include "ui/SceneAnswers.h"
#include "ui/Workspace.h"

#include <QAccessible>
#include <QMetaProperty>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

/// A text of the window as it is seen.
struct SeenText {
    QString words;
    QRectF box; ///< what of it is not clipped, in the window
    QColor color;
    bool cut = false; ///< elided, or running out of its room
};

/// What of an item's area no clipping item above it cuts off.
QRectF shownPart(const QQuickItem *item, const QRectF &area) {
    QRectF box = item->mapRectToScene(area);
    for (const QQuickItem *above = item->parentItem(); above; above = above->parentItem()) {
        if (above->clip())
            box &= above->mapRectToScene(above->boundingRect());
    }
    return box;
}

/// Where the letters of a text stand.
QRectF inkOf(const QQuickItem *text) {
    const double width = std::min(text->property("contentWidth").toDouble(), text->width());
    const int alignment = text->property("effectiveHorizontalAlignment").toInt();
    const double spare = text->width() - width;
    const double x = alignment == Qt::AlignRight     ? spare
                     : alignment == Qt::AlignHCenter ? spare / 2
                                                     : 0;
    return {x, 0, width, text->height()};
}

void collectTexts(const QQuickItem *item, QList<SeenText> &texts) {
    if (!item->isVisible() || item->opacity() == 0)
        return;
    const QString words = item->property("text").toString();
    if (item->inherits("QQuickText") && !words.isEmpty()) {
        const QRectF ink = inkOf(item);
        const QRectF box = shownPart(item, ink);
        if (!box.isEmpty()) {
            const bool out = item->property("contentWidth").toDouble() > item->width() + 0.5;
            texts.append({words, box, item->property("color").value<QColor>(),
                          out || item->property("truncated").toBool()});
        }
    }
    const QList<QQuickItem *> children = item->childItems();
    for (const QQuickItem *child : children)
        collectTexts(child, texts);
}

/// Every text that a scene or one of its rows holds, except names that are meant for the program.
void collectFields(const QMetaObject &fields, const void *gadget, QStringList &words) {
    for (int i = 0; i < fields.propertyCount(); ++i) {
        const QMetaProperty field = fields.property(i);
        if (QByteArrayView(field.name()) == "art" || QByteArrayView(field.name()) == "status")
            continue;
        const QVariant value = field.readOnGadget(gadget);
        if (value.metaType() == QMetaType::fromType<QString>()) {
            words.append(value.toString());
        } else if (value.metaType() == QMetaType::fromType<QStringList>()) {
            words += value.toStringList();
        } else if (value.canConvert<QVariantList>()) {
            const auto rows = value.value<QVariantList>();
            for (const QVariant &row : rows) {
                if (const QMetaObject *type = row.metaType().metaObject())
                    collectFields(*type, row.constData(), words);
            }
        }
    }
}

QStringList textsOf(const canvas::SceneOut &scene) {
    QStringList words;
    collectFields(canvas::SceneOut::staticMetaObject, &scene, words);
    words.removeAll(QString());
    words.removeDuplicates();
    return words;
}

bool isFigure(const QString &words) {
    static const QRegularExpression figure(u"^[−+-]?[€$£]?[\\d\u202f\u00a0.,]+[%\u00a0]?$"_s);
    return figure.match(words).hasMatch();
}

double luminance(const QColor &color) {
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// What a text stands on: most of the picture in its box.
QColor groundOf(const QImage &picture, const QRectF &box) {
    QHash<QRgb, int> counts;
    const QRect area = box.toAlignedRect() & picture.rect();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    return QColor(std::max_element(counts.cbegin(), counts.cend()).key());
}

void collectItems(QQuickItem *item, const QByteArray &type, QList<QQuickItem *> &items) {
    if (QByteArray(item->metaObject()->className()).startsWith(type + "_QMLTYPE"))
        items.append(item);
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        collectItems(child, type, items);
}

SceneAnswer answerNamed(const QString &name) {
    for (const SceneAnswer &answer : sceneAnswers()) {
        if (answer.name == name)
            return answer;
    }
    qFatal("No answer is called %s", qPrintable(name));
}

} // namespace

/// Every scene, from the text of an answer to the picture, at three widths in both themes.
class SceneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"qrc:|QML|file:"_s)); }
    void everyArt();
    void structure_data();
    void structure();
    void keys_data();
    void keys();
    void click();
    void tip();
    void entrance_data();
    void entrance();
    void redrawn();

private:
    QQuickItem *show(const canvas::SceneOut &scene, const QVariantMap &more = {});
    void check(const SceneAnswer &answer, const canvas::SceneOut &scene, const QImage &picture);

    QList<QQuickItem *> itemsOf(const char *type) const;
    bool seesText(const QString &words) const;

    Workspace m_workspace;
    Gallery m_gallery;
};

/// The items of a QML type in the window, from top to bottom.
QList<QQuickItem *> SceneTest::itemsOf(const char *type) const {
    QList<QQuickItem *> items;
    collectItems(m_gallery.window().contentItem(), type, items);
    std::stable_sort(items.begin(), items.end(), [](const QQuickItem *one, const QQuickItem *two) {
        return one->mapToScene({}).y() < two->mapToScene({}).y();
    });
    return items;
}

bool SceneTest::seesText(const QString &words) const {
    QList<SeenText> texts;
    collectTexts(m_gallery.window().contentItem(), texts);
    return std::any_of(texts.begin(), texts.end(),
                       [&](const SeenText &text) { return text.words == words; });
}

void SceneTest::everyArt() {
    QStringList arts;
    for (const SceneAnswer &answer : sceneAnswers())
        arts.append(answer.art);
    arts.removeDuplicates();
    QStringList drawn(canvas::CanvasEngine::knownArts().begin(),
                      canvas::CanvasEngine::knownArts().end());
    arts.sort();
    drawn.sort();
    QCOMPARE(arts, drawn);
}

void SceneTest::structure_data() {
    QTest::addColumn<SceneAnswer>("answer");
    for (const SceneAnswer &answer : sceneAnswers())
        QTest::newRow(qPrintable(answer.name)) << answer;
}

void SceneTest::structure() {
    QFETCH(SceneAnswer, answer);
    const canvas::SceneOut scene = sceneOf(answer);
    for (const QSize &size : {QSize(640, 900), QSize(1000, 720), QSize(1600, 1000)}) {
        m_gallery.setDark(false);
        m_gallery.show(u"ScenePage.qml"_s, size,
                       {{u"scene"_s, QVariant::fromValue(scene)},
                        {u"scope"_s, QVariant::fromValue(m_workspace.store->scope())}});
        for (const bool dark : {false, true}) {
            m_gallery.setDark(dark);
            const QImage picture = m_gallery.grab(u"scene-%1-%2-%3"_s.arg(
                answer.name, QString::number(size.width()), dark ? u"dark"_s : u"light"_s));
            check(answer, scene, picture);
            if (QTest::currentTestFailed())
                return;
        }
    }
}

QQuickItem *SceneTest::show(const canvas::SceneOut &scene, const QVariantMap &more) {
    QVariantMap properties = more;
    properties.insert(u"scene"_s, QVariant::fromValue(scene));
    properties.insert(u"scope"_s, QVariant::fromValue(m_workspace.store->scope()));
    return m_gallery.show(u"ScenePage.qml"_s, {1000, 720}, properties);
}

void SceneTest::keys_data() {
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QList<Qt::Key>>("walk");
    QTest::addColumn<QString>("spoken"); // what a screen reader says of the mark
    QTest::addColumn<QString>("chosen");
    const auto row = [](const char *answer, const QList<Qt::Key> &walk, const QString &spoken,
                        const QString &chosen) {
        QTest::addRow("%s", answer) << QString::fromLatin1(answer) << walk << spoken << chosen;
    };
    row("report-plain", {Qt::Key_Right}, u"Open tasks, 137, −12"_s, u"Open tasks"_s);
    row("compare-plain", {Qt::Key_Down, Qt::Key_Up},
        u"Shared cluster, Price per month €1,240, Uptime 99.90%, Latency, p95 38 ms, "
        "Backups Included"_s,
        u"Shared cluster"_s);
    row("costs-plain", {Qt::Key_Down}, u"Hosting, €17\u202f300"_s, u"Hosting"_s);
    row("costs-many", {Qt::Key_End}, u"Supplier 200, €450"_s, u"Supplier 200"_s);
    row("workload-plain", {Qt::Key_Down, Qt::Key_Down}, u"Designer, 97%, 90–100%"_s, u"Designer"_s);
    row("status-plain", {Qt::Key_Down, Qt::Key_Down}, u"Glasshouse, 41%, target 65%, Behind"_s,
        u"Glasshouse"_s);
    row("okr-plain", {Qt::Key_End, Qt::Key_Up}, u"Satisfaction at 4.6 or more, 94%"_s,
        u"Satisfaction at 4.6 or more"_s);
    row("okr-many", {Qt::Key_End}, u"Result 199, 199%"_s, u"Result 199"_s);
    row("decision-plain", {Qt::Key_Down}, u"Running cost, A 6 · B 7"_s, u"Running cost"_s);
    row("agents-plain", {Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Right},
        u"Load test, To do"_s, u"Load test"_s);
    row("agents-many", {Qt::Key_End}, u"Task 179, Unknown"_s, u"Task 179"_s);
    row("funnel-plain", {Qt::Key_Down}, u"Started a trial, 5\u202f240, 42%"_s,
        u"Started a trial"_s);
    row("funnel-many", {Qt::Key_End}, u"Stage 199, 1\u202f040, 96%"_s, u"Stage 199"_s);
    row("unit-plain", {Qt::Key_End}, u"Прочее, €0.11, 6%"_s, u"Прочее"_s);
    row("unit-many", {Qt::Key_End}, u"Part 199, €363, 0.4%"_s, u"Part 199"_s);
    row("brief-plain", {Qt::Key_Right, Qt::Key_Down}, u"Доступ к выгрузке, Orchard · Ledger"_s,
        u"Доступ к выгрузке"_s);
    row("brief-many", {Qt::Key_End}, u"Task 195, Project"_s, u"Task 195"_s);
    row("retro-plain", {Qt::Key_Right, Qt::Key_Right, Qt::Key_Right},
        u"Book the load test in week one"_s, u"Book the load test in week one"_s);
    row("retro-many", {Qt::Key_End}, u"Note 32 of 5"_s, u"Note 32 of 5"_s);
    row("cashflow-plain", {Qt::Key_Right}, u"Aug, In 84 · Out 96 · Balance 102"_s, u"Aug"_s);
    row("cashflow-many", {Qt::Key_End}, u"Day 199, In €431 · Out €431 · Balance €431"_s,
        u"Day 199"_s);
    row("budget-plain", {Qt::Key_Down}, u"Hosting, €17\u202f300, plan €15\u202f500, +12%, Over"_s,
        u"Hosting"_s);
}

/// A scene is one stop of the tab key; arrows walk its marks, Return asks about one.
void SceneTest::keys() {
    QFETCH(QString, answer);
    QFETCH(QList<Qt::Key>, walk);
    QFETCH(QString, spoken);
    QFETCH(QString, chosen);
    QSignalSpy asked(show(sceneOf(answerNamed(answer))), SIGNAL(pointChosen(QString)));
    m_gallery.press(Qt::Key_Tab);
    for (const Qt::Key key : walk)
        m_gallery.press(key);
    QQuickItem *mark = m_gallery.window().activeFocusItem();
    QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(mark);
    QVERIFY(reader);
    QCOMPARE(reader->text(QAccessible::Name), spoken);
    const QRectF whole = mark->mapRectToScene(mark->boundingRect());
    QCOMPARE(shownPart(mark, mark->boundingRect()), whole);
    m_gallery.grab(u"focus-%1"_s.arg(answer));
    m_gallery.press(Qt::Key_Return);
    m_gallery.press(Qt::Key_Space);
    QCOMPARE(asked.size(), 2);
    QCOMPARE(asked.last().first().toString(), chosen);
    m_gallery.press(Qt::Key_Tab);
    QVERIFY(m_gallery.hasFocus(u"showMessage"_s));
}

void SceneTest::click() {
    QSignalSpy asked(show(sceneOf(answerNamed(u"costs-plain"_s))), SIGNAL(pointChosen(QString)));
    const QQuickItem *row = itemsOf("CostRow").at(2);
    QTest::mouseClick(&m_gallery.window(), Qt::LeftButton, {},
                      row->mapToScene({300, 20}).toPoint());
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.first().first().toString(), u"Contract design"_s);
}

void SceneTest::tip() {
    show(sceneOf(answerNamed(u"costs-plain"_s)));
    const QPointF row = itemsOf("CostRow").at(1)->mapToScene({420, 20});
    QElapsedTimer rest;
    rest.start();
    QTest::mouseMove(&m_gallery.window(), row.toPoint() - QPoint(0, 4));
    QTest::mouseMove(&m_gallery.window(), row.toPoint());
    QTRY_VERIFY(seesText(u"€17\u202f300 · 25%"_s));
    QVERIFY(rest.elapsed() >= 500);
    m_gallery.save(u"tip"_s);
}

void SceneTest::entrance_data() {
    QTest::addColumn<bool>("animated");
    QTest::addColumn<bool>("reduced");
    QTest::addColumn<bool>("grows");
    QTest::newRow("a new scene") << true << false << true;
    QTest::newRow("a restored scene") << false << false << false;
    QTest::newRow("less motion asked for") << true << true << false;
}

void SceneTest::entrance() {
    QFETCH(bool, animated);
    QFETCH(bool, reduced);
    QFETCH(bool, grows);
    m_gallery.setReducedMotion(reduced);
    show(sceneOf(answerNamed(u"workload-plain"_s)), {{u"animated"_s, animated}});
    m_gallery.setReducedMotion(false);
    const auto lengthOf = [this](int bar) {
        return itemsOf("ValueBar").at(bar)->childItems().first()->width();
    };
    const double track = itemsOf("ValueBar").first()->width();
    const double first = lengthOf(0);
    QCOMPARE(first < track, grows);
    // The bars come one after the other, and 600 ms later all is there.
    QVERIFY(!grows || lengthOf(1) <= first);
    QTest::qWait(700);
    QCOMPARE(lengthOf(0), track);
    QCOMPARE(lengthOf(5), 0.52 * track);
    QCOMPARE(m_gallery.item(u"sheet"_s)->opacity(), 1.0);
}

/// Other figures of the same scene: rows stay, and only the bar that changed moves.
void SceneTest::redrawn() {
    canvas::SceneOut scene = sceneOf(answerNamed(u"workload-plain"_s));
    QQuickItem *page = show(scene, {{u"animated"_s, true}});
    QTest::qWait(700);
    const QList<QQuickItem *> rows = itemsOf("WorkloadRow");
    const QList<QQuickItem *> bars = itemsOf("ValueBar");
    const double track = bars.first()->width();
    scene.wlRows[5].pct = 20;
    page->setProperty("scene", QVariant::fromValue(scene));
    QCOMPARE(itemsOf("WorkloadRow"), rows);
    QVERIFY(seesText(u"20%"_s));
    const auto lengthOf = [&](int bar) { return bars.at(bar)->childItems().first()->width(); };
    QCOMPARE(lengthOf(4), 0.74 * track);
    QVERIFY(lengthOf(5) > 0.4 * track);
    QTRY_COMPARE(lengthOf(5), 0.2 * track);
    scene.wlRows.removeLast();
    page->setProperty("scene", QVariant::fromValue(scene));
    QTRY_COMPARE(itemsOf("WorkloadRow"), rows.first(5));
}

void SceneTest::check(const SceneAnswer &answer, const canvas::SceneOut &scene,
                      const QImage &picture) {
    QList<SeenText> seen;
    collectTexts(m_gallery.window().contentItem(), seen);
    const QRectF sheet =
        m_gallery.item(u"sheet"_s)
            ->mapRectToScene(QRectF(QPointF(), m_gallery.item(u"sheet"_s)->size()));
    QString all;
    for (qsizetype i = 0; i < seen.size(); ++i) {
        const SeenText &text = seen.at(i);
        all += text.words + u'\n';
        const QByteArray at = QByteArray::number(picture.width()) + ": " + text.words.toUtf8();
        QVERIFY2(sheet.contains(text.box), at);
        QVERIFY2(!isFigure(text.words) || !text.cut, at);
        const double readable = contrast(text.color, groundOf(picture, text.box));
        QVERIFY2(readable >= 4.5, at + ' ' + QByteArray::number(readable));
        const QRectF box = text.box.adjusted(1, 1, -1, -1);
        for (qsizetype j = 0; j < i; ++j)
            QVERIFY2(!box.intersects(seen.at(j).box.adjusted(1, 1, -1, -1)),
                     at + " over " + seen.at(j).words.toUtf8());
    }
    // Long lists show what fits; a program's minus is shown as one.
    if (answer.name.endsWith(u"-many"))
        return;
    all += QString(all).replace(u'−', u'-');
    const QStringList expected = textsOf(scene) + answer.figures;
    for (const QString &words : expected)
        QVERIFY2(all.contains(words), qPrintable(u"not shown: "_s + words));
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::SceneTest)
#include "SceneTest.moc"
