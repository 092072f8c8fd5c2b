#pragma once

#include "app/Application.h"
#include "driver/WindowDriver.h"

#include <QDir>

namespace kiv::tour {

/// Something to ask and the scene that should come of it.
struct Stop {
    QString question;
    QString art; ///< also the name of its pictures
};

/// The stops of the tour: one for each scene.
QList<Stop> stops();

/// Walks through the program as a new user: signs up, asks what the stops ask, then looks at the
/// history and at a conversation with markdown, replies and an attachment, and calls KIV.
class Tour {
public:
    Tour(app::Application &application, const QDir &pictures);

    /// Prints one line a stop; true when every scene was drawn.
    bool take();

private:
    bool signUp();
    bool ask(const QString &question);
    bool visit(const Stop &stop);
    /// Opens a page of the platform in the canvas.
    bool visitPage();
    bool converse();
    /// Asks KIV by voice and waits for the answer; the microphone says the question.
    bool placeCall();
    /// Waits until the answer is whole.
    bool answered() const;
    /// Lets what moves on the screen come to its end.
    void rest() const;
    QString save(const QString &name) const;

    app::Application &m_application;
    driver::WindowDriver m_driver;
    QDir m_pictures;
};

} // namespace kiv::tour
