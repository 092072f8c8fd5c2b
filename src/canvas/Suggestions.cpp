#include "canvas/Suggestions.h"

namespace kiv::canvas {

using namespace Qt::StringLiterals;

QStringList Suggestions::chips(const std::optional<QString> &project,
                               const std::optional<QString> &agent) {
    if (agent)
        return {u"What did "_s + *agent + u" do overnight?"_s,
                u"Where is "_s + *agent + u" stuck?"_s, u"How much does "_s + *agent + u" cost?"_s};
    if (project)
        return {u"Where are we against the plan?"_s, u"What's blocked in "_s + *project + u'?',
                u"Show the roadmap"_s, u"Weekly report"_s};
    return {u"What did the agents do overnight?"_s, u"Where are we against the plan?"_s,
            u"Build or buy the voice stack?"_s};
}

} // namespace kiv::canvas
