#pragma once

#include "base/Clock.h"
#include "net/ProjectRecords.h"
#include "store/Enums.h"

#include <QAbstractListModel>
#include <QtQmlIntegration/qqmlintegration.h>

namespace kiv::store {

/// The events of one project, newest first, each with how long ago it was.
class EventModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role {
        ToneRole = Qt::UserRole + 1, ///< EventTone
        TitleRole,
        DetailRole,
        AgeRole, ///< such as "14 m"; empty when the event tells no time
    };

    /// The clock outlives the model.
    explicit EventModel(Clock &clock) : m_clock(clock) {}

    const QList<net::KivAPI::ProjectEvent> &events() const { return m_events; }
    int count() const { return static_cast<int>(m_events.size()); }
    void replaceAll(const QList<net::KivAPI::ProjectEvent> &events);
    /// Time has passed: the ages are other ones.
    void refreshAges();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    Clock &m_clock;
    QList<net::KivAPI::ProjectEvent> m_events;
};

/// What a kind of event, as the server names it, says about how things go.
EventTone toneOf(const QString &kind);

/// A span of time in one unit: "2 m", "5 h", "3 d"; "now" below a minute and for the future.
QString ageText(qint64 seconds);

} // namespace kiv::store
