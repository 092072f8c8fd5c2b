#include "store/StorageRoom.h"

#include <QFileInfo>

#include <algorithm>

namespace kiv::store {

using namespace Qt::StringLiterals;

QString StorageRoom::trouble() const {
    if (m_troubles.isEmpty())
        return {};
    const QString why = m_troubles.first();
    switch (m_troubles.firstKey()) {
    case Kept::Typed:
        return tr("What you type is kept only while KIV runs, since it cannot be saved: %1.")
            .arg(why);
    case Kept::Session:
        return tr("You will have to sign in again after a restart, since the session cannot be "
                  "saved: %1.")
            .arg(why);
    case Kept::Workspace:
    case Kept::Settings:
        break;
    }
    return tr("Settings cannot be saved: %1.").arg(why);
}

QString StorageRoom::damage() const {
    if (m_damaged.isEmpty())
        return {};
    QStringList names;
    for (const Kept kept : m_damaged) {
        switch (kept) {
        case Kept::Typed:
            names.append(tr("what was being typed"));
            break;
        case Kept::Workspace:
            names.append(tr("the workspace of this computer"));
            break;
        case Kept::Session:
            names.append(tr("the session"));
            break;
        case Kept::Settings:
            names.append(tr("the settings"));
            break;
        }
    }
    return tr("Could not be read and was set aside: %1.").arg(names.join(u", "_s));
}

void StorageRoom::dismissDamage() {
    m_damaged.clear();
    Q_EMIT damageChanged();
}

void StorageRoom::reportTrouble(Kept kept, const QString &why) {
    const QString before = trouble();
    if (why.isEmpty())
        m_troubles.remove(kept);
    else
        m_troubles.insert(kept, why);
    if (trouble() != before)
        Q_EMIT troubleChanged();
}

void StorageRoom::reportDamage(Kept kept, const QString &path) {
    if (path.isEmpty())
        return;
    m_damaged.append(kept);
    std::ranges::sort(m_damaged);
    m_damageFolder = QUrl::fromLocalFile(QFileInfo(path).absolutePath());
    Q_EMIT damageChanged();
}

void StorageRoom::retranslate() {
    Q_EMIT troubleChanged();
    Q_EMIT damageChanged();
}

} // namespace kiv::store
