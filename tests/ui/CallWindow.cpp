#include "ui/CallWindow.h"

#include <QAccessible>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

void CallWindow::init() {
    QTest::failOnWarning(QRegularExpression(u"qrc:|QML"_s));
    m_workspace = std::make_unique<CallWorkspace>();
    m_gallery = std::make_unique<Gallery>();
}

void CallWindow::cleanup() {
    m_gallery.reset();
    m_workspace.reset();
}

void CallWindow::open(const QSize &size) {
    QVERIFY(m_workspace->signIn());
    m_gallery->open(*m_workspace->store, size);
}

void CallWindow::talk(const QSize &size) {
    open(size);
    QVERIFY(m_workspace->talk());
    QVERIFY(m_gallery->item(u"callState"_s));
}

QString CallWindow::heard(const QString &name) {
    return QAccessible::queryAccessibleInterface(m_gallery->item(name))->text(QAccessible::Name);
}

} // namespace kiv::ui
