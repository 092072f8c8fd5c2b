#pragma once

#include "soak/Pauses.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>
#include <QObject>

#include <chrono>

class QEvent;

namespace kiv::soak {

/// How long the main thread is held: from the first thing that it does after waiting for events to
/// where it waits again. What the machine takes away does not count: the time that it stood in the
/// queue for a processor, or waited for a thread of a pool that stood there, or that a processor
/// stood still. Nor does what the run itself does meanwhile.
class MainThread : public QObject {
    Q_OBJECT
public:
    using Nanoseconds = std::chrono::nanoseconds;

    struct Hold {
        Nanoseconds held{0};
        Nanoseconds worked{0}; ///< of it on a processor
        long waits = 0;        ///< how often it gave the processor up by itself
        QByteArray doing;      ///< the longest of what was done
        int pass = 0;
    };

    /// The application object must be there.
    MainThread();
    ~MainThread() override;

    /// Something is done: an event is delivered, or a step taken. Calls may be nested.
    void enter();
    void leave(QObject *receiver, const QEvent *event);
    void leave(const char *step);

    /// What is done in its life is the run's own doing.
    class OwnDoing {
    public:
        explicit OwnDoing(MainThread &thread);
        ~OwnDoing();
        OwnDoing(const OwnDoing &) = delete;
        OwnDoing &operator=(const OwnDoing &) = delete;

    private:
        MainThread &m_thread;
        bool m_isOutermost;
    };

    const Hold &worst() const { return m_worst; }
    /// The pass in which it worked most.
    const Hold &hardest() const { return m_hardest; }
    /// The first passes of more than 100 ms.
    const QList<Hold> &holds() const { return m_holds; }
    int passes() const { return m_passes; }
    /// How many passes took more than 16, 50 and 100 ms.
    int over16() const { return m_over16; }
    int over50() const { return m_over50; }
    int over100() const { return m_over100; }

    /// The meter of this process; null while there is none.
    static MainThread *running();

private:
    struct Reading {
        Nanoseconds time{0};
        Nanoseconds worked{0};
        Nanoseconds queued{0};
        Nanoseconds pooledQueued{0};
        long waits = 0; ///< how often it gave the processor up by itself
    };
    Reading read() const;
    void note(QByteArray what);
    void endPass();

    Pauses m_pauses;
    QElapsedTimer m_clock;
    int m_schedstat = -1;
    int m_depth = 0;
    bool m_inPass = false;
    bool m_isOwn = false;
    Reading m_begin;    ///< of the pass
    Reading m_ownBegin; ///< of what the run itself does
    Reading m_own;      ///< of it in this pass
    Nanoseconds m_entered{0};
    Nanoseconds m_longest{0};
    QByteArray m_doing;
    Hold m_worst;
    Hold m_hardest;
    QList<Hold> m_holds;
    int m_passes = 0;
    int m_over16 = 0;
    int m_over50 = 0;
    int m_over100 = 0;
};

} // namespace kiv::soak
