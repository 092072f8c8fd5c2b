#include "ui/AccountWindow.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

/// The account pages: how they open, look and are left, by mouse and keys.
class AccountPagesTest : public AccountWindow {
    Q_OBJECT

private Q_SLOTS:
    void focusInSight();
    void opensAndCloses();
    void document();
    void leavingAsks();
    void loadFails();
};

/// The page scrolls to a field that the tab key reaches.
void AccountPagesTest::focusInSight() {
    open(u"profile"_s, {1024, 680});
    m_gallery->item(u"leaveAccount"_s)->forceActiveFocus(Qt::TabFocusReason);
    const double pageTop = m_gallery->item(u"profilePage"_s)->mapToScene(QPointF()).y();
    double lowest = 0; // of the page
    for (int step = 0; step < 32; ++step) {
        m_gallery->press(Qt::Key_Tab);
        const QQuickItem *item = m_gallery->window().activeFocusItem();
        const double top = item->mapToScene(QPointF()).y();
        QVERIFY2(top >= 0 && top + item->height() <= 680, qPrintable(item->objectName()));
        lowest = std::max(lowest, item->mapToItem(m_gallery->item(u"profilePage"_s), {}).y());
    }
    QCOMPARE_GT(pageTop + lowest, 680); // where no field was in sight at first
}

void AccountPagesTest::opensAndCloses() {
    QVERIFY(m_workspace->signIn());
    m_gallery->open(*m_workspace->store, {1440, 900});
    m_gallery->click(u"profileButton"_s);
    m_gallery->click(u"notificationsRow"_s);
    m_gallery->item(u"notificationsPage"_s);
    QVERIFY(!layout().profileOpen());
    QTRY_COMPARE(text(u"accountState"_s), u"All changes saved"_s);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"notificationsPage"_s));
    m_gallery->press(Qt::Key_Comma, Qt::ControlModifier);
    m_gallery->item(u"profilePage"_s);
    m_gallery->click(u"leaveAccount"_s);
    QTRY_VERIFY(!layout().isAccount());
    QCOMPARE(m_workspace->backend.count(profilePatch), 0);
}

void AccountPagesTest::document() {
    open(u"memory"_s);
    // The arrow keys go through the pages by name and through the documents, and stay among them.
    const auto leads = [this](const QString &from, Qt::Key key, const QString &to) {
        m_gallery->item(from)->forceActiveFocus(Qt::TabFocusReason);
        m_gallery->press(key);
        return m_gallery->hasFocus(to);
    };
    QVERIFY(leads(u"memoryTab"_s, Qt::Key_Down, u"sourcesTab"_s));
    QVERIFY(leads(u"accountSignOut"_s, Qt::Key_Down, u"accountSignOut"_s));
    QVERIFY(leads(u"decisions_md"_s, Qt::Key_Up, u"shared_md"_s));
    QVERIFY(leads(u"shared_md"_s, Qt::Key_Up, u"shared_md"_s));
    click(u"shared_md"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"documentText"_s));
    m_gallery->type(u"We ship on Thursdays."_s);
    QCOMPARE(text(u"documentLength"_s), u"21 of 20,000 characters"_s);
    // The tab key leads on to what can be done with it.
    m_gallery->press(Qt::Key_Tab);
    QVERIFY(m_gallery->hasFocus(u"discardDocument"_s));
    // Back in the list it is still there, and not saved.
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(m_gallery->find(u"shared_md"_s));
    QCOMPARE(m_workspace->backend.count(profilePatch), 0);
    click(u"shared_md"_s);
    QTRY_COMPARE(text(u"documentText"_s), u"We ship on Thursdays."_s);
    click(u"saveDocument"_s);
    QTRY_COMPARE(patched(), (QJsonObject{{u"shared_md"_s, u"We ship on Thursdays."_s}}));
    QTRY_VERIFY(m_gallery->find(u"undoSave"_s));
    // As it reads, the keys scroll it.
    m_workspace->store->account()
        ->field(u"shared_md"_s)
        ->edit(u"A line of its own.\n\n"_s.repeated(80));
    click(u"segment:Preview"_s);
    QQuickItem *preview = m_gallery->item(u"documentPreview"_s);
    preview->forceActiveFocus(Qt::TabFocusReason);
    QTRY_VERIFY(preview->property("contentHeight").toDouble() > 2 * preview->height());
    const auto place = [preview] { return preview->property("contentY").toDouble(); };
    QCOMPARE(place(), 0);
    m_gallery->press(Qt::Key_PageDown);
    m_gallery->save(u"account-preview"_s);
    QCOMPARE(place(), preview->height());
    m_gallery->press(Qt::Key_PageUp);
    QCOMPARE(place(), 0);
}

void AccountPagesTest::leavingAsks() {
    open(u"memory"_s);
    click(u"goals_md"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"documentText"_s));
    m_gallery->type(u"!"_s);
    click(u"leaveAccount"_s);
    m_gallery->item(u"leaveAnyway"_s);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"leaveAnyway"_s));
    QVERIFY(layout().isAccount());
    click(u"accountSignOut"_s);
    click(u"leaveAnyway"_s);
    QTRY_COMPARE(m_workspace->store->scope()->auth(), store::AuthPhase::Anon);
    QVERIFY(!layout().isAccount());
    QCOMPARE(m_workspace->backend.count(profilePatch), 0);
}

void AccountPagesTest::loadFails() {
    QVERIFY(m_workspace->signIn());
    m_workspace->backend.answer(u"GET api/v2/user/profile"_s, R"({"error":"Out of order."})", 500);
    m_gallery->open(*m_workspace->store, {1440, 900});
    m_gallery->press(Qt::Key_Comma, Qt::ControlModifier);
    m_gallery->item(u"retryLoad"_s);
    m_workspace->backend.answer(u"GET api/v2/user/profile"_s, R"({"handle":"ona"})");
    click(u"retryLoad"_s);
    QTRY_COMPARE(text(u"handle"_s), u"ona"_s);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::AccountPagesTest)
#include "AccountPagesTest.moc"
