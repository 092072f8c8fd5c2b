#pragma once

#include <QProcess>

namespace kiv::bench {

/// A program with a window, off screen, in a process of its own that goes with this object.
class ShownProgram {
public:
    /// Returns once the first frame is drawn.
    ShownProgram(const QString &program, const QStringList &arguments);
    ~ShownProgram();

    /// Nanoseconds from the start of the process to its first frame.
    double firstFrame() const { return m_firstFrame; }
    /// Its part of the memory in bytes: pages that processes share are divided among them.
    double memory() const;
    /// Nanoseconds that all of its threads have worked so far.
    double worked() const;

private:
    QProcess m_process;
    double m_firstFrame = 0;
};

/// The folder of a profile where somebody is signed in and has asked a question.
const QString &signedInProfile();

} // namespace kiv::bench
