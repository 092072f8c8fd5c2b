#pragma once

namespace kiv::sandbox {

/// Whether a connection on loopback may come from a program of another user of this computer, as
/// one may that is closed before it is looked at: the system does not say any more whose it was. It
/// tells on Linux alone; elsewhere nobody is known to be another.
bool mayBeOfAnotherUser(int peerPort, int ownPort);

} // namespace kiv::sandbox
