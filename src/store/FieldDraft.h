#pragma once

#include "store/Enums.h"

#include <QVariant>

#include <optional>

namespace kiv::store {

/// One value on its way from the person to the server: what is stored there, what was entered over
/// it, and the one save that is under way. Values are texts, flags and lists of texts.
class FieldDraft {
public:
    explicit FieldDraft(QVariant empty) : m_stored(empty), m_entered(std::move(empty)) {}

    /// What shows: the entry, also while it is not saved.
    const QVariant &value() const { return m_entered; }
    SaveState state() const;
    /// Whether the entry is neither stored nor on its way.
    bool isUnsaved() const;
    /// Whether the last save can be taken back.
    bool isUndoable() const { return state() == SaveState::Saved; }

    /// What the server has; an entry over it stays.
    void load(const QVariant &stored);
    void enter(const QVariant &value);
    /// The value to send now; nothing when there is none, or while another is on its way. Then the
    /// newer one follows it: see finish().
    std::optional<QVariant> begin();
    /// The save has come through and the server keeps `kept`. What comes back is the next to send.
    std::optional<QVariant> finish(const QVariant &kept);
    /// The save was turned down: the entry stays. What comes back is the next to send.
    std::optional<QVariant> fail();
    /// Enters what was stored before the last save.
    void undo();
    /// Back to what is stored.
    void discard();
    /// The last save is no longer news.
    void settle() { m_before.reset(); }

private:
    std::optional<QVariant> next();

    QVariant m_stored;
    QVariant m_entered;
    std::optional<QVariant> m_sending;
    std::optional<QVariant> m_before; ///< the save that it undoes
    bool m_again = false;             ///< a newer entry waits for the save under way
    bool m_failed = false;
};

} // namespace kiv::store
