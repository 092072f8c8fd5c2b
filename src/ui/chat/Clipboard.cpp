#include "ui/chat/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace kiv::ui {

void Clipboard::setText(const QString &text) {
    QGuiApplication::clipboard()->setText(text);
}

} // namespace kiv::ui
