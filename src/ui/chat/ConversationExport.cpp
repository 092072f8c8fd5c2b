#include "ui/chat/ConversationExport.h"

#include "store/Transcript.h"
#include "ui/chat/Clipboard.h"

#include <QQuickItem>
#include <QQuickWindow>

namespace kiv::ui {

using namespace Qt::StringLiterals;

ConversationExport::ConversationExport(QObject *parent) : QObject(parent) {
    connect(&m_saver, &FileSaver::failed, this, [this](const QString &reason) {
        if (m_store)
            m_store->chat()->showNote(reason);
    });
    connect(&m_saver, &FileSaver::saved, this, &ConversationExport::saved);
}

void ConversationExport::save() {
    const auto *view = qobject_cast<QQuickItem *>(parent());
    m_store->chat()->showNote({});
    m_saver.ask(view ? view->window() : nullptr,
                {tr("Save the conversation"), u"md"_s, tr("Markdown (*.md)")},
                m_store->scope()->scopeName(), text().toUtf8());
}

void ConversationExport::copy() {
    Clipboard::setMarkdown(text(), text());
    Q_EMIT copied(tr("Conversation copied"));
}

QString ConversationExport::text() const {
    return store::transcript(m_store->scope()->scopeName(), m_store->chat()->msgs()->messages());
}

} // namespace kiv::ui
