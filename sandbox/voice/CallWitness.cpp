#include "voice/CallWitness.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

void CallWitness::begin(const QString &call, const QString &agent) {
    const std::lock_guard lock(m_mutex);
    if (m_report[u"call_id"_s] != call)
        m_report = {{u"call_id"_s, call}, {u"agent_id"_s, agent}};
}

void CallWitness::note(const QString &key, const QJsonValue &value) {
    const std::lock_guard lock(m_mutex);
    m_report.insert(key, value);
}

void CallWitness::append(const QString &key, const QJsonValue &value) {
    const std::lock_guard lock(m_mutex);
    QJsonArray list = m_report[key].toArray();
    list.append(value);
    m_report.insert(key, list);
}

void CallWitness::count(const QString &key, double more) {
    const std::lock_guard lock(m_mutex);
    m_report.insert(key, m_report[key].toDouble() + more);
}

QJsonObject CallWitness::report() const {
    const std::lock_guard lock(m_mutex);
    return m_report;
}

} // namespace kiv::sandbox
