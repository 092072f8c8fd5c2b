#pragma once

#include <QHash>
#include <QList>
#include <QString>

namespace kiv::canvas {

/// Groups in order of appearance, found again by a key.
template <typename Group>
class Groups {
public:
    /// The group of that key; `fresh` becomes it when there is none.
    Group &of(const QString &key, const Group &fresh) {
        const auto place = m_places.constFind(key);
        if (place != m_places.cend())
            return m_all[*place];
        m_places.insert(key, m_all.size());
        return m_all.emplaceBack(fresh);
    }
    const QList<Group> &all() const { return m_all; }

private:
    QList<Group> m_all;
    QHash<QString, qsizetype> m_places;
};

} // namespace kiv::canvas
