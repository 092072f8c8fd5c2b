#pragma once

#include <QJsonObject>
#include <QString>

#include <mutex>

namespace kiv::sandbox {

/// What the server saw of the last call, for tests and for whoever looks why a call went wrong.
/// Safe on every thread.
class CallWitness {
public:
    /// Begins a new report, unless the call is the one that is reported on.
    void begin(const QString &call, const QString &agent);
    void note(const QString &key, const QJsonValue &value);
    /// Adds to a list.
    void append(const QString &key, const QJsonValue &value);
    /// Adds to a number.
    void count(const QString &key, double more = 1);
    QJsonObject report() const;

private:
    mutable std::mutex m_mutex;
    QJsonObject m_report;
};

} // namespace kiv::sandbox
