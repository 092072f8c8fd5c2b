#pragma once

#include <QString>

namespace kiv::ui {

/// Loads the face for columns of figures and sets the type of the application.
void useTypefaces();

/// The family for code: what the system has for it, if that is one.
QString codeFamily();

} // namespace kiv::ui
