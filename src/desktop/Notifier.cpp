#include "desktop/Notifier.h"

#include "desktop/DesktopId.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace kiv::desktop {

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.Notifications"_s;
const QString path = u"/org/freedesktop/Notifications"_s;
const QString defaultAction = u"default"_s;
constexpr int serversOwnTime = -1;

} // namespace

Notifier::Notifier(const QDBusConnection &bus) : m_bus(bus) {}

QDBusPendingCall Notifier::call(const QString &method, const QVariantList &arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, service, method);
    message.setArguments(arguments);
    return m_bus.asyncCall(message);
}

void Notifier::follow() {
    if (std::exchange(m_isFollowed, true))
        return;
    m_bus.connect(service, path, service, u"ActivationToken"_s, this,
                  SLOT(takeToken(uint, QString)));
    m_bus.connect(service, path, service, u"ActionInvoked"_s, this,
                  SLOT(takeAction(uint, QString)));
    m_bus.connect(service, path, service, u"NotificationClosed"_s, this,
                  SLOT(takeClosed(uint, uint)));
}

void Notifier::show(const Notice &notice) {
    if (!m_bus.isConnected())
        return;
    follow();
    if (m_abilities) {
        send(notice);
        return;
    }
    auto *answer = new QDBusPendingCallWatcher(call(u"GetCapabilities"_s, {}), this);
    const auto told = [this, answer, notice, asked = m_withdrawals] {
        answer->deleteLater();
        const QDBusPendingReply<QStringList> reply = *answer;
        if (reply.isError())
            return; // no server; there may be one the next time
        m_abilities = reply.value();
        if (asked == m_withdrawals)
            send(notice);
    };
    connect(answer, &QDBusPendingCallWatcher::finished, this, told);
}

void Notifier::send(const Notice &notice) {
    if (const auto before = m_underWay.find(notice.topic); before != m_underWay.end()) {
        *before = notice;
        return;
    }
    m_underWay.insert(notice.topic, std::nullopt);
    const bool readsMarkup = m_abilities->contains(u"body-markup"_s);
    const QVariantList arguments{
        u"KIV"_s,
        m_shown.value(notice.topic, 0u),
        desktopId,
        notice.title,
        readsMarkup ? notice.text.toHtmlEscaped() : notice.text,
        QStringList{defaultAction, tr("Open")},
        QVariantMap{{u"desktop-entry"_s, desktopId}, {u"category"_s, u"im.received"_s}},
        serversOwnTime};
    auto *answer = new QDBusPendingCallWatcher(call(u"Notify"_s, arguments), this);
    const auto shown = [this, answer, topic = notice.topic, asked = m_withdrawals] {
        answer->deleteLater();
        const QDBusPendingReply<uint> reply = *answer;
        if (!reply.isError() && asked == m_withdrawals)
            m_shown.insert(topic, reply.value());
        else if (!reply.isError())
            call(u"CloseNotification"_s, {reply.value()});
        if (const auto next = m_underWay.take(topic))
            send(*next);
    };
    connect(answer, &QDBusPendingCallWatcher::finished, this, shown);
}

void Notifier::withdraw() {
    ++m_withdrawals;
    for (std::optional<Notice> &next : m_underWay)
        next.reset();
    for (const uint id : std::as_const(m_shown))
        call(u"CloseNotification"_s, {id});
    m_shown.clear();
    m_tokens.clear();
}

void Notifier::takeToken(uint id, const QString &token) {
    if (!m_shown.key(id).isEmpty())
        m_tokens.insert(id, token);
}

void Notifier::takeAction(uint id, const QString &action) {
    const QString topic = m_shown.key(id);
    if (topic.isEmpty() || action != defaultAction)
        return; // another program's
    Q_EMIT clicked(topic, m_tokens.take(id));
}

void Notifier::takeClosed(uint id, uint) {
    m_shown.remove(m_shown.key(id));
    m_tokens.remove(id);
}

} // namespace kiv::desktop
