#pragma once

#include <QObject>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Where the links of all messages arrive when a person follows them: the window decides what
/// becomes of them.
class LinkOpener : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

Q_SIGNALS:
    void followed(const QString &link);
};

} // namespace kiv::ui
