#include "store/DictationRoom.h"

#include "store/AppStore.h"
#include "store/SpokenWords.h"

#include <algorithm>

namespace kiv::store {

using namespace std::chrono_literals;

DictationRoom::DictationRoom(AppStore &store)
    : m_store(store), m_engine(store.microphone()->newInput()) {
    const auto show = [this] {
        m_interimWords = spokenWords(m_dictationInterim, m_store.chat()->draft(), place());
    };
    connect(this, &DictationRoom::dictationInterimChanged, this, show);
    connect(this, &DictationRoom::caretChanged, this, show);
    connect(m_store.chat(), &ChatRoom::draftChanged, this, show);

    m_engine.onInterim = [this](const QString &text) { m_dictationInterim = text; };
    m_engine.onFinal = [this](const QString &text) {
        m_dictationInterim = QString();
        insert(text);
    };
    m_engine.onError = [this](const QString &text) {
        end();
        m_error = text;
        m_store.chat()->showNote(text);
    };
}

DictationRoom::~DictationRoom() {
    stop();
}

void DictationRoom::toggleDictation() {
    if (m_dictating) {
        stop();
        return;
    }
    if (!m_error.isEmpty() && m_store.chat()->chatNote() == m_error)
        m_store.chat()->showNote(QString());
    m_dictating = true;
    m_startedAt = m_store.clock().elapsed();
    tick();
    m_engine.start();
}

void DictationRoom::stop() {
    if (!m_dictating)
        return;
    end();
    m_engine.stop();
}

void DictationRoom::end() {
    m_dictating = false;
    m_tick.stop();
    keepInterim();
}

void DictationRoom::keepInterim() {
    const QString words = m_dictationInterim;
    m_dictationInterim = QString();
    insert(words);
}

int DictationRoom::place() const {
    return std::clamp(m_caret.value(), 0, static_cast<int>(m_store.chat()->draft().size()));
}

void DictationRoom::insert(const QString &words) {
    ChatRoom *chat = m_store.chat();
    const QString before = chat->draft();
    const int at = place();
    const QString fitted = spokenWords(words, before, at);
    if (fitted.isEmpty())
        return;
    Q_EMIT spoken(before, at, fitted);
    if (chat->draft() == before)
        chat->setDraft(before.first(at) + fitted + before.sliced(at));
    m_caret = at + static_cast<int>(fitted.size());
}

void DictationRoom::tick() {
    const auto passed = m_store.clock().elapsed() - m_startedAt;
    m_seconds = static_cast<int>(passed / 1s);
    m_tick = m_store.clock().after(1s - passed % 1s, [this] { tick(); });
}

} // namespace kiv::store
