#pragma once

#include "store/Enums.h"

#include <QAbstractListModel>
#include <QUuid>
#include <QtQmlIntegration/qqmlintegration.h>

#include <optional>

namespace kiv::store {

/// One line of a call: something said, or something that happened.
struct CallLine {
    QUuid id = QUuid::createUuid();
    CallLineKind kind = CallLineKind::Speech;
    QString who; ///< of a spoken line: "user" is the owner, anything else the agent
    QString text;
    /// "partial" while a sentence is still being heard, "typed" for one that was written until the
    /// service has it, of an event "running" until it is over; else empty.
    QString state;
    std::optional<QString> action; ///< of an event: the stored row whose drawing can be shown
    QString art;                   ///< of an event: the scene that was drawn
    QString question;              ///< of an event: what the drawing answers
    int at = 0;                    ///< whole seconds from the start of the call

    bool isOwner() const { return who == QLatin1String("user"); }
    bool isPartial() const { return state == QLatin1String("partial"); }
};

/// What is said during a call, oldest first. Only the newest lines are kept.
class CallTranscript : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    static constexpr qsizetype mostLines = 60;

    enum Role {
        LineIdRole = Qt::UserRole + 1, ///< as `lineId`, text
        KindRole,                      ///< CallLineKind
        WhoRole,
        OwnerRole, ///< the owner said it
        TextRole,
        StateRole,
        ActionRole, ///< empty for none
        ArtRole,    ///< empty for none
        AtRole,     ///< whole seconds from the start
    };

    const QList<CallLine> &lines() const { return m_lines; }
    int count() const { return static_cast<int>(m_lines.size()); }

    /// A sentence as far as it was heard: takes the place of what was heard of it before.
    void hear(const QString &who, const QString &text, bool partial, int at);
    /// A sentence that the owner typed.
    void type(const QString &text, int at);
    /// Something that happens; `state` as in CallLine. Gives the line, to be settled later.
    QUuid note(const QString &text, const QString &state, int at);
    void settle(const QUuid &event, const QString &text);
    /// What a row of the conversation draws, as the answer to what the owner said last. A row that
    /// grows changes its line, which goes when there is no `art` any more. True when one was added.
    bool draw(qint64 row, const QString &title, const QString &art, int at);
    /// Nothing for a row that is not drawn here.
    std::optional<CallLine> drawing(qint64 row) const;
    void clear();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    QString lastQuestion() const;
    void append(CallLine line);
    void remove(qsizetype row);
    void change(qsizetype row, const QString &text, const QString &state);

    QList<CallLine> m_lines;
};

} // namespace kiv::store
