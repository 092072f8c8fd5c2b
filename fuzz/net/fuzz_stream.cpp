#include "../FuzzText.h"

#include "net/LineSplitter.h"

#include <QList>

#include <array>

using namespace kiv::net;

namespace {

using Events = QList<SSERawEvent>;

/// The events of a stream that comes in pieces of these lengths, over and over.
template <std::size_t count>
Events eventsOf(QByteArrayView bytes, const std::array<qsizetype, count> &lengths) {
    LineSplitter lines;
    SSEFrameParser frames;
    Events events;
    for (std::size_t piece = 0; !bytes.isEmpty(); ++piece) {
        const qsizetype length = std::min(lengths[piece % count], bytes.size());
        lines.feed(bytes.first(length), [&](QByteArrayView line) {
            if (auto event = frames.feed(line))
                events.append(*std::move(event));
        });
        bytes = bytes.sliced(length);
    }
    return events;
}

/// The same by a plain reader: one kind of line end, one line after another.
Events plainEventsOf(QByteArray bytes) {
    bytes.replace("\r\n", "\n").replace('\r', '\n');
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    QByteArrayList lines = bytes.split('\n');
    lines.removeLast();
    SSEFrameParser frames;
    Events events;
    for (const QByteArray &line : lines) {
        if (auto event = frames.feed(line))
            events.append(*std::move(event));
    }
    return events;
}

} // namespace

/// However a stream is cut, its events are the same. The first bytes of the input say how.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    std::array<qsizetype, 4> lengths{};
    if (size < lengths.size())
        return 0;
    for (std::size_t i = 0; i < lengths.size(); ++i)
        lengths[i] = 1 + data[i] % 32;
    const QByteArray bytes(reinterpret_cast<const char *>(data + lengths.size()),
                           static_cast<qsizetype>(size - lengths.size()));
    const Events whole = eventsOf(bytes, std::array{std::max(bytes.size(), qsizetype{1})});
    mustHold(eventsOf(bytes, lengths) == whole);
    mustHold(eventsOf(bytes, std::array{qsizetype{1}}) == whole);
    mustHold(plainEventsOf(bytes) == whole);
    for (const SSERawEvent &event : whole)
        mustHold(!event.event.contains('\n') && event.data.size() < bytes.size());
    return 0;
}
