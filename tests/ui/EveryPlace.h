#pragma once

#include "store/AppearanceRoom.h"
#include "store/Enums.h"
#include "ui/Gallery.h"

#include <functional>

namespace kiv::ui {

/// How the window looks while its places are visited.
struct Look {
    QSize size{1440, 900};
    store::Language language = store::Language::English;
    int textSize = store::AppearanceRoom::normalText; ///< per cent
    bool dark = false;
};

/// Opens every page, popover and dialog of the window one after the other, as a person does, and
/// calls `visit` with the name of each while it shows. A place that does not open ends the test.
void visitEveryPlace(Gallery &gallery, const Look &look,
                     const std::function<void(const QString &)> &visit);

} // namespace kiv::ui
