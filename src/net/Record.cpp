#include "net/Record.h"

#include <string>

namespace kiv::net {

namespace {

std::string describe(Place place) {
    std::string text = "The reply cannot be read: ";
    text += place.record;
    if (!place.key.empty()) {
        text += '.';
        text += place.key;
    }
    return text;
}

} // namespace

void throwMissing(Place place) {
    throw DecodingError(describe(place) + " is missing.");
}

void throwWrongType(Place place, std::string_view expected) {
    throw DecodingError(describe(place) + " is not " + std::string(expected) + '.');
}

} // namespace kiv::net
