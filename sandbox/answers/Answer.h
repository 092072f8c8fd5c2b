#pragma once

#include <QJsonObject>
#include <QString>

namespace kiv::sandbox {

class Sql;

/// Whose data an answer may use.
struct Scope {
    QString account;
    QString slug;  ///< the one project, empty for all of them
    QString name;  ///< who answers
    QString agent; ///< whose own work it is, for an agent
};

struct Question {
    QString text;
    Scope scope;
    QStringList files; ///< names of what is attached
};

struct Answer {
    QString content;
    QJsonObject metadata = {};
};

/// Whether a text is Russian: it is answered, and read aloud, in its own language.
bool isRussian(const QString &text);

/// Answers a question from the rows of its scope.
Answer composeAnswer(Sql &sql, const Question &question);

} // namespace kiv::sandbox
