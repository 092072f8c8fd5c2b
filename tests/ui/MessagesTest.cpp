#include "ui/Gallery.h"
#include "ui/Workspace.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

/// What a person sees of messages and does with them.
class MessagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void pictures_data();
    void pictures();

private:
    std::unique_ptr<Workspace> m_workspace;
    std::unique_ptr<Gallery> m_gallery;
};

void MessagesTest::init() {
    QTest::failOnWarning(QRegularExpression(u"qrc:|QML"_s));
    m_workspace = std::make_unique<Workspace>();
    m_gallery = std::make_unique<Gallery>();
    QVERIFY(m_workspace->signIn());
}

void MessagesTest::cleanup() {
    m_gallery.reset();
    m_workspace.reset();
}

void MessagesTest::pictures_data() {
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void MessagesTest::pictures() {
    QFETCH(bool, dark);
    const QString name = QLatin1StringView(QTest::currentDataTag());
    m_gallery->setDark(dark);
    m_gallery->open(*m_workspace->store, {1440, 900});
    m_workspace->row(1, u"What is blocking the Orchard invoices? Коротко, пожалуйста."_s,
                     u"user"_s);
    m_workspace->row(2, Workspace::mixedAnswer());
    QTRY_COMPARE(m_workspace->msgs().count(), 3);
    m_gallery->save(u"messages-rail-"_s + name);
    m_gallery->press(Qt::Key_Backslash, Qt::ControlModifier);
    m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    m_gallery->save(u"messages-dock-"_s + name);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::MessagesTest)
#include "MessagesTest.moc"
