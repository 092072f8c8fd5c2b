#include "store/AccountRoom.h"

#include "base/Background.h"
#include "base/BaseUrl.h"
#include "net/KivAPI.h"
#include "store/AppStore.h"
#include "store/ProfileValues.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

const QString nameKey = u"full_name"_s;

/// How long a save may keep the window from closing before the person is asked.
constexpr std::chrono::seconds patience{5};

/// A document is saved by its own button: leaving it half written is no wish to keep it.
bool isDocument(const QString &key) {
    return key.endsWith("_md"_L1) || key.startsWith("worker_"_L1);
}

PasswordFault faultOf(const std::exception &error) {
    if (dynamic_cast<const net::KivAPI::PasswordError *>(&error))
        return PasswordFault::Repeated;
    const auto *refusal = dynamic_cast<const net::APIError *>(&error);
    if (!refusal || refusal->kind() != net::APIError::Kind::Server)
        return PasswordFault::None;
    return refusal->code() == u"wrong_password"_s ? PasswordFault::Current : PasswordFault::Changed;
}

} // namespace

AccountRoom::AccountRoom(AppStore &store) : m_store(store) {
    const QHash<QString, QVariant> empty = emptyProfileValues();
    for (auto field = empty.begin(); field != empty.end(); ++field)
        addField(field.key(), field.value());
    connect(m_store.layout(), &LayoutRoom::accountChanged, this, [this, wasOpen = false]() mutable {
        const bool isOpen = m_store.layout()->isAccount();
        if (isOpen && !wasOpen) {
            loadProfile();
            loadBudget();
        } else if (!isOpen && wasOpen) {
            commitTyped();
            stay();
        }
        wasOpen = isOpen;
    });
}

void AccountRoom::addField(const QString &key, const QVariant &empty) {
    auto *field = new AccountField(m_store.net(), key, empty, this);
    m_fields.insert(key, field);
    connect(field, &AccountField::changed, this, &AccountRoom::look);
    connect(field, &AccountField::saved, this, [this, field] {
        for (AccountField *other : std::as_const(m_fields)) {
            if (other != field && other->state() == SaveState::Saved)
                other->settle();
        }
        if (field->key() == nameKey)
            m_store.scope()->setUserName(field->text());
        // What is on its way may be older than what has been saved.
        if (m_profileWork.running())
            loadProfile();
    });
    connect(field, &AccountField::saveFailed, this, [this, field] {
        if (!m_store.layout()->isAccount())
            Q_EMIT failedElsewhere(
                tr("A change to your account was not saved. %1").arg(field->error()));
    });
}

AccountField *AccountRoom::field(const QString &key) const {
    return m_fields.value(key);
}

void AccountRoom::look() {
    SaveState worst = SaveState::Stored;
    for (const AccountField *field : std::as_const(m_fields)) {
        const SaveState state = field->state();
        if (state != SaveState::Saved)
            worst = std::max(worst, state);
    }
    m_saveState = worst;
    if (m_leaving == Leaving::Window && !m_leaveAsked && !isSaving())
        leaveFor(Leaving::Window);
}

bool AccountRoom::isUnsaved() const {
    return std::any_of(m_fields.begin(), m_fields.end(),
                       [](const AccountField *field) { return field->isUnsaved(); });
}

bool AccountRoom::isSaving() const {
    return std::any_of(m_fields.begin(), m_fields.end(), [](const AccountField *field) {
        return field->state() == SaveState::Saving;
    });
}

void AccountRoom::loadProfile() {
    if (m_store.isSnapshot())
        return;
    m_profileWork.restart([this](Cancel cancel) { return readProfile(std::move(cancel)); });
}

QCoro::Task<void> AccountRoom::readProfile(Cancel cancel) {
    m_profileError = QString();
    if (m_profileLoad.value() == LoadState::Failed)
        m_profileLoad = LoadState::Loading;
    try {
        const auto profile = co_await net::KivAPI::profile(&m_store.net(), cancel);
        const ProfileValues values = profileValues(profile);
        for (auto value = values.begin(); value != values.end(); ++value) {
            if (*value)
                m_fields.value(value.key())->load(**value);
        }
        m_store.scope()->setUserAvatar(pictureAddress(profile.avatarUrl.value_or(QString())));
        m_profileLoad = LoadState::Ready;
    } catch (const std::exception &error) {
        cancel.throwIfRequested();
        m_profileError = net::errorText(error);
        // The fields of before stay.
        if (m_profileLoad.value() == LoadState::Loading)
            m_profileLoad = LoadState::Failed;
    }
}

void AccountRoom::loadBudget() {
    if (m_store.isSnapshot())
        return;
    m_budgetWork.restart([this](Cancel cancel) { return readBudget(std::move(cancel)); });
}

QCoro::Task<void> AccountRoom::readBudget(Cancel cancel) {
    m_budgetError = QString();
    if (m_budgetLoad.value() == LoadState::Failed)
        m_budgetLoad = LoadState::Loading;
    try {
        net::APIClient *client = &m_store.net();
        auto plan = net::KivAPI::plan(client, cancel);
        auto wallet = net::KivAPI::wallet(client, cancel);
        AccountBudget budget;
        budget.setPlan(co_await plan);
        budget.setWallet(co_await wallet);
        m_budget = budget;
        m_budgetLoad = LoadState::Ready;
    } catch (const std::exception &error) {
        cancel.throwIfRequested();
        m_budgetError = net::errorText(error);
        if (m_budgetLoad.value() == LoadState::Loading)
            m_budgetLoad = LoadState::Failed;
    }
}

