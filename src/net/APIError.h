#pragma once

#include <QByteArrayView>
#include <QString>

#include <exception>
#include <optional>

namespace kiv::net {

/// Why a call to the backend failed. Every call throws this type, except that a body that cannot
/// be read throws kiv::DecodingError.
class APIError : public std::exception {
public:
    enum class Kind { Transport, Unauthorized, Csrf, RateLimited, Server, Cancelled };

    /// The request never got a whole answer.
    static APIError transport(QString message);
    static APIError unauthorized(QString message);
    /// The backend's cross-site check turned the request down.
    static APIError csrf(QString message);
    static APIError rateLimited(QString message);
    /// Any other refusal; `code` is the backend's own word for it.
    static APIError server(int status, QString message, std::optional<QString> code = {});
    /// The caller gave the request up.
    static APIError cancelled();

    Kind kind() const { return m_kind; }
    const QString &message() const { return m_message; }
    /// The HTTP status of a Server error, else 0.
    int status() const { return m_status; }
    const std::optional<QString> &code() const { return m_code; }

    /// The text for the person.
    QString errorDescription() const;
    /// The same text in UTF-8.
    const char *what() const noexcept override { return m_what.constData(); }

private:
    APIError(Kind kind, QString message);

    Kind m_kind;
    QString m_message;
    int m_status = 0;
    std::optional<QString> m_code;
    QByteArray m_what;
};

/// Throws the error that an answer with a status outside 200 to 299 stands for.
void throwIfError(int status, QByteArrayView body);

/// Whether an error only says that its call was given up on purpose; callers stay silent then.
bool isCancellation(const std::exception &error);

/// Whether the backend knows no session of whoever called.
bool isUnauthorized(const std::exception &error);

/// The text that the person sees for a failed call, whatever it threw.
QString errorText(const std::exception &error);

} // namespace kiv::net
