#include "net/APIError.h"

#include "base/Cancel.h"
#include "base/Json.h"

namespace kiv::net {

using namespace Qt::StringLiterals;

APIError::APIError(Kind kind, QString message)
    : m_kind(kind), m_message(std::move(message)), m_what(errorDescription().toUtf8()) {}

APIError APIError::transport(QString message) {
    return APIError(Kind::Transport, std::move(message));
}

APIError APIError::unauthorized(QString message) {
    return APIError(Kind::Unauthorized, std::move(message));
}

APIError APIError::csrf(QString message) {
    return APIError(Kind::Csrf, std::move(message));
}

APIError APIError::rateLimited(QString message) {
    return APIError(Kind::RateLimited, std::move(message));
}

APIError APIError::server(int status, QString message, std::optional<QString> code) {
    APIError error(Kind::Server, std::move(message));
    error.m_status = status;
    error.m_code = std::move(code);
    return error;
}

APIError APIError::cancelled() {
    return APIError(Kind::Cancelled, QString());
}

QString APIError::errorDescription() const {
    switch (m_kind) {
    case Kind::Csrf:
        return u"CSRF: "_s + m_message;
    case Kind::Cancelled:
        return u"Cancelled"_s;
    case Kind::Transport:
    case Kind::Unauthorized:
    case Kind::RateLimited:
    case Kind::Server:
        break;
    }
    return m_message;
}

namespace {

struct ErrorBody {
    std::optional<QString> error;
    std::optional<QString> code;
};

/// What an error page says of itself; nothing when it is no JSON object, as a proxy's HTML is.
ErrorBody readErrorBody(QByteArrayView body) {
    try {
        const JsonDocument document(body);
        const auto object = document.root().object();
        const auto text = [&](std::string_view key) {
            const auto member = object ? object->find(key) : std::nullopt;
            return member ? member->string() : std::nullopt;
        };
        return {text("error"), text("code")};
    } catch (const DecodingError &) {
        return {};
    }
}

} // namespace

void throwIfError(int status, QByteArrayView body) {
    if (status >= 200 && status <= 299)
        return;
    const ErrorBody said = readErrorBody(body);
    const QString message = said.error.value_or(u"HTTP %1"_s.arg(status));
    if (status == 429)
        throw APIError::rateLimited(message);
    if (status == 403 && message.contains(u"csrf"_s, Qt::CaseInsensitive))
        throw APIError::csrf(message);
    if (status == 401)
        throw APIError::unauthorized(message);
    throw APIError::server(status, message, said.code);
}

bool isCancellation(const std::exception &error) {
    if (const auto *api = dynamic_cast<const APIError *>(&error))
        return api->kind() == APIError::Kind::Cancelled;
    return dynamic_cast<const Cancelled *>(&error) != nullptr;
}

bool isUnauthorized(const std::exception &error) {
    const auto *api = dynamic_cast<const APIError *>(&error);
    return api && api->kind() == APIError::Kind::Unauthorized;
}

QString errorText(const std::exception &error) {
    return QString::fromUtf8(error.what());
}

} // namespace kiv::net
