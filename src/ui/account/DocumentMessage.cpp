#include "ui/account/DocumentMessage.h"

namespace kiv::ui {

void DocumentMessage::setText(const QString &text) {
    if (text == m_text)
        return;
    m_text = text;
    QList<store::Msg> messages;
    if (!text.trimmed().isEmpty())
        messages.append(store::localMsg(store::Who::Agent, text));
    m_messages.replaceAll(messages);
    Q_EMIT textChanged();
}

} // namespace kiv::ui
