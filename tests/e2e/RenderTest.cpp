// The previewer as a process: an answer becomes a picture, or a line that says why not.

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray answer = R"(Monthly figures.

| Option | Price | Uptime |
|---|---:|---:|
| Shared cluster | €1,240 | 99.90% |
| Резервный кластер | €1,560 | 99.95% |
| Edge network | −€180 | 99.97% |
)";

const QByteArray keyFigures = R"(```view
{"kind":"kpi","items":[{"label":"Hosting","value":17300},{"label":"Ads","value":12450}]}
```
)";

struct Outcome {
    int code = -1;
    QByteArray said;
};

Outcome run(const QStringList &arguments, const QByteArray &input = {}) {
    QProcess program;
    program.start(QStringLiteral(KIV_PREVIEWER), QStringList{u"render"_s} + arguments);
    program.write(input);
    program.closeWriteChannel();
    if (!program.waitForFinished())
        return {};
    return {program.exitCode(), program.readAllStandardError()};
}

} // namespace

class RenderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void pictures_data() {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QColor>("surface");
        const QColor light(0xffffff);
        QTest::newRow("as it comes") << QStringList{} << QSize(1120, 760) << light;
        QTest::newRow("dark") << QStringList{u"--theme"_s, u"dark"_s} << QSize(1120, 760)
                              << QColor(0x181b25);
        QTest::newRow("wide") << QStringList{u"--size"_s, u"1600x500"_s} << QSize(1600, 500)
                              << light;
        QTest::newRow("narrow") << QStringList{u"--size"_s, u"480x640"_s} << QSize(480, 640)
                                << light;
    }
    void pictures() {
        QFETCH(QStringList, options);
        QFETCH(QColor, surface);
        const QString file = path(u"out.png"_s);
        const Outcome outcome = run(options + QStringList{u"-o"_s, file, u"-"_s}, answer);
        QCOMPARE(outcome.said, QByteArray());
        QCOMPARE(outcome.code, 0);
        const QImage picture(file);
        QTEST(picture.size(), "size");
        QCOMPARE(picture.pixelColor(picture.width() / 2, 6), surface);
        // Names and figures stand on it from the left padding to the right one.
        const auto hasInk = [&](const QRect &part) {
            for (int y = part.top(); y <= part.bottom(); ++y) {
                for (int x = part.left(); x <= part.right(); ++x) {
                    if (std::abs(qGray(picture.pixel(x, y)) - qGray(surface.rgb())) > 120)
                        return true;
                }
            }
            return false;
        };
        const int half = picture.width() / 2;
        QVERIFY(hasInk({8, 100, half - 8, 160}));
        QVERIFY(hasInk({half, 100, half - 8, 160}));
    }

    /// Of the arts that an answer can be drawn as the question picks one.
    void question() {
        write(u"answer.md"_s, keyFigures);
        const auto drawn = [&](const QStringList &options) {
            const QString file = path(u"out.png"_s);
            run(options + QStringList{u"-o"_s, file, path(u"answer.md"_s)});
            return QImage(file);
        };
        const QImage report = drawn({});
        QVERIFY(!report.isNull());
        QCOMPARE(drawn({}), report);
        const QImage parts = drawn({u"--question"_s, u"How are our unit economics?"_s});
        QVERIFY(!parts.isNull());
        QVERIFY(parts != report);
    }

    void nothingToDraw_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("words") << QByteArray("Good morning, how can I help?");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("no text") << QByteArray("\xff\xfe\x00\x01", 4);
    }
    void nothingToDraw() {
        QFETCH(QByteArray, text);
        const QString file = path(u"out.png"_s);
        const Outcome outcome = run({u"-o"_s, file, u"-"_s}, text);
        QCOMPARE(outcome.code, 2);
        QCOMPARE(outcome.said, "kiv-canvas: There is nothing to draw in this answer.\n");
        QVERIFY(!QFile::exists(file));
    }

    void refusals_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("about");
        const QString file = u"%out"_s; // the picture in the test's own folder
        QTest::newRow("no file") << QStringList{u"-o"_s, file} << 64 << QByteArray("One file");
        QTest::newRow("no picture") << QStringList{u"-"_s} << 64 << QByteArray("-o");
        for (const char *size : {"", "big", "1120", "1120x", "0x0", "319x240", "8001x8001",
                                 "-640x480", "99999999999x400", "640x480x2"})
            QTest::newRow(qPrintable(u"size %1"_s.arg(QLatin1StringView(size))))
                << QStringList{u"--size"_s, QLatin1StringView(size), u"-o"_s, file, u"-"_s} << 64
                << QByteArray("size ") + size;
        QTest::newRow("theme") << QStringList{u"--theme"_s, u"sepia"_s, u"-o"_s, file, u"-"_s} << 64
                               << QByteArray("sepia");
        QTest::newRow("unknown option")
            << QStringList{u"--colour"_s, u"-o"_s, file, u"-"_s} << 64 << QByteArray("colour");
        QTest::newRow("unreadable") << QStringList{u"-o"_s, file, u"/nowhere/answer.md"_s} << 66
                                    << QByteArray("/nowhere/answer.md");
        QTest::newRow("a folder to read")
            << QStringList{u"-o"_s, file, QDir::tempPath()} << 66 << QDir::tempPath().toUtf8();
        QTest::newRow("unwritable") << QStringList{u"-o"_s, u"/nowhere/out.png"_s, u"-"_s} << 73
                                    << QByteArray("/nowhere/out.png");
        QTest::newRow("a folder to write")
            << QStringList{u"-o"_s, QDir::tempPath(), u"-"_s} << 73 << QDir::tempPath().toUtf8();
    }
    void refusals() {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, about);
        arguments.replaceInStrings(u"%out"_s, path(u"out.png"_s));
        const Outcome outcome = run(arguments, answer);
        QTEST(outcome.code, "code");
        QVERIFY2(outcome.said.startsWith("kiv-canvas: ") && outcome.said.contains(about),
                 outcome.said);
        QCOMPARE(outcome.said.count('\n'), 1);
        QVERIFY(QDir(m_folder->path()).isEmpty());
    }

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    void write(const QString &name, const QByteArray &content) const {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(RenderTest)
#include "RenderTest.moc"
