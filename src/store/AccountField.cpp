#include "store/AccountField.h"

#include "net/KivAPI.h"
#include "store/ProfileValues.h"

namespace kiv::store {

AccountField::AccountField(net::APIClient &client, QString key, QVariant empty, QObject *parent)
    : QObject(parent),
      m_client(client),
      m_key(std::move(key)),
      m_empty(std::move(empty)),
      m_draft(m_empty) {}

void AccountField::edit(const QString &text) {
    enter(text);
}

void AccountField::choose(const QString &text) {
    enter(text);
    commit();
}

void AccountField::turn(bool on) {
    enter(on);
    commit();
}

void AccountField::addEntry(const QString &entry) {
    QStringList all = entries();
    const QString added = entry.simplified();
    if (added.isEmpty() || all.contains(added, Qt::CaseInsensitive))
        return;
    enter(all << added);
    commit();
}

void AccountField::removeEntry(const QString &entry) {
    QStringList all = entries();
    all.removeOne(entry);
    enter(all);
    commit();
}

void AccountField::enter(const QVariant &value) {
    if (value == m_draft.value())
        return;
    m_draft.enter(value);
    m_error = QString();
    Q_EMIT changed();
}

void AccountField::commit() {
    send(m_draft.begin());
}

void AccountField::undo() {
    m_draft.undo();
    commit();
}

void AccountField::discard() {
    m_draft.discard();
    m_error = QString();
    Q_EMIT changed();
}

void AccountField::load(const QVariant &stored) {
    m_draft.load(stored);
    Q_EMIT changed();
}

void AccountField::settle() {
    m_draft.settle();
    Q_EMIT changed();
}

void AccountField::clear() {
    m_save.cancel();
    m_draft = FieldDraft(m_empty);
    m_error = QString();
    Q_EMIT changed();
}

void AccountField::send(const std::optional<QVariant> &value) {
    if (value) {
        m_error = QString();
        m_save.start([&](Cancel cancel) { return save(*value, std::move(cancel)); });
    }
    Q_EMIT changed();
}

QCoro::Task<void> AccountField::save(QVariant value, Cancel cancel) {
    std::optional<QVariant> kept;
    QString why;
    try {
        const QJsonObject changes{{m_key, QJsonValue::fromVariant(value)}};
        const auto profile = co_await net::KivAPI::patchProfile(&m_client, changes, cancel);
        // Other fields of the reply may be older than what was entered in them since.
        kept = profileValues(profile).value(m_key).value_or(value);
    } catch (const std::exception &error) {
        cancel.throwIfRequested();
        why = net::errorText(error);
    }
    send(kept ? m_draft.finish(*kept) : m_draft.fail());
    if (kept) {
        Q_EMIT saved();
    } else if (state() == SaveState::Failed) {
        m_error = why;
        Q_EMIT changed();
        Q_EMIT saveFailed();
    }
}

} // namespace kiv::store
