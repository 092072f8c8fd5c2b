#pragma once

#include <QJsonObject>
#include <QString>

namespace kiv::sandbox {

class Sql;

/// Whose data an answer may use.
struct Scope {
    enum Kind { Portfolio, Project, Agent };

    QString account;
    Kind kind = Portfolio;
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

/// Answers a question from the rows of its scope.
Answer composeAnswer(Sql &sql, const Question &question);

} // namespace kiv::sandbox
