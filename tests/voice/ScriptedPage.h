#pragma once

#include "voice/VoicePage.h"

#include <QStringList>

namespace kiv::test {

/// Voice pages that do nothing by themselves: what was asked of the newest is kept, and the test
/// says what it posts.
class ScriptedPages : public voice::VoicePages {
public:
    QString refusal() override { return refused; }
    std::unique_ptr<voice::VoicePage> makePage(voice::VoicePageWatcher &watcher) override {
        if (!available)
            return nullptr;
        m_watcher = &watcher;
        ++made;
        return std::make_unique<Page>(*this);
    }

    void post(const QVariantMap &message) {
        m_watcher->pageMessage(QStringLiteral("vcall"), message);
    }
    void postOn(const QString &channel, const QVariant &body) {
        m_watcher->pageMessage(channel, body);
    }
    void die() { m_watcher->pageGone(); }

    /// The scripts that were evaluated and begin with "window.__native" and this.
    QStringList calls(const QString &function) const {
        return scripts.filter(QStringLiteral("window.__native") + function);
    }

    QString refused;
    bool available = true;
    int made = 0;
    int loads = 0;
    QUrl baseUrl;
    QString microphone;
    bool audible = true;
    QStringList scripts;

private:
    class Page : public voice::VoicePage {
    public:
        explicit Page(ScriptedPages &script) : m_script(script) {}
        void loadHtml(const QString &, const QUrl &url) override {
            ++m_script.loads;
            m_script.baseUrl = url;
        }
        void evaluate(const QString &script) override { m_script.scripts.append(script); }
        void setMicrophone(const QString &name) override { m_script.microphone = name; }
        void setAudible(bool isAudible) override { m_script.audible = isAudible; }

    private:
        ScriptedPages &m_script;
    };

    voice::VoicePageWatcher *m_watcher = nullptr;
};

} // namespace kiv::test
