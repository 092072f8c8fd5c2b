#pragma once

#include "base/Clock.h"

#include <QDate>
#include <QObject>
#include <QtQmlIntegration>

namespace kiv::store {

/// Which day it is for the person, as long as the program runs.
class Calendar : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(QDate today READ today NOTIFY todayChanged)
public:
    /// The clock outlives the calendar.
    explicit Calendar(Clock &clock);

    QDate today() const { return m_today; }

Q_SIGNALS:
    void todayChanged();

private:
    void look();

    Clock &m_clock;
    QDate m_today;
    Clock::Timer m_next;
};

} // namespace kiv::store
