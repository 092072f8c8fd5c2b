#include "soak/ShownWindow.h"

namespace kiv::soak {

std::unique_ptr<ShownWindow> ShownWindow::open(store::AppStore &) {
    return nullptr;
}

} // namespace kiv::soak
