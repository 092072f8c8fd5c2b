#pragma once

#include <QString>

/// The links of messages, which anybody may have written.
namespace kiv::text {

/// Where a link may lead, written so that who reads it knows where that is: the web, a letter, or a
/// path on the platform's own host; empty for everything else. A name before a web address's host,
/// which can pass for the host, is left out; the host stands in the letters by which it is looked
/// up, and what is invisible or turns the direction of reading is encoded. A letter takes no files
/// along.
QString linkTarget(const QString &link);

} // namespace kiv::text
