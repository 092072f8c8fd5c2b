#include "ui/SceneView.h"

#include <QAccessible>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

/// The things of a role below one, as a screen reader finds them; all for no role.
QList<QAccessibleInterface *> below(QAccessibleInterface *top, QAccessible::Role role) {
    QList<QAccessibleInterface *> found;
    for (int i = 0; i < top->childCount(); ++i) {
        QAccessibleInterface *child = top->child(i);
        if (!child || child->state().invisible)
            continue;
        if (role == QAccessible::NoRole || child->role() == role)
            found.append(child);
        found += below(child, role);
    }
    return found;
}

} // namespace

/// The way of keys, pointer and screen reader through the scenes.
class SceneKeysTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"qrc:|QML|file:"_s)); }
    void keys_data();
    void keys();
    void columnsByKeys();
    void click();
    void tip();
    void spoken_data();
    void spoken();

private:
    SceneView m_view;
};

void SceneKeysTest::keys_data() {
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
    row("costs-plain", {Qt::Key_Down}, u"Hosting, €17\u202f300, Glasshouse and Orchard"_s,
        u"Hosting"_s);
    row("costs-many", {Qt::Key_End}, u"Supplier 200, €450"_s, u"Supplier 200"_s);
    row("workload-plain", {Qt::Key_Down, Qt::Key_Down}, u"Designer, 97%, 90–100%, Paper Lantern"_s,
        u"Designer"_s);
    row("status-plain", {Qt::Key_Down, Qt::Key_Down},
        u"Glasshouse, 41%, target 65%, Behind, Data agent away until Tuesday"_s, u"Glasshouse"_s);
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
    row("unit-plain", {Qt::Key_End, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up}, u"Прочее, €0.11, 6%"_s,
        u"Прочее"_s);
    row("unit-long", {Qt::Key_End}, u"Margin per invoice, €0.66, +€0.08"_s,
        u"Margin per invoice"_s);
    row("unit-many", {Qt::Key_End, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up}, u"Part 199, €363, 0.4%"_s,
        u"Part 199"_s);
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
void SceneKeysTest::keys() {
    QFETCH(QString, answer);
    QFETCH(QList<Qt::Key>, walk);
    QFETCH(QString, spoken);
    QFETCH(QString, chosen);
    QSignalSpy asked(m_view.show(sceneOf(answerNamed(answer))), SIGNAL(pointChosen(QString)));
    m_view.gallery.press(Qt::Key_Tab);
    for (const Qt::Key key : walk)
        m_view.gallery.press(key);
    QQuickItem *mark = m_view.gallery.window().activeFocusItem();
    QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(mark);
    QVERIFY(reader);
    QCOMPARE(reader->text(QAccessible::Name), spoken);
    const QRectF whole = mark->mapRectToScene(mark->boundingRect());
    QCOMPARE(shownPart(mark, mark->boundingRect()), whole);
    m_view.gallery.grab(u"focus-%1"_s.arg(answer));
    m_view.gallery.press(Qt::Key_Return);
    m_view.gallery.press(Qt::Key_Space);
    QCOMPARE(asked.size(), 2);
    QCOMPARE(asked.last().first().toString(), chosen);
    m_view.gallery.press(Qt::Key_Tab);
    QVERIFY(m_view.gallery.hasFocus(u"showMessage"_s));
}

/// Columns beyond the width come into view, and what is cut short is told.
void SceneKeysTest::columnsByKeys() {
    canvas::SceneOut scene = sceneOf(answerNamed(u"compare-plain"_s));
    scene.cpCols.append(u"Remarks"_s);
    for (canvas::CpRow &row : scene.cpRows) {
        row.cells.append(u"Words that no column of a table has room for, however wide it is"_s);
        row.numeric.append(false);
    }
    m_view.show(scene, {}, {640, 720});
    m_view.gallery.press(Qt::Key_Tab);
    const QQuickItem *row = m_view.gallery.window().activeFocusItem();
    QVERIFY(row->property("tip").toString().endsWith(u"however wide it is"_s));
    const auto offset = [row] { return row->property("offset").toDouble(); };
    QCOMPARE(offset(), 0);
    m_view.gallery.press(Qt::Key_Right);
    QVERIFY(offset() > 0);
    for (int press = 0; press < 20; ++press)
        m_view.gallery.press(Qt::Key_Right);
    QVERIFY(m_view.gallery.window().activeFocusItem() == row);
    m_view.gallery.save(u"compare-columns-end"_s);
    for (int press = 0; press < 20; ++press)
        m_view.gallery.press(Qt::Key_Left);
    QCOMPARE(offset(), 0);
}

void SceneKeysTest::click() {
    QSignalSpy asked(m_view.show(sceneOf(answerNamed(u"costs-plain"_s))),
                     SIGNAL(pointChosen(QString)));
    const QQuickItem *row = m_view.itemsOf("CostRow").at(2);
    QTest::mouseClick(&m_view.gallery.window(), Qt::LeftButton, {},
                      row->mapToScene({300, 20}).toPoint());
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.first().first().toString(), u"Contract design"_s);
}

