#include "support/HostileAnswers.h"

#include <algorithm>

namespace kiv::test {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype length = 1'000'000;

} // namespace

QString repeated(const QString &piece) {
    return piece.repeated(length / piece.size() + 1).first(length);
}

QList<std::pair<QByteArray, QString>> hostileAnswers() {
    QList<std::pair<QByteArray, QString>> answers;
    const auto add = [&answers](const QByteArray &name, const QString &text) {
        answers.append({name, text.first(std::min(text.size(), length))});
    };
    const QStringList pieces{u"|"_s,           u"["_s,          u"-"_s,
                             u"7"_s,           u"`"_s,          u" "_s,
                             u"\n"_s,          u"("_s,          u"*"_s,
                             u":"_s,           u"\t"_s,         u"~"_s,
                             u"€"_s,           u"/"_s,          u"#"_s,
                             u"😀"_s,           u"- "_s,         u"[]("_s,
                             u"[](/"_s,        u"](/x "_s,      u"https://a/p/"_s,
                             u" https://a"_s,  u"OPTIONS: "_s,  u"\nOPTIONS: a | b"_s,
                             u"```view\n"_s,   u"``` "_s,       u"```\n~~~\n"_s,
                             u"- a: 1\n"_s,    u"a: 1\n"_s,     u"a — 1\n\n"_s,
                             u"|---"_s,        u"|a\n|---\n"_s, u"a|b\n---|---\n"_s,
                             u"| a | 1 |\n"_s, u"1,"_s,         u"1. "_s,
                             u"5 - "_s,        u"(+4%)"_s,      u"\\|"_s,
                             u"\r"_s,          u"a: b: "_s};
    for (const QString &piece : pieces)
        add((u"repeated "_s + piece).toUtf8(), repeated(piece));
    add("open block", u"```view\n"_s + repeated(u"{"_s));
    add("block of spaces", u"```view"_s + repeated(u" "_s));
    add("options of spaces", u"OPTIONS: a"_s + repeated(u" "_s).chopped(20) + u"b"_s);
    add("many options", u"OPTIONS: "_s + repeated(u"a|"_s));
    add("deep JSON", u"```view\n"_s + repeated(u"["_s).chopped(20) + u"\n```"_s);
    add("wide key figures",
        u"```kpi\n["_s + repeated(u"\"a: 1\","_s).first(length - 28) + u"\"a: 1\"]\n```"_s);
    add("long table", u"| a | b |\n|---|---|\n"_s + repeated(u"| x | 1 |\n"_s));
    add("wide table",
        repeated(u"|a"_s).first(length / 2) + u'\n' + repeated(u"|---"_s).first(length / 2));
    add("wide and long table", u"|a"_s.repeated(5000) + u'\n' + u"|---"_s.repeated(5000) + u'\n' +
                                   u"|\n"_s.repeated(5000));
    add("blank divider", u"a|b --- c\n"_s + QString(100'000, u' ') + u'x');
    add("many wide tables", repeated(u"|a"_s.repeated(200) + u'\n' + u"|---"_s.repeated(200) +
                                     u'\n' + u"|\n"_s.repeated(600) + u'\n'));
    add("rows of unlike length", u"```view\n{\"kind\":\"table\",\"columns\":[\"a\"],\"rows\":[["_s +
                                     u"\"\","_s.repeated(20'000) + u"\"\"]"_s +
                                     u",[]"_s.repeated(20'000) + u"]}\n```"_s);
    add("series of unlike labels", [] {
        QString series;
        for (int i = 0; i < 5000; ++i)
            series += u"{\"points\":[\"%1\"]},"_s.arg(i);
        return u"```view\n{\"kind\":\"line\",\"series\":["_s + series.chopped(1) + u"]}\n```"_s;
    }());
    add("long list item", u"- a: 1\n- b: "_s + repeated(u"1"_s));
    add("long item of marks", u"- [a: 1](b\n- "_s + repeated(u"[a]"_s));
    add("many owners", [] {
        QString points;
        for (int i = 0; points.size() < length - 100; ++i)
            points += u"{\"label\":\"a\",\"value\":1,\"hint\":\"o%1\"},"_s.arg(i);
        return u"```view\n{\"kind\":\"timeline\",\"points\":["_s + points.chopped(1) + u"]}\n```"_s;
    }());
    return answers;
}

} // namespace kiv::test
