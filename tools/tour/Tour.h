#pragma once

#include "app/Application.h"
#include "driver/WindowDriver.h"

#include <QDir>

namespace kiv::tour {

/// Something to ask and the scene that should come of it.
struct Stop {
    QString question;
    QString art;
    QString file; ///< name of the picture, without its ending
};

/// The stops of the tour: one for each thing that works.
QList<Stop> stops();

/// Walks through the program as a new user: signs up, then asks what the stops ask.
class Tour {
public:
    Tour(app::Application &application, const QDir &pictures);

    /// Prints one line a stop; true when every scene was drawn.
    bool take();

private:
    bool signUp();
    bool visit(const Stop &stop);
    /// Lets what moves on the screen come to its end.
    void rest() const;
    QString save(const QString &name) const;

    app::Application &m_application;
    driver::WindowDriver m_driver;
    QDir m_pictures;
};

} // namespace kiv::tour
