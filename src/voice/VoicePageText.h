#pragma once

#include <QString>

namespace kiv::voice::VoicePageText {

/// The script of the voice page: it loads the voice client from the page's own host, places calls
/// through it when it is told to, and reports what happens.
QString script();
/// The whole page.
QString html();
/// A text as a script writes it: one quoted literal.
QString jsString(const QString &text);

} // namespace kiv::voice::VoicePageText
