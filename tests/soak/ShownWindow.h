#pragma once

#include <memory>

namespace kiv::store {
class AppStore;
}

namespace kiv::soak {

/// The program's window, off screen.
class ShownWindow {
public:
    /// Null in a build without views. The store outlives the window.
    static std::unique_ptr<ShownWindow> open(store::AppStore &store);
    virtual ~ShownWindow() = default;
};

} // namespace kiv::soak
