#pragma once

#include <QHash>
#include <QString>
#include <QUuid>

#include <map>
#include <set>
#include <tuple>
#include <vector>

namespace kiv::soak {

/// A conversation of one person.
struct Chat {
    QString user;
    QString path; ///< on the server

    friend bool operator==(const Chat &, const Chat &) = default;
    friend bool operator<(const Chat &a, const Chat &b) {
        return std::tie(a.user, a.path) < std::tie(b.user, b.path);
    }
};

/// A message that the person has sent.
struct Sent {
    Chat chat;
    int most = 1; ///< rows that may come of it: one for each time it was sent
    qsizetype files = 0;
    std::vector<qint64> rows; ///< that the screen has shown of it, each once
    bool isMistimed = false;  ///< its row may be taken for another one, and it be shown twice
    bool isStored = false;
    bool isGone = false; ///< the person has dropped it, or its text went into another message
};

/// A stored row, as the screen has shown it.
struct Row {
    const Chat *chat = nullptr; ///< where it stood first
    qsizetype length = 0;       ///< of its text, the last time
};

/// What the person did and what they were shown: the screen and the server have to agree with it.
/// Every message carries a number in its text, such as "#k17"; the last one counts. It is kept
/// small beside the program, whose memory the run measures: a row and a message take some bytes
/// each.
class Ledger {
public:
    static int numberIn(const QString &text);
    static bool carries(const QString &text, int number);
    static QString tag(int number);

    /// The one copy of this conversation that all entries share. It stays as long as the ledger.
    const Chat &known(const Chat &chat) { return *m_chats.insert(chat).first; }

    /// The text of a new message, with its number.
    QString numbered(const QString &text) { return text + u' ' + tag(++m_last); }
    void send(const Chat &chat, const QString &text, qsizetype files, bool isMistimed);
    /// The person does without what this text carries.
    void drop(const QString &text);
    void dropAll(const QString &user);

    std::map<int, Sent> sent;
    std::map<Chat, QString> drafts;      ///< as they were left
    QHash<qint64, Row> rows;             ///< by their numbers on the server
    QHash<QUuid, const Chat *> messages; ///< where a message has been shown

private:
    std::set<Chat> m_chats;
    int m_last = 0;
};

} // namespace kiv::soak
