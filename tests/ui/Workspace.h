#pragma once

#include "store/CallFixture.h"

namespace kiv::ui {

/// A store with made-up projects, agents and conversations.
class Workspace : public test::CallScript {
public:
    Workspace();

    /// From now on the person has a profile, a plan and a wallet.
    void answerAccount();

    /// A question and its answer, as the stream brings them; true when the scene of `art` is drawn,
    /// or nothing for no art.
    bool ask(const QString &question, const QString &answer, const QString &art);

    /// Lets the answer under way settle; true when the canvas shows the scene of `art`.
    bool settle(const QString &art);

    /// What a project answers when it is asked for its events.
    static QByteArray events();
    /// Past calls as the server lists them, newest first, and what was said in one.
    static QByteArray pastCalls();
    static QByteArray pastTranscript();
    static QString reportAnswer();
    /// Every kind of block in one answer.
    static QString mixedAnswer();
    static QString compareAnswer(const QString &firstName = QStringLiteral("Shared cluster"));

private:
    qint64 m_row = 100;
};

} // namespace kiv::ui
