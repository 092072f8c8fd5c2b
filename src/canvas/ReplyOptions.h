#pragma once

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QUuid>
#include <QtQmlIntegration/qqmlintegration.h>

#include <optional>

namespace kiv::canvas {

/// A reply offered under an answer.
struct ReplyChip {
    Q_GADGET
    QML_VALUE_TYPE(replyChip)
    Q_PROPERTY(QUuid id MEMBER id)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString send MEMBER send)
public:
    QUuid id = QUuid::createUuid(); ///< tells chips of a list apart, nothing else
    QString label;
    QString send; ///< what is sent as the person's message
    /// Equal chips offer the same.
    friend bool operator==(const ReplyChip &a, const ReplyChip &b) {
        return a.label == b.label && a.send == b.send;
    }
};

/// A conversation starter as the backend gives it.
struct Starter {
    QString label;
    QString prompt;
};

/// What a row carries beside its text that replies can be made of.
struct ReplySources {
    std::optional<QStringList> choiceOptions;
    std::optional<QList<Starter>> starters;
    std::optional<bool> confirmAsk;
    std::optional<QString> errorMessage;
};

namespace ReplyOptions {

struct Parsed {
    QString text; ///< without the options line
    QList<ReplyChip> chips;
};

/// An options line counts only as the last line of the text.
Parsed parse(const QString &text, const ReplySources &sources = {});

} // namespace ReplyOptions

} // namespace kiv::canvas
