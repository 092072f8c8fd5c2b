#pragma once

#include <QString>
#include <QUrl>

#include <stdexcept>

namespace kiv {

/// A base URL that the program refuses to talk to; `what()` is a line for the person.
class BaseUrlError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads a backend address: https anywhere, plain http on loopback only. The result has no
/// trailing slash, query or fragment, so that paths are appended to it.
/// Throws BaseUrlError.
QUrl parseBaseUrl(const QString &text);

/// Whether a URL's host is this computer, which needs no network and no encryption.
bool isLoopback(const QString &host);

/// Whether an address that a server names is one of the web, not of a file or another program.
bool isWebAddress(const QUrl &address);

/// A picture's address as a server names it; empty when that is none of the web and none on the
/// server itself, but a file or something else of this computer.
QString pictureAddress(const QString &named);

/// `base` with the relative `path` appended as further path components.
/// `path` is taken as written: a caller percent-encodes what it inserts (see pathSegment).
QUrl appendPath(const QUrl &base, const QString &path);

/// One path component, percent-encoded so that it can neither climb nor add a query.
QString pathSegment(const QString &text);

/// The port that a URL leads to: where it names none, that of its scheme (the web's, or a
/// socket's).
int portOf(const QUrl &url);

/// Whether two URLs have scheme, host and port in common.
bool isSameOrigin(const QUrl &one, const QUrl &other);

/// The origin of a URL as the Origin header writes it: scheme, host and an explicit port.
QString originOf(const QUrl &url);

} // namespace kiv
