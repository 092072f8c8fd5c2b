#include "ui/AnswerText.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace kiv::ui {

QString longName(int i) {
    const QString words = i % 2 == 0 ? u"Внедрение единой системы управления закупками "_s
                                     : u"Consolidated procurement and supplier onboarding "_s;
    return (QString::number(i + 1) + u' ' + words.repeated(4)).left(120).trimmed();
}

QString block(const QString &kind, const QString &art, const QString &title,
              const QJsonObject &data) {
    QJsonObject view = data;
    view.insert(u"kind"_s, kind);
    view.insert(u"art"_s, art);
    view.insert(u"title"_s, title);
    return u"Here it is.\n\n```view\n"_s + QString::fromUtf8(QJsonDocument(view).toJson()) +
           u"```\n"_s;
}

QJsonObject points(const QJsonArray &rows, const QString &unit) {
    QJsonObject data{{u"points"_s, rows}};
    if (!unit.isEmpty())
        data.insert(u"unit"_s, unit);
    return data;
}

QJsonObject point(const QString &label, double value, const QString &hint) {
    QJsonObject row{{u"label"_s, label}, {u"value"_s, value}};
    if (!hint.isEmpty())
        row.insert(u"hint"_s, hint);
    return row;
}

QJsonArray texts(const QStringList &words) {
    return QJsonArray::fromStringList(words);
}

} // namespace kiv::ui
