#include "ui/call/LatestSpeech.h"

#include <utility>

namespace kiv::ui {

using store::CallTranscript;

void LatestSpeech::setLines(CallTranscript *lines) {
    if (m_lines == lines)
        return;
    if (m_lines)
        m_lines->disconnect(this);
    m_lines = lines;
    if (lines) {
        connect(lines, &CallTranscript::rowsInserted, this, &LatestSpeech::look);
        connect(lines, &CallTranscript::dataChanged, this, &LatestSpeech::look);
        connect(lines, &CallTranscript::modelReset, this, &LatestSpeech::look);
    }
    look();
    Q_EMIT linesChanged();
}

void LatestSpeech::look() {
    QString said;
    const QList<store::CallLine> lines = m_lines ? m_lines->lines() : QList<store::CallLine>();
    for (const store::CallLine &line : lines) {
        if (line.kind == store::CallLineKind::Speech)
            said = line.text;
    }
    if (std::exchange(m_text, said) != said)
        Q_EMIT textChanged();
}

} // namespace kiv::ui
