#include "app/AppDelegate.h"

#include "store/CallFixture.h"

#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace kiv::app {

/// How the program leaves.
class QuitTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// The backend has heard of the end of the call when the event loop is left.
    void inTheMiddleOfACall() {
        test::CallFixture f;
        AppDelegate delegate(*f.store);
        QVERIFY(f.signIn());
        QVERIFY(f.connect());
        QTimer::singleShot(0, [&] { delegate.perform(ui::Command::Quit); });
        QCoreApplication::exec();
        QCOMPARE(f.backend.count(f.end), 1);
        QVERIFY(!f.call()->call());
        QVERIFY(!f.call()->isTellingEnd());
    }
};

} // namespace kiv::app

QTEST_MAIN(kiv::app::QuitTest)
#include "QuitTest.moc"
