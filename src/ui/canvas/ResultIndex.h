#pragma once

#include "canvas/CardRows.h"

#include <QObject>
#include <QtQmlIntegration>

namespace kiv::ui {

/// The key results of all objectives, numbered through.
class ResultIndex : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<kiv::canvas::OkObj> objectives READ objectives WRITE setObjectives NOTIFY
                   changed REQUIRED)
    Q_PROPERTY(QList<kiv::canvas::KeyResult> results READ results NOTIFY changed)
    Q_PROPERTY(int count READ count NOTIFY changed)
public:
    using QObject::QObject;

    QList<canvas::OkObj> objectives() const { return m_objectives; }
    void setObjectives(const QList<canvas::OkObj> &objectives);
    QList<canvas::KeyResult> results() const { return m_results; }
    int count() const { return static_cast<int>(m_results.size()); }

    /// The number of an objective's first result.
    Q_INVOKABLE int first(int objective) const { return m_starts.value(objective); }
    /// The objective of a result.
    Q_INVOKABLE int objectiveOf(int result) const;

Q_SIGNALS:
    void changed();

private:
    QList<canvas::OkObj> m_objectives;
    QList<canvas::KeyResult> m_results;
    QList<int> m_starts; ///< number of the first result of each objective
};

} // namespace kiv::ui
