#pragma once

#include "store/Msg.h"

namespace kiv::store {

/// A conversation as Markdown: who said what and when, with the names of the files. `name` is that
/// of the one who answers. What this program said by itself, greetings and notes, is left out.
QString transcript(const QString &name, const QList<Msg> &messages);

} // namespace kiv::store
