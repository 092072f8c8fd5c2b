#include "ui/chat/AnswerNews.h"

#include "text/HtmlText.h"
#include "text/MDParser.h"

#include <QTextDocumentFragment>

namespace kiv::ui {

namespace {

/// A message as it is read aloud: its words without their mark-up.
QString spoken(const QString &message) {
    const QString html = text::htmlOf(text::MDParser::parse(message));
    return QTextDocumentFragment::fromHtml(html).toPlainText().trimmed();
}

} // namespace

void AnswerNews::setChat(store::ChatRoom *chat) {
    if (m_chat == chat)
        return;
    if (m_chat)
        m_chat->disconnect(this);
    m_chat = chat;
    if (chat)
        connect(chat, &store::ChatRoom::answerEnded, this, &AnswerNews::tell);
    Q_EMIT chatChanged();
}

void AnswerNews::tell(const QUuid &answer) {
    const qsizetype row = m_chat->msgs()->rowOf(answer);
    if (row < 0 || m_told == answer)
        return;
    m_told = answer;
    Q_EMIT told(
        tr("%1 has answered: %2").arg(m_name, spoken(m_chat->msgs()->messages().at(row).shown)));
}

} // namespace kiv::ui
