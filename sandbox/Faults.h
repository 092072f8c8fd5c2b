#pragma once

#include <QString>
#include <QStringList>

#include <condition_variable>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <vector>

namespace kiv::sandbox {

/// A fault text that cannot be read; `what()` says why.
class FaultError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One way for the server to fail, written as "kind=value,path=P,method=M,times=N,code=C".
struct Fault {
    enum Kind {
        Latency, ///< every reply waits `value` ms
        Status,  ///< the reply is an error with this status
        Html,    ///< the same, with a page instead of JSON
        BadJson, ///< the reply's body is cut in the middle; of a socket, all after `value` messages
        Close,   ///< the connection ends without a reply
        Slow,    ///< bytes come in small pieces, `value` ms apart
        StreamDrop,      ///< a stream ends after `value` events
        HalfEvent,       ///< a stream ends inside the event after `value` events
        HalfCharacter,   ///< the same, inside a character of several bytes
        StreamStall,     ///< a stream says nothing more after `value` events
        CallUnavailable, ///< voice is said not to be available, for the reason `code`
        CallRefused,     ///< no call is agreed on, for the reason `code`
        CallLimit,       ///< a call may take `value` seconds
        CallTokenOnly,   ///< the session names the media transport, which nobody serves, alone
        CallWithToken,   ///< the session names it beside the socket
        CallNoTransport, ///< the session names neither
        CallDrop,        ///< the socket breaks after `value` ms
        CallDeaf,        ///< there is no recogniser for what the caller says
    };

    Kind kind = Latency;
    int value = 0;
    QString path;   ///< what the request's path has to contain; empty for any
    QString method; ///< empty for any
    int times = -1; ///< how many more requests it strikes; -1 until cleared
    QString code;   ///< the error's "code" member

    /// Throws FaultError.
    static Fault parse(const QString &text);
    QString text() const;
};

/// The faults in force. Set on the command line and by control requests.
class Faults {
public:
    /// Replaces what is in force.
    void set(std::vector<Fault> faults);
    QStringList list();
    /// The first fault of one of these kinds that strikes a request; it is used up by one.
    std::optional<Fault> take(const QString &method, const QString &path,
                              std::initializer_list<Fault::Kind> kinds);

    /// Waits, but no longer than until release().
    void sleep(int milliseconds);
    void release();

private:
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::vector<Fault> m_faults;
    bool m_released = false;
};

} // namespace kiv::sandbox
