#pragma once

#include "ui/GalleryTest.h"

namespace kiv::ui {

/// What the tests of calls in the window begin with: the test speaks for the voice service.
class CallWindow : public GalleryTest {
    Q_OBJECT

protected:
    void prepare() override;
    /// Signs in, shows the window and calls.
    void talk(const QSize &size = {1440, 900});
    /// A short conversation with something in both alphabets.
    void converse();
    store::CallRoom &room() { return *m_workspace->store->call(); }
    QString words(const QString &name) {
        return m_gallery->item(name)->property("text").toString();
    }
    /// What a screen reader says of an item.
    QString heard(const QString &name);
};

} // namespace kiv::ui
