#pragma once

#include "store/CallTranscript.h"

#include <QPointer>
#include <QtQmlIntegration>

namespace kiv::ui {

/// What was said last in a call.
class LatestSpeech : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        kiv::store::CallTranscript *lines READ lines WRITE setLines NOTIFY linesChanged REQUIRED)
    /// Empty before anybody has spoken.
    Q_PROPERTY(QString text READ text NOTIFY textChanged)
public:
    using QObject::QObject;

    store::CallTranscript *lines() const { return m_lines; }
    void setLines(store::CallTranscript *lines);
    QString text() const { return m_text; }

Q_SIGNALS:
    void linesChanged();
    void textChanged();

private:
    void look();

    QPointer<store::CallTranscript> m_lines;
    QString m_text;
};

} // namespace kiv::ui
