#pragma once

#include <QString>

/// What of a line may stand in a log that a person hands to somebody else.
namespace kiv::desktop::LogText {

/// The line without credentials, addresses of people, what follows the path of an address of the
/// web, the name of the home folder and long quotations; on one line and not endless.
QString redacted(const QString &line);

/// Makes the patterns ready, which takes longer than a line does. Any thread may.
void prepare();

} // namespace kiv::desktop::LogText
