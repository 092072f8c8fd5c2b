#pragma once

#include "store/Calendar.h"
#include "store/CallTranscript.h"

#include <QDateTime>
#include <QtQmlIntegration>

namespace kiv::ui {

/// What the views of calls write: times, how a call went, and a transcript as text.
class CallText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// A length of time as a clock shows it: "3:12", "1:03:12".
    Q_INVOKABLE static QString length(int seconds);
    /// When a call began: "09:42" today, "Yesterday, 09:42", "12 March, 09:42".
    Q_INVOKABLE static QString start(const QDateTime &at, kiv::store::Calendar *calendar);
    /// How a past call went, from the state that the server gives.
    Q_INVOKABLE static QString outcome(const QString &status);
    /// The lines of a call with who said them and when, for the clipboard.
    Q_INVOKABLE static QString transcript(kiv::store::CallTranscript *lines,
                                          const QString &counterpart);
};

} // namespace kiv::ui
