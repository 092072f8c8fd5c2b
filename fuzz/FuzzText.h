#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// The input of a fuzzer as text.
inline QString fuzzText(const uint8_t *data, std::size_t size) {
    return QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
}

/// Ends the run when what must always hold does not.
inline void mustHold(bool condition) {
    if (!condition)
        std::abort();
}
