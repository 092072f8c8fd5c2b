#pragma once

#include <QString>
#include <QUrl>
#include <QVariant>

#include <memory>

namespace kiv::voice {

/// Told what a voice page has to say, from within the page's own callbacks.
class VoicePageWatcher {
public:
    /// The page posted `body` on the channel of this name.
    virtual void pageMessage(const QString &channel, const QVariant &body) = 0;
    /// The page's process has ended; nothing comes from it any more.
    virtual void pageGone() = 0;

protected:
    ~VoicePageWatcher() = default;
};

/// A web page that nobody sees and that may use microphone and loudspeaker: what it loads decides
/// when, for its own origin, and nobody is asked again.
class VoicePage {
public:
    virtual ~VoicePage() = default;

    virtual void loadHtml(const QString &html, const QUrl &baseUrl) = 0;
    /// Runs a script in the page; what it returns is dropped.
    virtual void evaluate(const QString &script) = 0;
    /// Which microphone the page gets the next time that it asks for one, by the name that the
    /// system shows; empty for the system's own choice.
    virtual void setMicrophone(const QString &name) = 0;
    /// Whether what the page plays is heard.
    virtual void setAudible(bool audible) = 0;
};

/// Where voice pages come from.
class VoicePages {
public:
    virtual ~VoicePages() = default;

    /// Why there can be no page here, in a line for the person; empty when there can.
    virtual QString refusal() = 0;
    /// Null where there is none to be had. `watcher` outlives the page.
    virtual std::unique_ptr<VoicePage> makePage(VoicePageWatcher &watcher) = 0;
};

} // namespace kiv::voice