void AccountRoom::commitTyped() {
    for (AccountField *field : std::as_const(m_fields)) {
        if (!isDocument(field->key()) && field->state() == SaveState::Edited)
            field->commit();
    }
}

void AccountRoom::leave() {
    if (m_store.layout()->isAccount())
        leaveFor(Leaving::Pages);
}

void AccountRoom::signOut() {
    leaveFor(Leaving::Session);
}

void AccountRoom::leaveFor(Leaving leaving) {
    commitTyped();
    m_leaving = leaving;
    m_leaveAsked = isUnsaved();
    if (!m_leaveAsked)
        finishLeaving();
}

bool AccountRoom::releaseWindow() {
    const bool again = m_leaving == Leaving::Window;
    commitTyped();
    m_leaveAsked = isUnsaved();
    m_leaving = Leaving::Window;
    if (!m_leaveAsked && (again || !isSaving())) {
        stay();
        return true;
    }
    if (!m_leaveAsked)
        m_patience = m_store.clock().after(patience, [this] { m_leaveAsked = true; });
    return false;
}

void AccountRoom::giveWay() {
    if (!isUnsaved())
        m_store.layout()->closeAccount();
}

void AccountRoom::leaveAnyway() {
    if (!m_leaveAsked)
        return;
    for (AccountField *field : std::as_const(m_fields)) {
        if (field->isUnsaved())
            field->discard();
    }
    finishLeaving();
}

void AccountRoom::stay() {
    m_patience.stop();
    m_leaveAsked = false;
    m_leaving = Leaving::No;
}

void AccountRoom::finishLeaving() {
    const Leaving leaving = m_leaving;
    stay();
    if (leaving == Leaving::Window)
        return Q_EMIT windowReleased();
    m_store.layout()->closeAccount();
    if (leaving == Leaving::Session)
        m_store.session()->logout();
}

void AccountRoom::pickPicture() {
    if (!m_chooser || m_choosing || m_store.scope()->avatarUploading())
        return;
    m_choosing = true;
    m_chooser->choose(tr("Choose a picture of yourself"),
                      {u"png"_s, u"jpg"_s, u"jpeg"_s, u"webp"_s, u"gif"_s},
                      [room = QPointer(this)](const QList<QUrl> &files) {
                          if (!room)
                              return;
                          room->m_choosing = false;
                          if (!files.isEmpty())
                              Q_EMIT room->pictureChosen(files.first());
                      });
}

void AccountRoom::refusePicture(const QString &why) {
    m_picture = {};
    m_pictureError = why;
}

void AccountRoom::uploadPicture(PickedFile::Content content) {
    m_pictureWork.restart([&](Cancel cancel) { return sendPicture(content, std::move(cancel)); });
}

void AccountRoom::retryPicture() {
    if (m_picture && !m_store.scope()->avatarUploading())
        uploadPicture(m_picture);
}

QCoro::Task<void> AccountRoom::sendPicture(PickedFile::Content content, Cancel cancel) {
    ScopeRoom *scope = m_store.scope();
    scope->setAvatarUploading(true);
    m_picture = content;
    m_pictureError = QString();
    try {
        const PickedFile file(u"picture.png"_s, content);
        auto reading = [file] { return file.read(); };
        const PickedFile::Read read = co_await inBackground(std::move(reading), cancel);
        if (!read.refusal.isEmpty()) {
            refusePicture(read.refusal);
        } else {
            const auto address =
                co_await net::KivAPI::uploadAvatar(&m_store.net(), read.part, cancel);
            m_picture = {};
            if (address && !address->isEmpty())
                scope->setUserAvatar(pictureAddress(*address));
            else
                loadProfile(); // it may know the picture that the reply does not name
        }
    } catch (const std::exception &error) {
        cancel.throwIfRequested();
        m_pictureError = net::errorText(error);
    }
    scope->setAvatarUploading(false);
}

void AccountRoom::changePassword(const QString &current, const QString &changed,
                                 const QString &repeated) {
    if (m_passwordBusy)
        return;
    m_passwordWork.restart(
        [&](Cancel cancel) { return sendPassword(current, changed, repeated, std::move(cancel)); });
}

QCoro::Task<void> AccountRoom::sendPassword(QString current, QString changed, QString repeated,
                                            Cancel cancel) {
    m_passwordBusy = true;
    m_passwordError = QString();
    m_passwordFault = PasswordFault::None;
    m_passwordNote = QString();
    try {
        co_await net::KivAPI::changePassword(&m_store.net(), current, changed, repeated, cancel);
        m_passwordNote = u"Password changed. Other sessions were signed out."_s;
        Q_EMIT passwordChanged();
    } catch (const std::exception &error) {
        cancel.throwIfRequested();
        m_passwordFault = faultOf(error);
        m_passwordError = net::errorText(error);
    }
    m_passwordBusy = false;
}

void AccountRoom::clear() {
    for (Work *work : {&m_profileWork, &m_budgetWork, &m_pictureWork, &m_passwordWork})
        work->cancel();
    for (AccountField *field : std::as_const(m_fields))
        field->clear();
    m_profileLoad = LoadState::Loading;
    m_profileError = QString();
    m_budgetLoad = LoadState::Loading;
    m_budgetError = QString();
    m_budget = AccountBudget();
    m_store.scope()->setAvatarUploading(false);
    m_picture = {};
    m_pictureError = QString();
    m_passwordBusy = false;
    m_passwordError = QString();
    m_passwordFault = PasswordFault::None;
    m_passwordNote = QString();
    stay();
}

} // namespace kiv::store
