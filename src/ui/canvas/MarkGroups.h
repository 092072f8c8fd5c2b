#pragma once

#include "canvas/SceneOut.h"

#include <QList>
#include <QObject>
#include <QtQmlIntegration>

namespace kiv::ui {

/// The way of the keys through marks that stand in groups, the cards of columns or the work on
/// lanes: marks are numbered through, group by group.
class MarkGroups : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kiv::canvas::SceneOut scene READ scene WRITE setScene NOTIFY sceneChanged REQUIRED)
    Q_PROPERTY(int count READ count NOTIFY sceneChanged)
public:
    using QObject::QObject;

    canvas::SceneOut scene() const { return m_scene; }
    void setScene(const canvas::SceneOut &scene);
    /// Of all marks.
    int count() const { return first(static_cast<int>(m_sizes.size())); }

    /// The number of the first mark of a group.
    Q_INVOKABLE int first(int group) const;
    Q_INVOKABLE int groupOf(int mark) const;
    /// The mark at the same place in the group that is `groups` further, or the last one there;
    /// the mark itself where there is no such group.
    Q_INVOKABLE int beside(int mark, int groups) const;

Q_SIGNALS:
    void sceneChanged();

private:
    canvas::SceneOut m_scene;
    QList<int> m_sizes; ///< how many marks each group has
};

} // namespace kiv::ui
