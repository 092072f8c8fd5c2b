#include "store/Drafts.h"

#include "base/PrivateFile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace kiv::store {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto saveDelay = 500ms;
constexpr qsizetype mostSaved = 50;
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
    load();
}

Drafts::~Drafts() {
    if (m_savePending)
        save();
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
    QFile file(m_file);
    if (m_file.isEmpty() || file.size() > largestFile || !file.open(QIODevice::ReadOnly))
        return;
    const QJsonArray entries = QJsonDocument::fromJson(file.readAll()).array();
    for (const QJsonValue entry : entries) {
        const Draft draft{entry[userKey].toString(), entry[chatKey].toString(),
                          entry[textKey].toString()};
        if (!draft.chat.isEmpty() && !draft.text.isEmpty())
            m_drafts.append(draft);
    }
}

void Drafts::scheduleSave() {
    m_savePending = true;
    m_saveTimer = m_clock.after(saveDelay, [this] { save(); });
}

/// As many of the newest as fit.
void Drafts::save() {
    m_savePending = false;
    if (m_file.isEmpty())
        return;
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
    const QString failure =
        PrivateFile::write(m_file, QJsonDocument(entries).toJson(QJsonDocument::Compact));
    if (!failure.isEmpty())
        qWarning("What is being typed cannot be saved: %s", qUtf8Printable(failure));
}

} // namespace kiv::store
