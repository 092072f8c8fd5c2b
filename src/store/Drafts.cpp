#include "store/Drafts.h"

#include "base/PrivateFile.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace kiv::store {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// What is typed is saved in its pauses, and now and then when there are none.
constexpr auto pause = 150ms;
constexpr auto longestUnsaved = 500ms;
/// How long a disk that took nothing is left alone.
constexpr auto nextAttempt = 5s;
constexpr qsizetype mostSaved = 500;
/// In UTF-16 units, of one draft and of all.
constexpr qsizetype longestSaved = 64 * 1024;
constexpr qsizetype allSaved = 256 * 1024;
/// What is larger was not written here.
constexpr qint64 largestFile = 4 * 1024 * 1024;

constexpr auto userKey = "user"_L1;
constexpr auto chatKey = "chat"_L1;
constexpr auto textKey = "text"_L1;

/// The beginning of a text that is too long to keep, not cut inside a character's code.
QString beginning(const QString &text) {
    if (text.size() <= longestSaved)
        return text;
    return text.first(text.at(longestSaved - 1).isHighSurrogate() ? longestSaved - 1
                                                                  : longestSaved);
}

} // namespace

Drafts::Drafts(Clock &clock, QString file) : m_clock(clock), m_file(std::move(file)) {
    QObject::connect(&m_writer, &FileWriter::written, &m_writer,
                     [this](const QString &failure) { settle(failure); });
    load();
}

Drafts::~Drafts() {
    m_report = nullptr;
    m_writer.finish();
    m_writer.disconnect();
    if (m_unsavedSince)
        save();
    const QString failure = m_writer.finish();
    if (!failure.isEmpty())
        qWarning("What was being typed is lost: %s", qUtf8Printable(failure));
}

QString Drafts::text(const QString &user, const QString &chat) const {
    for (const Draft &draft : m_drafts) {
        if (draft.user == user && draft.chat == chat)
            return draft.text;
    }
    return {};
}

void Drafts::setText(const QString &user, const QString &chat, const QString &text) {
    if (this->text(user, chat) == text)
        return;
    m_drafts.removeIf([&](const Draft &draft) { return draft.user == user && draft.chat == chat; });
    if (!text.isEmpty())
        m_drafts.append({user, chat, text});
    scheduleSave();
}

void Drafts::forget(const QString &user) {
    if (m_drafts.removeIf([&](const Draft &draft) { return draft.user == user; }) > 0)
        scheduleSave();
}

void Drafts::load() {
    if (m_file.isEmpty() || !QFileInfo::exists(m_file))
        return;
    const auto content = PrivateFile::read(m_file, largestFile);
    if (content && take(*content))
        return;
    m_setAside = PrivateFile::setAside(m_file);
    qWarning("What was being typed cannot be read, or not all of it; the file is set aside");
    if (!m_drafts.isEmpty())
        scheduleSave();
}

/// Takes what can be understood; false when that is not everything.
bool Drafts::take(const QByteArray &content) {
    const QJsonDocument document = QJsonDocument::fromJson(content);
    bool isWhole = document.isArray();
    const QJsonArray entries = document.array();
    for (const QJsonValue entry : entries) {
        const Draft draft{entry[userKey].toString(), entry[chatKey].toString(),
                          entry[textKey].toString()};
        if (draft.chat.isEmpty() || draft.text.isEmpty())
            isWhole = false;
        else
            m_drafts.append(draft);
    }
    return isWhole;
}

void Drafts::scheduleSave() {
    if (m_file.isEmpty())
        return;
    const auto now = m_clock.elapsed();
    if (!m_unsavedSince)
        m_unsavedSince = now;
    if (!m_failure.isEmpty())
        return; // the next attempt takes it along
    const auto latest = *m_unsavedSince + longestUnsaved;
    m_saveTimer = m_clock.after(std::clamp(latest - now, 0ms, Clock::Milliseconds(pause)),
                                [this] { save(); });
}

void Drafts::save() {
    m_unsavedSince.reset();
    m_writer.write(
        [file = m_file, content = content()] { return PrivateFile::write(file, content); });
}

void Drafts::retry() {
    if (!m_failure.isEmpty())
        save();
}

/// What the disk does not take stays here, and is tried again.
void Drafts::settle(const QString &failure) {
    if (!failure.isEmpty()) {
        if (!m_unsavedSince)
            m_unsavedSince = m_clock.elapsed();
        m_saveTimer = m_clock.after(nextAttempt, [this] { save(); });
    }
    if (std::exchange(m_failure, failure) == failure)
        return;
    if (!failure.isEmpty())
        qWarning("What is being typed cannot be saved: %s", qUtf8Printable(failure));
    if (m_report)
        m_report(failure);
}

/// As many of the newest as fit.
QByteArray Drafts::content() const {
    QJsonArray entries;
    qsizetype room = allSaved;
    for (auto draft = m_drafts.crbegin(); draft != m_drafts.crend(); ++draft) {
        const QString text = beginning(draft->text);
        room -= text.size();
        if (room < 0 || entries.size() == mostSaved)
            break;
        entries.prepend(
            QJsonObject{{userKey, draft->user}, {chatKey, draft->chat}, {textKey, text}});
    }
    return QJsonDocument(entries).toJson(QJsonDocument::Compact);
}

} // namespace kiv::store
