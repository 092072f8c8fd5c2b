#include "PeerUser.h"

#include <QByteArrayList>
#include <QFile>

#include <algorithm>
#include <netinet/in.h>
#include <optional>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

/// What the system's tables of sockets say of one of them.
enum class Owner { Us, Other, Unknown };

QByteArray hex(quint32 number, int width) {
    return QByteArray::number(number, 16).toUpper().rightJustified(width, '0');
}

/// Whose the socket is that connects `from` with `to`, ports of `address`; nothing when the table
/// cannot be read. A line has both ends in hexadecimal, and behind them the user in the fifth and
/// the open file in the seventh column: 0 when its program has closed it.
std::optional<Owner> ownerOf(const QString &table, const QByteArray &address, int from, int to) {
    QFile file(table);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const auto end = [&address](int port) {
        return address + ':' + hex(static_cast<quint32>(port), 4) + ' ';
    };
    constexpr qsizetype rest = 200;
    const QByteArray sockets = file.readAll();
    const qsizetype line = sockets.indexOf(end(from) + end(to));
    const QByteArrayList columns =
        sockets.mid(std::max<qsizetype>(line, 0), rest).simplified().split(' ');
    if (line < 0 || columns.size() < 9 || columns[8] == "0")
        return Owner::Unknown;
    return columns[6].toUInt() == ::geteuid() ? Owner::Us : Owner::Other;
}

std::optional<Owner> ownerOf(int from, int to) {
    const QByteArray loopback = hex(htonl(INADDR_LOOPBACK), 8);
    const auto owner = ownerOf(u"/proc/net/tcp"_s, loopback, from, to);
    if (owner != Owner::Unknown)
        return owner;
    // By the address that stands for the other.
    const QByteArray mapped = QByteArray(16, '0') + hex(htonl(0xFFFF), 8) + loopback;
    return ownerOf(u"/proc/net/tcp6"_s, mapped, from, to).value_or(Owner::Unknown);
}

} // namespace

bool mayBeOfAnotherUser(int peerPort, int ownPort) {
    auto owner = ownerOf(peerPort, ownPort);
    if (owner == Owner::Unknown) { // a table that changes while it is read may lack a line
        owner = ownerOf(peerPort, ownPort);
    }
    return owner && *owner != Owner::Us;
}

} // namespace kiv::sandbox
