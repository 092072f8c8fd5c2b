#include "ui/CallWindow.h"

#include <QAccessible>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

void CallWindow::prepare() {
    m_workspace->allowCalls(
        R"({"call_id":"now","signed_url":"wss://voice.example","max_duration_secs":600})");
}

void CallWindow::talk(const QSize &size) {
    open(size);
    QVERIFY(m_workspace->connect());
    QVERIFY(m_gallery->item(u"callState"_s));
}

void CallWindow::converse() {
    m_workspace->clock.advance(2s);
    m_workspace->say(u"ai"_s, u"KIV here. I see all projects and every agent under them."_s);
    m_workspace->clock.advance(7s);
    m_workspace->say(u"user"_s, u"How do the projects look this week?"_s);
    m_workspace->clock.advance(5s);
    m_workspace->say(u"ai"_s,
                     u"Three of five are on track. Orchard waits for a tax field and Glasshouse is "
                     u"over its capacity."_s);
    m_workspace->clock.advance(197s);
    m_workspace->say(u"user"_s, u"Покажи, кто перегружен."_s);
    m_workspace->clock.advance(5s);
    m_workspace->say(u"ai"_s, u"Here is the load for the coming week."_s);
    m_workspace->clock.advance(22s);
    m_workspace->say(u"user"_s, u"Which one should worry me?"_s);
    m_workspace->clock.advance(8s);
    m_workspace->say(
        u"ai"_s,
        u"Glasshouse is the one to watch. The data agent is back on Tuesday, until then "
        u"it runs at 118%."_s,
        u"partial"_s);
    m_workspace->clock.advance(6s);
}

QString CallWindow::heard(const QString &name) {
    return QAccessible::queryAccessibleInterface(m_gallery->item(name))->text(QAccessible::Name);
}

} // namespace kiv::ui
