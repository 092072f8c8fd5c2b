#include "text/MDParser.h"

#include <QCache>

#include <algorithm>

namespace kiv::text::MDParser {

namespace {

/// What the cache holds of a text.
struct BlocksBox {
    QList<MDBlock> blocks;
};

constexpr qsizetype capacity = 400;

/// How many places a text takes: one for an answer of usual length, a quarter of all at most.
qsizetype placesOf(const QString &text) {
    constexpr qsizetype usualLength = 4096;
    return std::min(1 + text.size() / usualLength, capacity / 4);
}

} // namespace

QList<MDBlock> blocks(const QString &text) {
    static QCache<QString, BlocksBox> cache(capacity);
    if (const BlocksBox *box = cache.object(text))
        return box->blocks;
    auto box = std::make_unique<BlocksBox>(parse(text));
    QList<MDBlock> result = box->blocks;
    cache.insert(text, box.release(), placesOf(text));
    return result;
}

} // namespace kiv::text::MDParser
