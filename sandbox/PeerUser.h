#pragma once

namespace kiv::sandbox {

/// Whether a connection on loopback comes from a program of another user of this computer. The
/// system tells on Linux alone; elsewhere nobody is known to be another.
bool isOfAnotherUser(int peerPort, int ownPort);

} // namespace kiv::sandbox
