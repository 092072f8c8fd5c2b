#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <httplib.h>

#include <exception>
#include <functional>

namespace kiv::sandbox {

/// Why a request is refused, as it goes out: {"error": text, "code": code}.
class Refusal : public std::exception {
public:
    Refusal(int status, QString text, QString code = {})
        : m_status(status), m_text(std::move(text)), m_code(std::move(code)) {}
    int status() const { return m_status; }
    QJsonObject body() const;
    const char *what() const noexcept override { return "Refused"; }

private:
    int m_status;
    QString m_text;
    QString m_code;
};

/// What a route answers. With `stream` set, the body is written piece by piece instead.
struct Reply {
    int status = 200;
    QByteArray body = {};
    QByteArray type = "application/json";
    QList<std::pair<QByteArray, QByteArray>> headers = {};
    httplib::ContentProviderWithoutLength stream = nullptr;

    static Reply json(const QJsonObject &object, int status = 200);
    static Reply list(const QJsonArray &array);
    static Reply html(const QString &page, int status = 200);
};

/// One request, as a route sees it.
struct Call {
    const httplib::Request &request;
    QString account;  ///< id of the signed-in account; empty on routes open to everybody
    QByteArray token; ///< the session cookie, when there is one
    QString origin;   ///< the server's own address, as this peer wrote it

    /// The n-th captured part of the path, counted from 1.
    QString segment(size_t n) const;
    /// The whole number under a query name, kept within the bounds.
    int number(const char *name, int byDefault, int least, int most) const;
    /// The body as a JSON object; throws Refusal for anything else.
    QJsonObject json() const;
};

/// A string member: `byDefault` when it is missing or null; throws Refusal when it is no string.
QString stringMember(const QJsonObject &object, QLatin1StringView key,
                     const QString &byDefault = {});

/// The value of a request cookie; empty when there is none.
QByteArray cookie(const httplib::Request &request, QByteArrayView name);

QByteArray compact(const QJsonObject &object);

} // namespace kiv::sandbox
