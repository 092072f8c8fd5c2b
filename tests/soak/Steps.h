#pragma once

namespace kiv::soak {

struct Stage;

/// Something that happens in a run.
struct Step {
    const char *name;
    int weight; ///< how often it comes, beside the others
    bool (*isPossible)(Stage &);
    void (*take)(Stage &);
};

/// One step of those that are possible now.
const Step &nextStep(Stage &stage);

} // namespace kiv::soak
