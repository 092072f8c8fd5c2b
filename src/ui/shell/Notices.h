#pragma once

#include <QObject>
#include <QtQmlIntegration>

namespace kiv::ui {

/// A work of others that the program is made with.
struct Notice {
    Q_GADGET
    QML_VALUE_TYPE(notice)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString part MEMBER part)
    Q_PROPERTY(QString licence MEMBER licence)
    Q_PROPERTY(QString holder MEMBER holder)
public:
    QString name;
    QString part; ///< what it does in the program
    QString licence;
    QString holder;
};

/// The works of others, as packaging lists them.
class Notices : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QList<kiv::ui::Notice> all READ all CONSTANT)
public:
    using QObject::QObject;

    static QList<Notice> all();
};

} // namespace kiv::ui
