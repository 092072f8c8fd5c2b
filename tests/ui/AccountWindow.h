#pragma once

#include "ui/Gallery.h"
#include "ui/Workspace.h"

namespace kiv::ui {

/// What the tests of the account pages begin with: a person with a profile, a plan and a wallet.
class AccountWindow : public QObject {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    void open(const QString &tab, QSize size = {1440, 900});
    /// The body of the newest request that changes the profile.
    QJsonObject patched() const;
    QString text(const QString &item) const {
        return m_gallery->item(item)->property("text").toString();
    }
    store::LayoutRoom &layout() { return *m_workspace->store->layout(); }
    /// Clicks an item once it has come to rest.
    void click(const QString &item);

    static inline const QString profilePatch = QStringLiteral("PATCH api/v2/user/profile");

    std::unique_ptr<Workspace> m_workspace;
    std::unique_ptr<Gallery> m_gallery;
};

} // namespace kiv::ui
