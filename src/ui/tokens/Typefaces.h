#pragma once

#include <QString>

namespace kiv::ui {

/// Loads the face for columns of figures and sets the type of the application.
void useTypefaces();

/// Finds the fonts that the window begins with, for text of that scale. The first text of each
/// would find it as well: this is for a time in which nothing else can be done.
void findFirstFonts(qreal scale);

/// The family for code: what the system has for it, if that is one.
QString codeFamily();

} // namespace kiv::ui
