// Files that are not as they were left, and disks that take nothing.

#include "base/FileWriter.h"
#include "base/PrivateFile.h"
#include "base/SettingsFile.h"
#include "support/Damage.h"

#include <QDir>
#include <QFileInfo>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv;
using test::contentOf;
using test::putContent;

class FilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothingThatWasSetAsideIsReplaced() {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"drafts"_s);
        for (const QByteArray &content : {"one"_ba, "two"_ba, "three"_ba}) {
            putContent(path, content);
            const QString moved = PrivateFile::setAside(path);
            QCOMPARE(contentOf(moved), content);
            QVERIFY(!QFileInfo::exists(path));
        }
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
                 (QStringList{u"drafts.damaged"_s, u"drafts.damaged-2"_s, u"drafts.damaged-3"_s}));
        putContent(folder.filePath(u"drafts.damaged.txt"_s), "of the person's own");
        PrivateFile::removeSetAside(path);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{u"drafts.damaged.txt"_s});
        QCOMPARE(PrivateFile::setAside(path), QString());
    }

    /// A slow disk has to be written to as seldom as possible, and ends with what came last.
    void writing_data() {
        QTest::addColumn<bool>("givenUp");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("finished") << false << "three"_ba;
        QTest::newRow("given up") << true << "one"_ba;
    }
    void writing() {
        QFETCH(bool, givenUp);
        QFETCH(QByteArray, content);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"file"_s);
        QSemaphore disk;
        FileWriter writer;
        QSignalSpy written(&writer, &FileWriter::written);
        for (const QByteArray &bytes : {"one"_ba, "two"_ba, "three"_ba}) {
            writer.write([path, bytes, &disk] {
                disk.acquire();
                return PrivateFile::write(path, bytes);
            });
        }
        QVERIFY(!QFileInfo::exists(path)); // nobody has waited
        disk.release(3);
        if (givenUp)
            writer.giveUp();
        else
            QCOMPARE(writer.finish(), QString());
        QCoreApplication::processEvents();
        QCOMPARE(contentOf(path), content);
        QCOMPARE(written.size(), givenUp ? 1 : 2);
        QCOMPARE(disk.available(), givenUp ? 2 : 1);
    }

    void damagedSettings_data() {
        QTest::addColumn<int>("damage");
        for (int i = 0; i < test::damages().size(); ++i)
            QTest::newRow(test::damages().at(i).name) << i;
    }
    /// Whatever stands there, the settings work, and what stood there is not lost.
    void damagedSettings() {
        QFETCH(int, damage);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"kiv.conf"_s);
        putContent(path, "[General]\nzandor.railW=420\nzandor.theme=Dark\nzandor.dockW=500\n");
        test::damages().at(damage).strike(path);
        const bool isFolder = QFileInfo(path).isDir();
        const QByteArray before = isFolder ? QByteArray() : contentOf(path);
        QString moved;
        {
            SettingsFile settings(path);
            moved = settings.setAside();
            settings.setValue(u"zandor.theme"_s, u"Light"_s);
            QVERIFY(settings.finish());
        }
        // A file without settings is one, and nobody can tell that there were more.
        const QByteArray name = test::damages().at(damage).name;
        QCOMPARE(moved.isEmpty(), name == "emptied" || name == "cut short");
        QCOMPARE(!moved.isEmpty() && QFileInfo(moved).isDir(), isFolder);
        if (!moved.isEmpty() && !isFolder) {
            QFile::setPermissions(moved, QFile::ReadOwner);
            QVERIFY(before.isEmpty() || contentOf(moved) == before);
        }
        SettingsFile again(path);
        QCOMPARE(again.setAside(), QString());
        QCOMPARE(again.value(u"zandor.theme"_s).toString(), u"Light"_s);
        if (name == "cut short")
            QCOMPARE(again.value(u"zandor.railW"_s).toInt(), 420);
    }

    void whatCanBeReadIsTakenOver() {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"kiv.conf"_s);
        putContent(path, "[General]\nzandor.railW=420\n\x01\x02 no setting\n\0\xff=1\n"
                         "zandor.theme=Dark\n"_ba);
        SettingsFile settings(path);
        QVERIFY(!settings.setAside().isEmpty());
        QCOMPARE(settings.value(u"zandor.railW"_s).toInt(), 420);
        QCOMPARE(settings.value(u"zandor.theme"_s).toString(), u"Dark"_s);
        QVERIFY(settings.finish());
        QVERIFY(contentOf(path).contains("railW=420"));
    }

    void unwritableSettingsAreTold_data() {
        QTest::addColumn<bool>("full");
        QTest::newRow("a folder that is read only") << false;
        QTest::newRow("a full disk") << true;
    }
    void unwritableSettingsAreTold() {
        QFETCH(bool, full);
        if (full && test::smallDisk().isEmpty())
            QSKIP("This system lets nobody make a disk of their own");
        const QTemporaryDir temporary;
        const QString folder = full ? test::smallDisk() : temporary.path();
        const QString path = folder + u"/kiv.conf"_s;
        putContent(path, "[General]\nzandor.railW=420\n");
        const auto hinder = [&](bool hindered) {
            if (full)
                hindered ? test::fillDisk() : test::clearDisk();
            else
                QFile::setPermissions(folder, hindered ? QFile::ReadOwner | QFile::ExeOwner
                                                       : QFile::ReadOwner | QFile::WriteOwner |
                                                             QFile::ExeOwner);
        };
        SettingsFile settings(path);
        QSignalSpy changes(&settings, &SettingsFile::failureChanged);
        hinder(true);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"kiv.conf cannot be saved: ."_s));
        for (int width : {500, 510, 520}) {
            settings.setValue(u"zandor.railW"_s, width);
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE_WITH_TIMEOUT(changes.size(), 1, test::diskPatience);
        QVERIFY(!settings.failure().isEmpty());
        QCOMPARE(contentOf(path), "[General]\nzandor.railW=420\n"_ba);

        hinder(false);
        settings.save();
        QTRY_COMPARE_WITH_TIMEOUT(changes.size(), 2, test::diskPatience);
        QCOMPARE(settings.failure(), QString());
        QVERIFY(contentOf(path).contains("railW=520"));
    }
};

int main(int argc, char **argv) {
    kiv::test::becomeOrdinaryUser(256);
    QCoreApplication application(argc, argv);
    FilesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "FilesTest.moc"
