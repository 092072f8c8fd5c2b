#pragma once

#include "base/Cancel.h"
#include "base/Clock.h"

#include <QCoroTask>
#include <QProcess>

#include <stdexcept>

namespace kiv {

/// A helper program that could not be started, ended early or said nothing in time.
class ProcessError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Starts `process` (program and arguments are set on it) and waits for its first line on standard
/// output, which is the result without its line end. Throws ProcessError or Cancelled.
/// The process outlives the wait.
QCoro::Task<QByteArray> startAndReadLine(QProcess *process, Clock *clock,
                                         Clock::Milliseconds patience, Cancel cancel);

/// Waits until `process` runs no more. Throws Cancelled. The process outlives the wait.
QCoro::Task<void> untilEnded(QProcess *process, Cancel cancel);

} // namespace kiv
