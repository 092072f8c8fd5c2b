#pragma once

#include "store/Enums.h"

#include <QList>
#include <QString>

namespace kiv::store {

/// One of several things to choose from, as a card shows it.
struct CreateChoice {
    Q_GADGET
    QML_VALUE_TYPE(createChoice)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString summary MEMBER summary)
public:
    QString id;
    QString icon;
    QString title;
    QString summary;

    friend bool operator==(const CreateChoice &, const CreateChoice &) = default;
};

/// What a new project or agent can start from.
struct CreateTemplate {
    QString id;
    QString icon;
    QString title;
    QString summary;
    QString name;         ///< proposed for what is created
    QString text;         ///< the brief of a project, the role of an agent
    QList<QString> tools; ///< ids
    QString autonomy;     ///< the id of the suggested level

    friend bool operator==(const CreateTemplate &, const CreateTemplate &) = default;
};

/// Everything that the create wizard offers. A template of a project names no tools and no level.
struct CreateCatalogue {
    QList<CreateTemplate> projects;
    QList<CreateTemplate> agents;
    QList<CreateChoice> tools;
    QList<CreateChoice> autonomy; ///< from the most careful level on

    /// What comes with the program, in the language of the screens.
    static CreateCatalogue read();

    const QList<CreateTemplate> &templates(CreateKind kind) const {
        return kind == CreateKind::Project ? projects : agents;
    }
};

} // namespace kiv::store
