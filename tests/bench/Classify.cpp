// A question's intent, beside the same patterns tried one after the other through PCRE2's JIT.

#include "Measure.h"

#include "canvas/CanvasIntents.h"

#include <benchmark/benchmark.h>

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

namespace kiv::bench {

using namespace Qt::StringLiterals;

namespace {

struct Pattern {
    pcre2_code *code;
    pcre2_match_data *match;
};

Pattern compiled(const QString &text) {
    int error = 0;
    PCRE2_SIZE at = 0;
    pcre2_code *code = pcre2_compile(text.utf16(), static_cast<PCRE2_SIZE>(text.size()),
                                     PCRE2_CASELESS | PCRE2_UTF | PCRE2_UCP, &error, &at, nullptr);
    if (!code || pcre2_jit_compile(code, PCRE2_JIT_COMPLETE) != 0)
        qFatal("The pattern %s does not compile", qPrintable(text));
    return {code, pcre2_match_data_create_from_pattern(code, nullptr)};
}

bool matches(const Pattern &pattern, const QString &text) {
    return pcre2_match(pattern.code, text.utf16(), static_cast<PCRE2_SIZE>(text.size()), 0, 0,
                       pattern.match, nullptr) >= 0;
}

} // namespace

QList<Row> classify() {
    // Nothing in it matches: every rule is tried.
    const QString question =
        u"Could you please tell me a bit more, in two or three short lines, of "
        "that nice thing from Tuesday? Спасибо, очень жду!"_s;
    std::vector<Pattern> patterns;
    for (const auto &rule : canvas::CanvasIntents::rules())
        patterns.push_back(compiled(rule.pattern()));

    Row row{.name = u"classify"_s, .peer = u"PCRE2 JIT"_s};
    row.figure = measure(row.name, [&] {
        auto intent = canvas::CanvasIntents::classify(question);
        benchmark::DoNotOptimize(intent);
    });
    row.peerFigure = measure(row.peer, [&] {
        const QString lower = question.toLower();
        int first = -1;
        for (size_t rule = 0; rule < patterns.size() && first < 0; ++rule) {
            if (matches(patterns[rule], lower))
                first = static_cast<int>(rule);
        }
        benchmark::DoNotOptimize(first);
    });
    row.target = 200e3;
    return {row};
}

} // namespace kiv::bench
