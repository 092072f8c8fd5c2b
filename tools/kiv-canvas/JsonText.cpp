#include "JsonText.h"

#include <cmath>

namespace kiv::tools {

void JsonText::value(double number) {
    constexpr double exact = 9007199254740992.; // 2^53
    if (!std::isfinite(number))
        null();
    else if (std::abs(number) <= exact && number == std::trunc(number))
        m_writer.Int64(static_cast<qint64>(number));
    else
        m_writer.Double(number);
}

} // namespace kiv::tools
