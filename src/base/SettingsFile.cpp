#include "base/SettingsFile.h"

#include "base/PrivateFile.h"

#include <QEvent>
#include <QFileInfo>
#include <QSaveFile>

#include <atomic>
#include <utility>

namespace kiv {

using namespace Qt::StringLiterals;

namespace {

/// What is larger was not written here.
constexpr qint64 largestFile = 256 * 1024;
/// More than the settings ever take.
constexpr qsizetype probeSize = 16 * 1024;

/// A place of its own among the resources, where nothing can be written: what is set there stays in
/// memory, and Qt's attempts to save it cost nothing.
QString inMemory() {
    static std::atomic_int count;
    return u":/settings/%1"_s.arg(++count);
}

/// Qt tells no reason: writing something else to the same place does.
QString whyUnwritten(const QString &path) {
    PrivateFile::makeFolderOf(path);
    QSaveFile probe(path);
    if (probe.open(QIODevice::WriteOnly)) {
        probe.write(QByteArray(probeSize, ' '));
        probe.flush();
    }
    const QString why = probe.errorString();
    probe.cancelWriting();
    return why;
}

QString write(const QString &path, const QMap<QString, QVariant> &values) {
    QSettings file(path, QSettings::IniFormat);
    file.clear();
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        file.setValue(value.key(), value.value());
    file.sync();
    return file.status() == QSettings::NoError ? QString() : whyUnwritten(path);
}

} // namespace

SettingsFile::SettingsFile(const QString &path)
    : QSettings(inMemory(), QSettings::IniFormat), m_path(path) {
    connect(&m_writer, &FileWriter::written, this, &SettingsFile::settle);
    load();
}

SettingsFile::~SettingsFile() {
    finish();
}

void SettingsFile::load() {
    m_written.emplace();
    if (!QFileInfo::exists(m_path))
        return;
    if (const auto bytes = PrivateFile::read(m_path, largestFile)) {
        const QSettings file(m_path, QSettings::IniFormat);
        const bool isWhole = file.status() == NoError && !bytes->contains('\0');
        const QStringList keys = file.allKeys();
        for (const QString &key : keys) {
            // Names in plain letters, as all of ours are: what else a damaged file has is none.
            if (isWhole || (key == QString::fromLatin1(key.toLatin1()) && key.front().isLetter()))
                setValue(key, file.value(key));
        }
        if (isWhole) {
            m_written = values();
            return;
        }
    }
    qWarning("%s cannot be read; it is set aside", qUtf8Printable(m_path));
    m_setAside = PrivateFile::setAside(m_path);
}

bool SettingsFile::event(QEvent *event) {
    const bool isTaken = QSettings::event(event);
    if (event->type() == QEvent::UpdateRequest)
        save();
    return isTaken;
}

void SettingsFile::save() {
    Values now = values();
    m_isAskedAgain = m_written == now;
    if (m_isAskedAgain)
        return;
    m_writer.write([path = m_path, now] { return write(path, now); });
    m_written = std::move(now);
}

bool SettingsFile::finish() {
    save();
    return m_writer.finish().isEmpty();
}

SettingsFile::Values SettingsFile::values() const {
    Values values;
    const QStringList keys = allKeys();
    for (const QString &key : keys)
        values.insert(key, value(key));
    return values;
}

void SettingsFile::settle(const QString &failure) {
    if (!failure.isEmpty()) {
        m_written.reset();
        if (std::exchange(m_isAskedAgain, false))
            save();
    }
    if (std::exchange(m_failure, failure) == failure)
        return;
    if (!failure.isEmpty())
        qWarning("%s cannot be saved: %s", qUtf8Printable(m_path), qUtf8Printable(failure));
    Q_EMIT failureChanged();
}

} // namespace kiv
