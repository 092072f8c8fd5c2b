#pragma once

#include "text/BlockLinks.h"

#include <QtQmlIntegration>

namespace kiv::ui {

/// A link of a message as a menu names it.
struct MessageLink : text::BlockLink {
    Q_GADGET
    QML_VALUE_TYPE(messageLink)
    Q_PROPERTY(QString words READ line)
    Q_PROPERTY(QString place READ place)
    Q_PROPERTY(QString target MEMBER target)
public:
    MessageLink() = default;
    MessageLink(text::BlockLink link) : BlockLink(std::move(link)) {}

    /// Its words in one line.
    QString line() const { return words.simplified(); }
    /// Whom it leads to: a host or an address; for a page of the platform, the page.
    QString place() const;
    friend bool operator==(const MessageLink &, const MessageLink &) = default;
};

} // namespace kiv::ui
