#include "ui/shell/Notices.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace kiv::ui {

using namespace Qt::StringLiterals;

QList<Notice> Notices::all() {
    QFile file(u":/kiv/notices.json"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<Notice> notices;
    for (const QJsonValue entry : QJsonDocument::fromJson(file.readAll()).array())
        notices.append({.name = entry["name"_L1].toString(),
                        .part = entry["part"_L1].toString(),
                        .licence = entry["licence"_L1].toString(),
                        .holder = entry["holder"_L1].toString()});
    return notices;
}

} // namespace kiv::ui
