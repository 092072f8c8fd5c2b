#pragma once

#include <QObject>
#include <QUrl>

namespace kiv::net {

/// Whether the machine is online. Requests wait for it instead of failing at once.
class Connectivity : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Whether an attempt to connect to `url` makes sense now.
    virtual bool reaches(const QUrl &url) const = 0;

Q_SIGNALS:
    void changed();
};

/// What the operating system says. Where it says nothing, the machine counts as online; this
/// computer itself can always be reached.
class SystemConnectivity : public Connectivity {
    Q_OBJECT
public:
    explicit SystemConnectivity(QObject *parent = nullptr);
    bool reaches(const QUrl &url) const override;
};

} // namespace kiv::net
