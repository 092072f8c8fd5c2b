#pragma once

#include "canvas/SurfaceMatcher.h"
#include "canvas/ViewSpec.h"
#include "store/SceneSource.h"

#include <QAbstractListModel>
#include <QUuid>
#include <QtQmlIntegration/qqmlintegration.h>

#include <optional>

namespace kiv::store {

/// A drawn canvas or an opened page, kept for reopening.
struct HistoryEntry {
    QUuid id = QUuid::createUuid();
    QString art;   ///< empty for a page
    QString query; ///< the question that produced it
    QString time;  ///< local time of drawing, hours:minutes
    std::optional<canvas::ViewSpec> spec;
    std::optional<QString> intent;
    QString title;
    std::optional<canvas::SurfaceLink> page;
    SceneSource source; ///< none for a page
};

/// The canvases drawn and pages opened in this run, newest first.
class HistoryModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    static constexpr int limit = 20;
    enum Role { ArtRole = Qt::UserRole + 1, TitleRole, QueryRole, TimeRole };

    explicit HistoryModel(QObject *parent = nullptr) : QAbstractListModel(parent) {}

    int count() const { return static_cast<int>(m_entries.size()); }
    const HistoryEntry &at(int row) const { return m_entries.at(row); }
    /// -1 for an entry that is not kept.
    int rowOf(const QUuid &id) const;
    void record(HistoryEntry entry);
    /// Puts a later state of a canvas in its place; false when it is no longer kept.
    bool amend(const QUuid &id, HistoryEntry entry);
    /// Names the answer that a canvas was drawn from.
    void setSource(const QUuid &id, const SceneSource &source);
    void clear();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    QList<HistoryEntry> m_entries;
};

} // namespace kiv::store
