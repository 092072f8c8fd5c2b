#include "ui/EveryPlace.h"
#include "ui/SceneView.h"
#include "ui/Workspace.h"

#include <QAccessible>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

namespace {

QString described(QAccessibleInterface *item) {
    const QObject *object = item->object();
    return u"%1 %2 “%3”"_s.arg(QString::number(item->role(), 16),
                               object ? QLatin1StringView(object->metaObject()->className())
                                      : QLatin1StringView(),
                               item->text(QAccessible::Name).left(40)) +
           (object ? u" "_s + object->objectName() : QString());
}

bool isInteractive(QAccessible::Role role) {
    static const QSet<int> roles{
        QAccessible::Button,   QAccessible::CheckBox, QAccessible::RadioButton,
        QAccessible::MenuItem, QAccessible::ListItem, QAccessible::EditableText,
        QAccessible::ComboBox, QAccessible::Link,     QAccessible::Slider,
        QAccessible::SpinBox,  QAccessible::PageTab,  QAccessible::ButtonMenu,
        QAccessible::Row,      QAccessible::Dialog};
    return roles.contains(role);
}

/// What is wrong in the tree below an item.
class TreeWalk {
public:
    QStringList faults;

    void look(QAccessibleInterface *item, QAccessibleInterface *group = nullptr) {
        if (item->state().invisible)
            return;
        const QString name = item->text(QAccessible::Name).trimmed();
        const QAccessible::Role role = item->role();
        if ((isInteractive(role) || item->state().focusable) && name.isEmpty())
            faults.append(u"no name: "_s + described(item));
        if (item->state().focusable && (role == QAccessible::NoRole || role == QAccessible::Client))
            faults.append(u"no role: "_s + described(item));
        const bool isGroup = role == QAccessible::Grouping || role == QAccessible::Pane;
        if (isGroup && (name.isEmpty() || shownChildren(item) == 0))
            faults.append(u"a group of nothing: "_s + described(item));
        if (isGroup && group && group->text(QAccessible::Name).trimmed() == name)
            faults.append(u"a group in its like: "_s + described(item));
        for (int i = 0; i < item->childCount(); ++i)
            look(item->child(i), isGroup ? item : group);
    }

private:
    static int shownChildren(QAccessibleInterface *item) {
        int shown = 0;
        for (int i = 0; i < item->childCount(); ++i)
            shown += !item->child(i)->state().invisible;
        return shown;
    }
};

/// What is wrong with an item that the tab key has led to.
QStringList faultsOfStop(QQuickItem *stop) {
    QAccessibleInterface *item = QAccessible::queryAccessibleInterface(stop);
    if (!item)
        return {u"a stop that nobody reads: "_s +
                QLatin1StringView(stop->metaObject()->className()) + u' ' + stop->objectName()};
    QStringList faults;
    if (item->text(QAccessible::Name).trimmed().isEmpty())
        faults.append(u"a stop without a name: "_s + described(item));
    if (stop->inherits("QQuickButton") && stop->metaObject()->indexOfMethod("activate()") < 0)
        faults.append(u"a stop that Return does not press: "_s + described(item));
    const QRectF shown =
        shownPart(stop, stop->boundingRect()) & QRectF(QPointF(), stop->window()->size());
    if (!stop->isVisible() || shown.isEmpty())
        faults.append(u"a stop out of sight: "_s + described(item));
    return faults;
}

/// Follows the tab key from where the focus is until it is there again.
struct TabWalk {
    QList<QQuickItem *> stops;
    QStringList faults;

    explicit TabWalk(Gallery &gallery) {
        constexpr int most = 150;
        for (int i = 0; i < most; ++i) {
            gallery.press(Qt::Key_Tab);
            QQuickItem *stop = gallery.window().activeFocusItem();
            if (stops.contains(stop))
                return;
            stops.append(stop);
            faults += faultsOfStop(stop);
        }
    }
};

} // namespace

/// What a screen reader and the tab key find in the window.
class AccessTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"qrc:|QML"_s)); }
    void everyPlace_data();
    void everyPlace();
    void everyScene_data();
    void everyScene();
    void areasInOrder();
    void answersOnce();
};

void AccessTest::everyPlace_data() {
    QTest::addColumn<QSize>("size");
    QTest::newRow("wide") << QSize(1440, 900);
    QTest::newRow("least") << QSize(1024, 680);
}

