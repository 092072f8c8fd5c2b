#include "canvas/AnswerBlock.h"

#include "canvas/ProseLifts.h"
#include "canvas/ProseLines.h"
#include "canvas/SpecReader.h"

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

/// An object of a kpi block need not say so; an array is a list of key figures there.
std::optional<ViewSpec> specOfBlock(const QString &language, QStringView body) {
    const auto json = JVal::parse(body.toUtf8());
    if (!json)
        return std::nullopt;
    const bool isKpi = language == u"kpi";
    if (const JVal::Object *object = json->asObj()) {
        JVal::Object members = *object;
        if (isKpi && !members.contains(u"kind"_s) && !members.contains(u"type"_s))
            members.insert(u"kind"_s, JVal::str(u"kpi"_s));
        const JVal completed = JVal::obj(members);
        return CanvasEngine::spec(completed, completed.canonical());
    }
    const JVal::Array *elements = json->asArr();
    if (!elements || !isKpi)
        return std::nullopt;
    ViewSpec spec;
    spec.kind = u"kpi"_s;
    for (const JVal &element : *elements)
        spec.items.append(CanvasEngine::item(element));
    spec.jsonKey = json->canonical();
    return spec;
}

} // namespace

const Regex &CanvasEngine::fenceRegex() {
    // The words alone in either case: for a set of all characters that takes 10 ms to make ready.
    static const Regex pattern(u"```[ \\t]*((?i:view|chart|kpi))[ \\t]*\\r?\\n([\\s\\S]*?)```");
    return pattern;
}

const Regex &CanvasEngine::closedFenceRe() {
    static const Regex pattern(u"```[ \\t]*((?i:view|chart|kpi))[ \\t]*\\r?\\n[\\s\\S]*?```");
    return pattern;
}

CanvasEngine::DrawableAnswer CanvasEngine::extractViewSpec(const QString &text,
                                                           const std::optional<JVal> &view) {
    DrawableAnswer answer{text, std::nullopt};
    if (const auto block = fenceRegex().find(text)) {
        const QString language = block->captured(1).toString().toLower();
        answer.spec = specOfBlock(language, block->captured(2));
        if (answer.spec)
            answer.text =
                closedUp(text.first(block->range().start) + text.sliced(block->range().end()));
    }
    if (!answer.spec && view)
        answer.spec = spec(*view, view->canonical());
    if (!renderable(answer.spec))
        answer.spec.reset();
    answer.isLifted = !answer.spec;
    if (!answer.spec) {
        if (DrawableAnswer lifted = liftGfmTable(answer.text); lifted.spec)
            answer = {lifted.text, lifted.spec, true};
    }
    if (!answer.spec)
        answer.spec = liftList(answer.text);
    if (!answer.spec)
        answer.spec = liftKv(answer.text);
    answer.text = answer.text.trimmed();
    return answer;
}

} // namespace kiv::canvas
