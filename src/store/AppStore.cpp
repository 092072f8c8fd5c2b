#include "store/AppStore.h"

namespace kiv::store {

using namespace Qt::StringLiterals;

AppStore::AppStore(Clock &clock, net::APIClient &net, QSettings &settings,
                   const QString &draftsFile, Mode mode, QObject *parent)
    : QObject(parent),
      m_clock(clock),
      m_net(net),
      m_settings(settings),
      m_mode(mode),
      m_chatStream(net),
      m_scope(*this),
      m_layout(*this, settings, clock),
      m_chat(*this, isSnapshot() ? QString() : draftsFile),
      m_attachments(*this),
      m_find(*this),
      m_canvas(*this),
      m_events(*this),
      m_session(*this),
      m_connection(*this),
      m_calendar(clock),
      m_microphone(clock, settings),
      m_dictation(*this),
      m_call(*this),
      m_appearance(settings),
      m_notices(settings),
      m_create(*this),
      m_update(*this),
      m_account(*this),
      m_door(*this) {
    if (isSnapshot())
        return;
    m_layout.restoreChrome();
    m_layout.startPersisting();
    m_appearance.startPersisting();
    m_notices.startPersisting();
    m_microphone.startPersisting();
    m_scope.startPersisting();
}

AppStore::~AppStore() {
    m_chatStream.stop();
    m_chat.end();
}

void AppStore::boot() {
    m_connection.look();
    m_session.boot();
}

bool AppStore::releaseWindow() {
    if (m_create.isOpen())
        m_create.requestClose();
    return !m_create.isAsking() && m_account.releaseWindow();
}

void AppStore::resetSurfaces() {
    m_layout.closeSurfaces();
    m_canvas.closePanel();
    m_canvas.setIdle();
}

void AppStore::retranslate() {
    m_scope.retranslate();
    m_chat.msgs()->retranslate();
    m_attachments.chatFiles()->retranslate();
    m_canvas.retranslate();
    m_events.events()->refreshAges();
    m_create.retranslate();
    m_storage.retranslate();
    Q_EMIT retranslated();
}

QString AppStore::stamp() const {
    return m_clock.now().toLocalTime().toString(u"HH:mm"_s);
}

} // namespace kiv::store
