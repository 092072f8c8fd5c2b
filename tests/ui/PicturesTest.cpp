#include "ui/Gallery.h"
#include "ui/Workspace.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

/// Leaves a picture of every state of the window, and fails when a view has something to complain
/// of.
class PicturesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"qrc:|QML"_s)); }
    void everyState_data();
    void everyState();
};

void PicturesTest::everyState_data() {
    addLooks();
}

void PicturesTest::everyState() {
    QFETCH(bool, dark);
    QFETCH(QSize, size);
    const QString name = QLatin1StringView(QTest::currentDataTag());
    const auto named = [&](const char *state) { return name + u'-' + QLatin1StringView(state); };

    Workspace workspace;
    Gallery gallery;
    gallery.setDark(dark);
    QVERIFY(workspace.bootSignedOut());
    gallery.open(*workspace.store, size);
    gallery.save(named("signed-out"));
    gallery.click(u"signInButton"_s);
    gallery.type(u"lead@night-ferry.example"_s);
    gallery.press(Qt::Key_Tab);
    gallery.type(u"short"_s);
    gallery.press(Qt::Key_Return);
    gallery.save(named("sign-in"));
    gallery.press(Qt::Key_Escape);

    workspace.backend.answer(
        u"GET api/v2/auth/me"_s,
        R"({"id":"u1","email":"lead@night-ferry.example","name":"Ona Lindqvist"})");
    QVERIFY(workspace.signIn());
    gallery.save(named("empty"));
    store::CanvasRoom *canvas = workspace.store->canvas();
    workspace.store->chat()->send(u"Tell me a story"_s);
    gallery.save(named("thinking"));
    QVERIFY(workspace.ask(u"Tell me a story"_s, u"Once there was a ferry."_s, QString()));
    gallery.save(named("hint"));
    workspace.store->chat()->send(u"How was the week?"_s);
    workspace.row(50, Workspace::reportAnswer());
    QTRY_COMPARE(canvas->state(), store::CanvasState::BuildingScene);
    gallery.save(named("building"));
    QVERIFY(workspace.settle(u"report"_s));
    gallery.save(named("report"));
    QVERIFY(
        workspace.ask(u"Compare the hosting options"_s, Workspace::compareAnswer(), u"compare"_s));
    gallery.save(named("compare"));
    for (const char *popover : {"history", "events", "scope", "profile"}) {
        gallery.click(QLatin1StringView(popover) + u"Button"_s);
        gallery.save(named(popover));
        gallery.press(Qt::Key_Escape);
        QTest::qWait(200);
    }
    gallery.click(u"refineButton"_s);
    gallery.save(named("refine"));
    gallery.press(Qt::Key_Escape);
    QTest::qWait(200);
    QVERIFY(workspace.ask(
        u"Where do I see it?"_s,
        u"On [the board](/project/ferry?tab=tasks).\nOPTIONS: Run the fix|Show the customers"
        u"|Draft the wording|Send everything to the people who asked for it last week"_s,
        QString()));
    gallery.save(named("page"));
    gallery.press(Qt::Key_Backslash, Qt::ControlModifier);
    gallery.press(Qt::Key_K, Qt::ControlModifier);
    gallery.type(u"Check it against last month’s export first"_s);
    gallery.save(named("float"));
    gallery.press(Qt::Key_J, Qt::ControlModifier);
    gallery.save(named("dock"));
    gallery.press(Qt::Key_Return);
    gallery.press(Qt::Key_J, Qt::ControlModifier);
    // The stream stays alive, but no answer comes.
    for (int i = 0; i < 8; ++i) {
        workspace.row(101, u"Tell me a story"_s, u"user"_s);
        QTest::qWait(30);
        workspace.clock.advance(25s);
    }
    QTRY_COMPARE(canvas->state(), store::CanvasState::Failed);
    gallery.save(named("failed"));

    workspace.backend.answer(u"GET api/v2/projects/ferry/events"_s, Workspace::events());
    workspace.store->scope()->enterProject(u"ferry"_s);
    for (const char *panel : {"agents", "events"}) {
        canvas->openPanel(QLatin1StringView(panel));
        QTRY_VERIFY(!workspace.store->events()->eventsLoading());
        gallery.save(named(panel) + u"-page"_s);
    }
    gallery.press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    gallery.type(u"la"_s);
    gallery.save(named("palette"));
    gallery.press(Qt::Key_Escape);
    gallery.press(Qt::Key_D, Qt::ControlModifier);
    gallery.save(named("toast"));
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::PicturesTest)
#include "PicturesTest.moc"
