#pragma once

#include "Display.h"

namespace kiv::bench {

/// A program with a window, in a process of its own that goes with this object.
class ShownProgram {
public:
    /// Returns once the first frame is on the display.
    ShownProgram(const Display &display, const QString &program, const QStringList &arguments);
    ~ShownProgram();

    /// Nanoseconds from the start of the process to its first frame.
    double firstFrame() const { return m_firstFrame; }
    /// What draws its window.
    QString renderer() const;
    /// Its part of the memory in bytes: pages that processes share are divided among them.
    double memory() const;
    /// Nanoseconds that all of its threads have worked so far.
    double worked() const;

private:
    QProcess m_process;
    QByteArray m_said;
    double m_firstFrame = 0;
};

/// A figure of a program, and what drew it meanwhile.
struct ShownFigure {
    double value = 0;
    QString renderer;
};

/// Says of a row what drew the program and the empty window.
inline QString drawnBy(const ShownFigure &program, const ShownFigure &window) {
    return QStringLiteral("%1; the empty window: %2").arg(program.renderer, window.renderer);
}

/// The folder of a profile where somebody is signed in and has asked a question.
const QString &signedInProfile();

} // namespace kiv::bench
