#include "app/Graphics.h"

#include <QTemporaryDir>
#include <QTest>

#include <array>

using namespace Qt::StringLiterals;

namespace kiv::app {

class GraphicsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        for (const char *variable : variables)
            qunsetenv(variable);
    }
    void init() { cleanup(); }

    void openGLIsForCards_data() {
        QTest::addColumn<QString>("device");
        QTest::addColumn<QByteArray>("variable");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("wanted");
        const QByteArray refused = "LIBGL_ALWAYS_SOFTWARE";
        const auto row = [](const char *name, const QString &device, const QByteArray &variable,
                            const QByteArray &value, bool wanted) {
            QTest::newRow(name) << device << variable << value << wanted;
        };
        row("no card", {}, {}, {}, false);
        row("a screen that nothing draws for", u"dri/card0"_s, {}, {}, false);
        row("a card", u"dri/renderD128"_s, {}, {}, true);
        row("a second card", u"dri/renderD129"_s, {}, {}, true);
        row("a card by its maker's driver", u"nvidiactl"_s, {}, {}, true);
        row("the card of a Windows", u"dxg"_s, {}, {}, true);
        row("a card that is refused", u"dri/renderD128"_s, refused, "1", false);
        row("refused in words", u"dri/renderD128"_s, refused, "True", false);
        row("not refused", u"dri/renderD128"_s, refused, "0", true);
        row("no card, but asked for", {}, "QSG_RHI_BACKEND", "opengl", true);
        row("a card, and the painter asked for", u"dri/renderD128"_s, "QT_QUICK_BACKEND",
            "software", false);
        row("no card, and the painter not asked for", {}, "QT_QUICK_BACKEND", "rhi", true);
        row("nothing asked for", {}, "QT_QUICK_BACKEND", "", false);
    }
    void openGLIsForCards() {
        QFETCH(QString, device);
        QFETCH(QByteArray, variable);
        QFETCH(QByteArray, value);
        const QTemporaryDir devices;
        if (!device.isEmpty()) {
            const QFileInfo place(devices.filePath(device));
            QVERIFY(QDir().mkpath(place.path()));
            QVERIFY(QFile(place.filePath()).open(QIODevice::WriteOnly));
        }
        if (!variable.isEmpty())
            qputenv(variable.constData(), value);
        QTEST(Graphics::wantsOpenGL(QDir(devices.path())), "wanted");
    }

private:
    static constexpr std::array variables{"LIBGL_ALWAYS_SOFTWARE", "QSG_RHI_BACKEND",
                                          "QT_QUICK_BACKEND"};
};

} // namespace kiv::app

QTEST_GUILESS_MAIN(kiv::app::GraphicsTest)
#include "GraphicsTest.moc"
