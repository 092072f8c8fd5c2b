#pragma once

#include "ui/GalleryTest.h"

namespace kiv::ui {

/// What the tests of the account pages begin with: a person with a profile, a plan and a wallet.
class AccountWindow : public GalleryTest {
    Q_OBJECT

protected:
    void prepare() override;
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
};

} // namespace kiv::ui
