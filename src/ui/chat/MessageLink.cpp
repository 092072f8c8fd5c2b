#include "ui/chat/MessageLink.h"

#include <QUrl>

namespace kiv::ui {

QString MessageLink::place() const {
    const QUrl url(target);
    const QString host = url.host(QUrl::FullyEncoded);
    return host.isEmpty() ? url.path() : host;
}

} // namespace kiv::ui