void AccessTest::everyPlace() {
    QFETCH(QSize, size);
    QStringList faults;
    Gallery gallery;
    gallery.setReducedMotion(true);
    visitEveryPlace(gallery, {.size = size}, [&](const QString &place) {
        TreeWalk walk;
        walk.look(QAccessible::queryAccessibleInterface(&gallery.window()));
        QQuickItem *focused = gallery.window().activeFocusItem();
        if (!focused)
            walk.faults.append(u"the keys are nowhere"_s);
        else if (!focused->isVisible())
            walk.faults.append(u"the keys are out of sight: "_s + focused->objectName() + u' ' +
                               QLatin1StringView(focused->metaObject()->className()));
        const QStringList all = walk.faults + TabWalk(gallery).faults;
        for (const QString &fault : all)
            faults.append(place + u": "_s + fault);
        if (focused)
            focused->forceActiveFocus(Qt::OtherFocusReason);
    });
    faults.removeDuplicates();
    QVERIFY2(faults.isEmpty(), qPrintable(u'\n' + faults.join(u'\n')));
}

void AccessTest::everyScene_data() {
    QTest::addColumn<QString>("name");
    for (const SceneAnswer &answer : sceneAnswers()) {
        if (!answer.name.contains(u' '))
            QTest::newRow(qPrintable(answer.name)) << answer.name;
    }
}

/// A scene is one stop, and its rows are read one by one.
void AccessTest::everyScene() {
    QFETCH(QString, name);
    SceneView view;
    view.show(sceneOf(answerNamed(name)));
    TreeWalk walk;
    walk.look(QAccessible::queryAccessibleInterface(&view.gallery.window()));
    const QStringList faults = walk.faults + TabWalk(view.gallery).faults;
    QVERIFY2(faults.isEmpty(), qPrintable(u'\n' + faults.join(u'\n')));
}

/// The tab key goes through one area after the other: top bar, rail, canvas, dock.
void AccessTest::areasInOrder() {
    Workspace workspace;
    Gallery gallery;
    QVERIFY(workspace.signIn());
    gallery.open(*workspace.store, {1440, 900});
    QVERIFY(workspace.ask(u"How was the week?"_s, Workspace::reportAnswer(), u"report"_s));
    gallery.item(u"menuButton"_s)->forceActiveFocus(Qt::TabFocusReason);
    const double railEnd = workspace.store->layout()->shownRailW();
    int area = 0;
    QStringList seen;
    const TabWalk walk(gallery);
    for (const QQuickItem *stop : walk.stops) {
        const QPointF place = stop->mapToScene(QPointF(stop->width() / 2, stop->height() / 2));
        const int here = place.y() < 52 ? 0 : place.x() <= railEnd + 4 ? 1 : 2;
        seen.append(u"%1 %2"_s.arg(here).arg(stop->objectName()));
        if (here == 0 && area == 2)
            break; // around
        QVERIFY2(here >= area, qPrintable(seen.join(u'\n')));
        area = here;
    }
    QCOMPARE(area, 2);
}

/// An answer is told of when it is complete, and never again.
void AccessTest::answersOnce() {
    Workspace workspace;
    Gallery gallery;
    QVERIFY(workspace.signIn());
    gallery.open(*workspace.store, {1440, 900});
    auto *news = gallery.window().findChild<QQuickItem *>(u"answerNews"_s);
    QVERIFY(news);
    QSignalSpy told(news, SIGNAL(wordsChanged()));
    workspace.store->chat()->send(u"How was the week?"_s);
    workspace.row(101, u"How was the week?"_s, u"user"_s);
    for (const char *text : {"A **good**", "A **good** week", "A **good** week [so far](x)."}) {
        workspace.row(102, QLatin1StringView(text));
        QTRY_COMPARE(workspace.texts().last(), QLatin1StringView(text));
        workspace.clock.advance(300ms);
    }
    QCOMPARE(told.size(), 0);
    QVERIFY(!news->isVisible());
    QVERIFY(workspace.settle(QString()));
    QTRY_COMPARE(told.size(), 1);
    QAccessibleInterface *alert = QAccessible::queryAccessibleInterface(news);
    QVERIFY(alert && !alert->state().invisible);
    QCOMPARE(alert->role(), QAccessible::AlertMessage);
    QCOMPARE(alert->text(QAccessible::Name), u"KIV has answered: A good week so far."_s);
    const QString more = u"A **good** week [so far](x). And more."_s;
    workspace.row(102, more);
    QTRY_COMPARE(workspace.texts().last(), more);
    QVERIFY(workspace.settle(QString()));
    QCOMPARE(told.size(), 1);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::AccessTest)
#include "AccessTest.moc"
