#pragma once

#include "base/Clock.h"
#include "net/APIClient.h"
#include "net/ChatStreamClient.h"
#include "store/AccountRoom.h"
#include "store/AppearanceRoom.h"
#include "store/AttachmentRoom.h"
#include "store/Calendar.h"
#include "store/CallRoom.h"
#include "store/CanvasRoom.h"
#include "store/ChatDoor.h"
#include "store/ChatRoom.h"
#include "store/ConnectionRoom.h"
#include "store/CreateRoom.h"
#include "store/DictationRoom.h"
#include "store/EventsRoom.h"
#include "store/FindRoom.h"
#include "store/LayoutRoom.h"
#include "store/MicrophoneRoom.h"
#include "store/NoticeRoom.h"
#include "store/ScopeRoom.h"
#include "store/SessionRoom.h"
#include "store/StorageRoom.h"
#include "store/UpdateRoom.h"

#include <QObject>

class QSettings;

namespace kiv::web {
class WebHost;
}

namespace kiv::store {

/// All state of the window and every action of the person: one room per concern. Lives on the main
/// thread. Views read fields and call operations; nothing else writes.
class AppStore : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(kiv::store::ScopeRoom *scope READ scope CONSTANT)
    Q_PROPERTY(kiv::store::LayoutRoom *layout READ layout CONSTANT)
    Q_PROPERTY(kiv::store::ChatRoom *chat READ chat CONSTANT)
    Q_PROPERTY(kiv::store::AttachmentRoom *attachments READ attachments CONSTANT)
    Q_PROPERTY(kiv::store::FindRoom *find READ find CONSTANT)
    Q_PROPERTY(kiv::store::CanvasRoom *canvas READ canvas CONSTANT)
    Q_PROPERTY(kiv::store::SessionRoom *session READ session CONSTANT)
    Q_PROPERTY(kiv::store::EventsRoom *events READ events CONSTANT)
    Q_PROPERTY(kiv::store::ConnectionRoom *connection READ connection CONSTANT)
    Q_PROPERTY(kiv::store::StorageRoom *storage READ storage CONSTANT)
    Q_PROPERTY(kiv::store::Calendar *calendar READ calendar CONSTANT)
    Q_PROPERTY(kiv::store::MicrophoneRoom *microphone READ microphone CONSTANT)
    Q_PROPERTY(kiv::store::DictationRoom *dictation READ dictation CONSTANT)
    Q_PROPERTY(kiv::store::CallRoom *call READ call CONSTANT)
    Q_PROPERTY(kiv::store::AppearanceRoom *appearance READ appearance CONSTANT)
    Q_PROPERTY(kiv::store::NoticeRoom *notices READ notices CONSTANT)
    Q_PROPERTY(kiv::store::CreateRoom *create READ create CONSTANT)
    Q_PROPERTY(kiv::store::UpdateRoom *update READ update CONSTANT)
    Q_PROPERTY(kiv::store::AccountRoom *account READ account CONSTANT)
public:
    enum class Mode { Normal, Snapshot };

    /// The clock, the client and the settings outlive the store. What is being typed survives a
    /// restart in `draftsFile`.
    AppStore(Clock &clock, net::APIClient &net, QSettings &settings, const QString &draftsFile,
             Mode mode = Mode::Normal, QObject *parent = nullptr);
    ~AppStore() override;

    ScopeRoom *scope() { return &m_scope; }
    LayoutRoom *layout() { return &m_layout; }
    ChatRoom *chat() { return &m_chat; }
    AttachmentRoom *attachments() { return &m_attachments; }
    FindRoom *find() { return &m_find; }
    CanvasRoom *canvas() { return &m_canvas; }
    SessionRoom *session() { return &m_session; }
    EventsRoom *events() { return &m_events; }
    ConnectionRoom *connection() { return &m_connection; }
    StorageRoom *storage() { return &m_storage; }
    Calendar *calendar() { return &m_calendar; }
    MicrophoneRoom *microphone() { return &m_microphone; }
    DictationRoom *dictation() { return &m_dictation; }
    CallRoom *call() { return &m_call; }
    AppearanceRoom *appearance() { return &m_appearance; }
    NoticeRoom *notices() { return &m_notices; }
    CreateRoom *create() { return &m_create; }
    UpdateRoom *update() { return &m_update; }
    AccountRoom *account() { return &m_account; }
    ChatDoor *door() { return &m_door; }

    Clock &clock() { return m_clock; }
    net::APIClient &net() { return m_net; }
    net::ChatStreamClient &chatStream() { return m_chatStream; }
    QSettings &settings() { return m_settings; }
    /// Where the canvas has its pages from; null where there is no such place.
    web::WebHost *webHost() const { return m_webHost; }
    /// `host` outlives the views.
    void setWebHost(web::WebHost *host) { m_webHost = host; }
    bool isSnapshot() const { return m_mode == Mode::Snapshot; }

    /// Asks the backend who is signed in; called once when the window is there.
    Q_INVOKABLE void boot();
    /// The window is about to close: false when that has to wait for the person's answer, or for
    /// what is being saved.
    Q_INVOKABLE bool releaseWindow();
    /// Closes what lies over the chat before the scope changes.
    void resetSurfaces();
    /// The current local time as HH:MM.
    QString stamp() const;
    /// The language of the screens is another one: every room says its texts anew.
    void retranslate();

Q_SIGNALS:
    void retranslated();

private:
    Clock &m_clock;
    net::APIClient &m_net;
    QSettings &m_settings;
    Mode m_mode;
    web::WebHost *m_webHost = nullptr;
    net::ChatStreamClient m_chatStream;
    StorageRoom m_storage;
    ScopeRoom m_scope;
    LayoutRoom m_layout;
    ChatRoom m_chat;
    AttachmentRoom m_attachments;
    FindRoom m_find;
    CanvasRoom m_canvas;
    EventsRoom m_events;
    SessionRoom m_session;
    ConnectionRoom m_connection;
    Calendar m_calendar;
    MicrophoneRoom m_microphone;
    DictationRoom m_dictation;
    CallRoom m_call;
    AppearanceRoom m_appearance;
    NoticeRoom m_notices;
    CreateRoom m_create;
    UpdateRoom m_update;
    AccountRoom m_account;
    ChatDoor m_door;
};

} // namespace kiv::store
