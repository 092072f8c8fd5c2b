#pragma once

#include <QString>

/// What has to be settled before the engine starts, since it has no way back then.
namespace kiv::web::EngineGuard {

enum class Use { Pages, Calls };

/// Why the engine would end the process, said of what it is wanted for; empty when it will run.
QString refusal(Use use);

/// Tells the engine the theme, which it takes from its command line alone.
void chooseFlags(bool dark);

} // namespace kiv::web::EngineGuard
