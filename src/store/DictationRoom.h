#pragma once

#include "base/Clock.h"
#include "voice/DictationEngine.h"

#include <QObject>
#include <QProperty>
#include <QtQmlIntegration/qqmlintegration.h>

namespace kiv::store {

class AppStore;

/// Speaking into what is being typed. Finished utterances become part of the draft at the caret;
/// when dictation ends, whyever it does, so do the words of the utterance that was not finished.
class DictationRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(bool dictating READ dictating NOTIFY dictatingChanged)
    /// The words so far of the utterance that is being spoken.
    Q_PROPERTY(QString dictationInterim READ dictationInterim NOTIFY dictationInterimChanged)
    /// The same with the blanks that they need at the caret.
    Q_PROPERTY(QString interimWords READ interimWords NOTIFY interimWordsChanged)
    /// Since dictation was turned on.
    Q_PROPERTY(int seconds READ seconds NOTIFY secondsChanged)
    /// Where in the draft spoken words go. The ask bar that has the focus says so.
    Q_PROPERTY(int caret READ caret WRITE setCaret NOTIFY caretChanged)
public:
    explicit DictationRoom(AppStore &store);
    ~DictationRoom() override;

    bool dictating() const { return m_dictating; }
    QString dictationInterim() const { return m_dictationInterim; }
    QString interimWords() const { return m_interimWords; }
    int seconds() const { return m_seconds; }
    int caret() const { return m_caret; }
    void setCaret(int caret) { m_caret = caret; }

    /// The microphone button.
    Q_INVOKABLE void toggleDictation();
    /// Ends dictation; does nothing when it is off.
    Q_INVOKABLE void stop();

    /// What recognises speech; it outlives the room. Without one dictation says that it is not
    /// available.
    void setService(voice::SpeechService *service) { m_engine.setService(service); }

Q_SIGNALS:
    void dictatingChanged();
    void dictationInterimChanged();
    void interimWordsChanged();
    void secondsChanged();
    void caretChanged();
    /// `words` go into `draft` at `at`. An ask bar that shows this draft puts them in as an edit of
    /// its own, which can be undone; when none does, the room changes the draft itself.
    void spoken(const QString &draft, int at, const QString &words);

private:
    /// The caret, which can be ahead of the draft while somebody types.
    int place() const;
    void insert(const QString &words);
    void keepInterim();
    void end();
    void tick();

    AppStore &m_store;
    voice::DictationEngine m_engine;
    QString m_error; ///< that was shown last
    Clock::Milliseconds m_startedAt{0};
    Clock::Timer m_tick;
    Q_OBJECT_BINDABLE_PROPERTY(DictationRoom, bool, m_dictating, &DictationRoom::dictatingChanged)
    Q_OBJECT_BINDABLE_PROPERTY(DictationRoom, QString, m_dictationInterim,
                               &DictationRoom::dictationInterimChanged)
    Q_OBJECT_BINDABLE_PROPERTY(DictationRoom, QString, m_interimWords,
                               &DictationRoom::interimWordsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(DictationRoom, int, m_seconds, &DictationRoom::secondsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(DictationRoom, int, m_caret, &DictationRoom::caretChanged)
};

} // namespace kiv::store
