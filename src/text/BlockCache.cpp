#include "text/MDParser.h"

#include <QCache>

namespace kiv::text::MDParser {

namespace {

/// What the cache holds of a text.
struct BlocksBox {
    QList<MDBlock> blocks;
};

constexpr qsizetype capacity = 400;

} // namespace

QList<MDBlock> blocks(const QString &text) {
    static QCache<QString, BlocksBox> cache(capacity);
    if (const BlocksBox *box = cache.object(text))
        return box->blocks;
    auto box = std::make_unique<BlocksBox>(parse(text));
    QList<MDBlock> result = box->blocks;
    cache.insert(text, box.release());
    return result;
}

} // namespace kiv::text::MDParser
