#include "store/Scope.h"

#include <array>

namespace kiv::store {

QString railColor(qsizetype position) {
    static constexpr std::array colors{"#1f6ff2", "#0f9f7a", "#7c5cff",
                                       "#f59e0b", "#e0484a", "#0ea5e9"};
    return QString::fromLatin1(colors[static_cast<size_t>(position) % colors.size()]);
}

} // namespace kiv::store
