#include "PeerUser.h"

#include <QByteArrayList>
#include <QFile>

#include <algorithm>
#include <optional>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

/// Whose the socket is that connects `from` with `to`, ports of loopback, in the system's table of
/// them. A line has both ends in hexadecimal, and the user in the fifth column behind them.
std::optional<uid_t> ownerOf(const QString &table, const QByteArray &loopback, int from, int to) {
    QFile file(table);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const auto end = [&loopback](int port) {
        return loopback + ':' + QByteArray::number(port, 16).toUpper().rightJustified(4, '0') + ' ';
    };
    constexpr qsizetype rest = 200;
    const QByteArray sockets = file.readAll();
    const qsizetype line = sockets.indexOf(end(from) + end(to));
    const QByteArrayList columns =
        sockets.mid(std::max<qsizetype>(line, 0), rest).simplified().split(' ');
    return line >= 0 && columns.size() > 6 ? std::optional(columns[6].toUInt()) : std::nullopt;
}

} // namespace

bool isOfAnotherUser(int peerPort, int ownPort) {
    auto owner = ownerOf(u"/proc/net/tcp"_s, "0100007F", peerPort, ownPort);
    if (!owner) { // by the address that stands for the other
        owner = ownerOf(u"/proc/net/tcp6"_s, "0000000000000000FFFF00000100007F", peerPort, ownPort);
    }
    return owner && *owner != ::geteuid();
}

} // namespace kiv::sandbox
