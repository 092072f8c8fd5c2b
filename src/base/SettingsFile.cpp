#include "base/SettingsFile.h"

#include "base/PrivateFile.h"

#include <QEvent>
#include <QFileInfo>
#include <QSaveFile>

#include <utility>

namespace kiv {

namespace {

/// What is larger was not written here.
constexpr qint64 largestFile = 256 * 1024;
/// More than the settings ever take.
constexpr qsizetype probeSize = 16 * 1024;

} // namespace

SettingsFile::SettingsFile(const QString &path) : SettingsFile(path, rescue(path)) {}

SettingsFile::SettingsFile(const QString &path, const Rescue &rescue)
    : QSettings(path, QSettings::IniFormat), m_setAside(rescue.setAside) {
    for (auto value = rescue.values.cbegin(); value != rescue.values.cend(); ++value)
        setValue(value.key(), value.value());
}

SettingsFile::Rescue SettingsFile::rescue(const QString &path) {
    if (!QFileInfo::exists(path))
        return {};
    Rescue rescue;
    const auto bytes = PrivateFile::read(path, largestFile);
    if (bytes) {
        const QSettings damaged(path, QSettings::IniFormat);
        if (damaged.status() == QSettings::NoError && !bytes->contains('\0'))
            return {};
        const QStringList keys = damaged.allKeys();
        for (const QString &key : keys) {
            // Names in plain letters, as all of ours are: what else was read is no setting.
            if (key == QString::fromLatin1(key.toLatin1()) && key.front().isLetter())
                rescue.values.insert(key, damaged.value(key));
        }
    }
    qWarning("%s cannot be read; it is set aside", qUtf8Printable(path));
    rescue.setAside = PrivateFile::setAside(path);
    return rescue;
}

bool SettingsFile::event(QEvent *event) {
    const bool isTaken = QSettings::event(event);
    if (event->type() == QEvent::UpdateRequest)
        save();
    return isTaken;
}

void SettingsFile::save() {
    sync();
    // An error of before stays the status of these settings; others on the same file have one of
    // their own.
    QSettings attempt(fileName(), format());
    attempt.sync();
    const QString failure = attempt.status() == NoError ? QString() : whyUnwritten();
    if (std::exchange(m_failure, failure) == failure)
        return;
    if (!failure.isEmpty())
        qWarning("%s cannot be saved: %s", qUtf8Printable(fileName()), qUtf8Printable(failure));
    Q_EMIT failureChanged();
}

/// Qt tells no reason: writing something else to the same place does.
QString SettingsFile::whyUnwritten() const {
    PrivateFile::makeFolderOf(fileName());
    QSaveFile probe(fileName());
    if (probe.open(QIODevice::WriteOnly)) {
        probe.write(QByteArray(probeSize, ' '));
        probe.flush();
    }
    const QString why = probe.errorString();
    probe.cancelWriting();
    return why;
}

} // namespace kiv
