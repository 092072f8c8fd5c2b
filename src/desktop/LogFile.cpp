#include "desktop/LogFile.h"

#include "base/PrivateFile.h"
#include "desktop/LogText.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>

namespace kiv::desktop {

using namespace Qt::StringLiterals;

namespace {

constexpr auto ownerFile = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

/// The handler of Qt is a plain function: this is the log that it writes to.
LogFile *capturing = nullptr;
QtMessageHandler before = nullptr;

QString wordOf(QtMsgType type) {
    switch (type) {
    case QtDebugMsg:
        return u"debug"_s;
    case QtInfoMsg:
        return u"info"_s;
    case QtWarningMsg:
        return u"warning"_s;
    case QtCriticalMsg:
        return u"critical"_s;
    case QtFatalMsg:
        return u"fatal"_s;
    }
    return {};
}

void handle(QtMsgType type, const QMessageLogContext &context, const QString &text) {
    // What writing a line itself complains of would be written, and complained of, for ever.
    thread_local bool isInside = false;
    const bool isCaptured = capturing && !isInside;
    if (isCaptured) {
        isInside = true;
        const QString category = QString::fromLatin1(context.category);
        const bool isNamed = !category.isEmpty() && category != u"default"_s;
        capturing->write(type, isNamed ? category + u": "_s + text : text);
        isInside = false;
    }
    // The desktop keeps what programs say in a journal of its own.
    if (before)
        before(type, context, isCaptured ? LogText::redacted(text) : text);
}

} // namespace

LogFile::LogFile(const QString &path, qint64 limit) : m_path(path), m_file(path), m_limit(limit) {
    PrivateFile::makeFolderOf(path);
    // What cannot be written to is in the way of what can.
    if (open() || (!PrivateFile::setAside(path).isEmpty() && open()))
        return;
    qWarning("The log cannot be written: %s", qUtf8Printable(m_file.errorString()));
}

bool LogFile::open() {
    constexpr auto mode = QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered;
    const bool isOpen = m_file.open(mode, ownerFile);
    if (isOpen)
        m_file.setPermissions(ownerFile); // it may have been there
    return isOpen;
}

LogFile::~LogFile() {
    if (!m_captures)
        return;
    qInstallMessageHandler(before);
    capturing = nullptr;
}

void LogFile::capture() {
    if (m_captures || capturing)
        return;
    m_captures = true;
    capturing = this;
    before = qInstallMessageHandler(handle);
}

void LogFile::write(QtMsgType type, const QString &line) {
    const QByteArray bytes = (QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs) + u' ' +
                              wordOf(type) + u' ' + LogText::redacted(line) + u'\n')
                                 .toUtf8();
    const QMutexLocker lock(&m_mutex);
    if (!m_file.isOpen())
        return;
    if (m_file.size() + bytes.size() > m_limit)
        rotate();
    m_file.write(bytes);
}

/// What cannot be moved away is begun anew: the log stays small whatever happens.
void LogFile::rotate() {
    const QString old = m_path + u".1"_s;
    m_file.close();
    QFile::remove(old);
    if (!QFile::rename(m_path, old))
        QFile::resize(m_path, 0);
    open();
}

QStringList LogFile::lastLines(qsizetype count) const {
    const QMutexLocker lock(&m_mutex);
    QStringList lines;
    for (const QString &path : {m_path + u".1"_s, m_path}) {
        QFile file(path);
        if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
            continue;
        // One of another origin may be of any size.
        file.seek(std::max(file.size() - m_limit, qint64{0}));
        lines += QString::fromUtf8(file.read(m_limit)).split(u'\n', Qt::SkipEmptyParts);
    }
    return lines.last(std::min(count, lines.size()));
}

} // namespace kiv::desktop
