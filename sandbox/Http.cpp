#include "Http.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

QJsonObject Refusal::body() const {
    QJsonObject body{{u"error"_s, m_text}};
    if (!m_code.isEmpty())
        body.insert(u"code"_s, m_code);
    return body;
}

Reply Reply::json(const QJsonObject &object, int status) {
    return {.status = status, .body = compact(object)};
}

Reply Reply::list(const QJsonArray &array) {
    return {.body = QJsonDocument(array).toJson(QJsonDocument::Compact)};
}

Reply Reply::html(const QString &page, int status) {
    return {.status = status, .body = page.toUtf8(), .type = "text/html; charset=utf-8"};
}

QString Call::segment(size_t n) const {
    return QString::fromStdString(request.matches[n].str());
}

int Call::number(const char *name, int byDefault, int least, int most) const {
    bool good = false;
    const int value = QString::fromStdString(request.get_param_value(name)).toInt(&good);
    return good ? std::clamp(value, least, most) : byDefault;
}

QJsonObject Call::json() const {
    QJsonParseError error;
    const QJsonDocument document =
        QJsonDocument::fromJson(QByteArray::fromStdString(request.body), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        throw Refusal(400, u"The request body must be a JSON object."_s, u"bad_json"_s);
    return document.object();
}

QString stringMember(const QJsonObject &object, QLatin1StringView key, const QString &byDefault) {
    const QJsonValue value = object.value(key);
    if (value.isUndefined() || value.isNull())
        return byDefault;
    if (!value.isString())
        throw Refusal(400, u"\"%1\" must be a string."_s.arg(key), u"bad_value"_s);
    return value.toString();
}

QByteArray cookie(const httplib::Request &request, QByteArrayView name) {
    const QByteArray header = QByteArray::fromStdString(request.get_header_value("Cookie"));
    for (const QByteArray &pair : header.split(';')) {
        const qsizetype equals = pair.indexOf('=');
        if (equals > 0 && pair.first(equals).trimmed() == name)
            return pair.sliced(equals + 1).trimmed();
    }
    return {};
}

QByteArray compact(const QJsonObject &object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace kiv::sandbox
