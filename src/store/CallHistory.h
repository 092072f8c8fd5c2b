#pragma once

#include "net/VoiceRecords.h"

#include <QAbstractListModel>
#include <QDateTime>
#include <QtQmlIntegration/qqmlintegration.h>

namespace kiv::store {

/// A line of a past call.
struct PastLine {
    Q_GADGET
    QML_VALUE_TYPE(pastLine)
    Q_PROPERTY(QString role MEMBER role)
    Q_PROPERTY(bool owner READ isOwner STORED false)
    Q_PROPERTY(int seconds MEMBER seconds)
    Q_PROPERTY(QString text MEMBER text)
public:
    QString role; ///< "user" is the owner, anything else the agent
    int seconds = 0;
    QString text;

    bool isOwner() const { return role == QLatin1String("user"); }
    friend bool operator==(const PastLine &, const PastLine &) = default;
};

/// Past calls with one agent, newest first. A row may be open and then has its transcript.
class CallHistory : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role {
        CallIdRole = Qt::UserRole + 1, ///< as `callId`
        StatusRole,
        DurationSecsRole,
        StartedAtRole, ///< QDateTime in local time; invalid without one
        SnippetRole,
        HasTranscriptRole,
        OpenRole,
        LoadingRole, ///< its transcript is on the way
        LinesRole,   ///< list of PastLine; empty until it is open and loaded
    };

    const QList<net::KivAPI::VoiceCallEntry> &calls() const { return m_calls; }
    int count() const { return static_cast<int>(m_calls.size()); }

    void replaceAll(const QList<net::KivAPI::VoiceCallEntry> &calls);
    /// Shows the transcript of one call, nothing of the one before; an empty id closes.
    void open(const QString &callID);
    /// `lines` of the open call; nothing while they are on the way.
    void setLines(const std::optional<QList<PastLine>> &lines);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    void touch(const QString &callID);

    QList<net::KivAPI::VoiceCallEntry> m_calls;
    QString m_open;
    std::optional<QList<PastLine>> m_lines;
};

} // namespace kiv::store
