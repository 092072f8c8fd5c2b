#include "store/FieldDraft.h"

#include <utility>

namespace kiv::store {

SaveState FieldDraft::state() const {
    if (m_sending)
        return SaveState::Saving;
    if (m_failed)
        return SaveState::Failed;
    if (m_entered != m_stored)
        return SaveState::Edited;
    return m_before ? SaveState::Saved : SaveState::Stored;
}

bool FieldDraft::isUnsaved() const {
    return state() == SaveState::Edited || state() == SaveState::Failed;
}

void FieldDraft::load(const QVariant &stored) {
    const bool untouched = m_entered == m_stored && !m_sending;
    m_stored = stored;
    if (untouched)
        m_entered = stored;
}

void FieldDraft::enter(const QVariant &value) {
    if (value == m_entered)
        return;
    m_entered = value;
    m_failed = false;
    m_before.reset();
}

std::optional<QVariant> FieldDraft::begin() {
    if (m_sending) {
        m_again = m_entered != *m_sending;
        return std::nullopt;
    }
    m_failed = false;
    if (m_entered == m_stored)
        return std::nullopt;
    m_before.reset();
    m_sending = m_entered;
    return m_sending;
}

std::optional<QVariant> FieldDraft::finish(const QVariant &kept) {
    const QVariant sent = *std::exchange(m_sending, std::nullopt);
    m_before = std::exchange(m_stored, kept);
    if (m_entered == sent)
        m_entered = kept;
    return next();
}

std::optional<QVariant> FieldDraft::fail() {
    const QVariant sent = *std::exchange(m_sending, std::nullopt);
    m_failed = m_entered == sent;
    return next();
}

std::optional<QVariant> FieldDraft::next() {
    return std::exchange(m_again, false) ? begin() : std::nullopt;
}

void FieldDraft::undo() {
    if (isUndoable())
        enter(QVariant(*m_before));
}

void FieldDraft::discard() {
    m_entered = m_stored;
    m_failed = false;
    m_again = false;
    m_before.reset();
}

} // namespace kiv::store
