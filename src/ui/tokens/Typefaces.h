#pragma once

namespace kiv::ui {

/// Loads the face for columns of figures and sets the type of the application.
void useTypefaces();

} // namespace kiv::ui
