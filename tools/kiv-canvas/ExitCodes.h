#pragma once

namespace kiv::tools {

/// How the previewer ends when it does not succeed.
enum ExitCode {
    NothingToDraw = 2,
    UsageFailure = 64,
    UnreadableInput = 66,
    MissingProgram = 69,
    UnwritableOutput = 73,
};

} // namespace kiv::tools
