#include "ui/AccountWindow.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

void AccountWindow::init() {
    QTest::failOnWarning(QRegularExpression(u"qrc:|QML"_s));
    m_workspace = std::make_unique<Workspace>();
    m_gallery = std::make_unique<Gallery>();
    test::ScriptedBackend &backend = m_workspace->backend;
    backend.answer(u"GET api/v2/user/profile"_s,
                   R"({"email":"lead@night-ferry.example",
        "full_name":"Ona Lindqvist","handle":"ona.lindqvist","company_name":"Harbour & Lane",
        "company_website":"harbour-lane.example","company_size":"51–200","industry":"Transport",
        "jobTitle":"Operations lead","time_zone":"Europe/Oslo","preferred_language":"English",
        "preferred_country":"Norway",
        "preferred_sectors":["Logistics","Public services","Образование"],
        "communication_style":"balanced","working_hours_start":"09:00",
        "working_hours_end":"17:30","working_hours_days":"Mon, Tue, Wed, Thu, Fri",
        "notification_email":true,
        "goals_md":)"
                   R"("# Goals\n\nShip the **guided sign-up**.\n\n- [x] Collect\n- [ ] Fill\n\n)"
                   R"(| Quarter | Orders |\n|---|---|\n| Q1 | 120 |\n\n```sh\nmake ship\n```"})");
    backend.answer(profilePatch, "{}");
    backend.answer(u"GET api/v2/user/plan"_s,
                   R"({"name":"Team","plan_key":"team",
        "token_limit":2000000,"spent_tokens":1240500,"tokens_left":759500})");
    backend.answer(u"GET api/v2/user/wallet"_s,
                   R"({"wallet":{"balance_credits":212.4,"available_credits":180}})");
}

void AccountWindow::cleanup() {
    m_gallery.reset();
    m_workspace.reset();
}

void AccountWindow::open(const QString &tab, QSize size) {
    QVERIFY(m_workspace->signIn());
    m_gallery->open(*m_workspace->store, size);
    layout().openAccount(tab);
    QTRY_COMPARE(m_workspace->store->account()->profileLoad(), store::LoadState::Ready);
    QTRY_COMPARE(m_workspace->store->account()->budgetLoad(), store::LoadState::Ready);
    m_gallery->item(tab + u"Page"_s);
}

QJsonObject AccountWindow::patched() const {
    const auto requests = m_workspace->backend.requests(profilePatch);
    return requests.isEmpty() ? QJsonObject() : requests.last().body;
}

void AccountWindow::click(const QString &item) {
    QTest::qWait(20);
    m_gallery->click(item);
}

} // namespace kiv::ui