void SceneKeysTest::tip() {
    m_view.show(sceneOf(answerNamed(u"costs-plain"_s)));
    const QPointF row = m_view.itemsOf("CostRow").at(1)->mapToScene({420, 20});
    QElapsedTimer rest;
    rest.start();
    QTest::mouseMove(&m_view.gallery.window(), row.toPoint() - QPoint(0, 4));
    QTest::mouseMove(&m_view.gallery.window(), row.toPoint());
    QTRY_VERIFY(m_view.seesText(u"€17\u202f300 · 25%"_s));
    QVERIFY(rest.elapsed() >= 500);
}

void SceneKeysTest::spoken_data() {
    QTest::addColumn<SceneAnswer>("answer");
    for (const SceneAnswer &answer : sceneAnswers()) {
        if (answer.name.endsWith(u"-plain"_s))
            QTest::newRow(qPrintable(answer.art)) << answer;
    }
}

/// A heading, a table with one sentence about it, and a row for each mark that keys reach.
void SceneKeysTest::spoken() {
    QFETCH(SceneAnswer, answer);
    const canvas::SceneOut scene = sceneOf(answer);
    m_view.show(scene);
    QAccessibleInterface *sheet = QAccessible::queryAccessibleInterface(&m_view.gallery.window());
    QVERIFY(sheet);
    const QList<QAccessibleInterface *> headings = below(sheet, QAccessible::Heading);
    QCOMPARE(headings.size(), 1);
    QCOMPARE(headings.first()->text(QAccessible::Name), scene.title);
    const QList<QAccessibleInterface *> tables = below(sheet, QAccessible::Table);
    QCOMPARE(tables.size(), 1);
    QCOMPARE(tables.first()->text(QAccessible::Name), scene.title);
    QVERIFY(!tables.first()->text(QAccessible::Description).isEmpty());

    const QList<QAccessibleInterface *> rows = below(tables.first(), QAccessible::Row);
    QCOMPARE(rows.size(), tables.first()->object()->property("marks").toInt());
    for (QAccessibleInterface *row : rows) {
        QVERIFY(row->state().focusable);
        QVERIFY(!row->text(QAccessible::Name).isEmpty());
        // What it shows is in its name, and not said twice.
        QCOMPARE(below(row, QAccessible::StaticText).size(), 0);
    }
    QStringList said;
    for (QAccessibleInterface *each : below(sheet, QAccessible::NoRole))
        said += each->text(QAccessible::Name);
    const QString all = said.join(u'\n');
    // Initials and the values of an axis say nothing of their own.
    static const QRegularExpression axis(u"^[−\\d.,k\u202f]+$"_s);
    for (const SeenText &text : m_view.texts()) {
        for (const QString &word : text.words.split(u'\u2002')) {
            const bool isScale = answer.art == u"cashflow" && axis.match(word).hasMatch();
            QVERIFY2(word.size() <= 2 || isScale || all.contains(word),
                     qPrintable(u"not said: "_s + word));
        }
    }
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::SceneKeysTest)
#include "SceneKeysTest.moc"
