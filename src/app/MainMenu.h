#pragma once

#include "ui/shell/MenuDescription.h"

namespace kiv::app::MainMenu {

/// The main menu; the account's entries follow whether somebody is signed in.
QList<ui::MenuDescription> build(bool signedIn);

} // namespace kiv::app::MainMenu
