#include "voice/SpokenText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr qsizetype mostSentences = 2;
constexpr qsizetype mostFigures = 3;

struct Rule {
    QRegularExpression pattern;
    QString words;
};

QString applied(QString text, const QList<Rule> &rules) {
    for (const Rule &rule : rules) {
        text.replace(rule.pattern, rule.words);
    }
    return text;
}

QRegularExpression expression(const QString &pattern) {
    return QRegularExpression(pattern, QRegularExpression::MultilineOption |
                                           QRegularExpression::UseUnicodePropertiesOption);
}

bool isRussian(const QString &text) {
    return std::ranges::any_of(text, [](QChar c) { return c.script() == QChar::Script_Cyrillic; });
}

/// Takes the fenced blocks out of the text; the result is the first one that holds an object.
QJsonObject takeBlocks(QString &text) {
    static const QRegularExpression fence(u"```[^\\n]*\\n(.*?)(```|$)"_s,
                                          QRegularExpression::DotMatchesEverythingOption);
    QJsonObject found;
    for (auto blocks = fence.globalMatch(text); blocks.hasNext() && found.isEmpty();) {
        found = QJsonDocument::fromJson(blocks.next().captured(1).toUtf8()).object();
    }
    text.remove(fence);
    return found;
}

/// What is laid out beside the answer, as one sentence: its first few labels with their figures.
QString figuresOf(const QJsonObject &block) {
    const QJsonArray entries =
        block.contains(u"items"_s) ? block[u"items"_s].toArray() : block[u"points"_s].toArray();
    QStringList said;
    for (const QJsonValue &entry : entries) {
        const QString display = entry[u"display"_s].toString();
        if (!display.isEmpty() && said.size() < mostFigures) {
            said.append(u"%1: %2"_s.arg(entry[u"label"_s].toString(), display));
        }
    }
    return said.isEmpty() ? QString() : said.join(u"; "_s) + u'.';
}

QString withoutMarkup(const QString &text) {
    static const QList<Rule> rules{
        {expression(u"^\\s*(OPTIONS|ВАРИАНТЫ):.*$"_s), {}},
        {expression(u"^\\s*\\|.*$"_s), {}},
        {expression(u"^\\s*([-*_])\\1{2,}\\s*$"_s), {}},
        {expression(u"!?\\[([^\\]]*)\\]\\([^)]*\\)"_s), u"\\1"_s},
        {expression(u"https?://\\S+"_s), {}},
        {expression(u"^\\s*([-*+]|\\d+\\.|>|#{1,6})\\s+(\\[[ xX]\\]\\s+)?"_s), {}},
        {expression(u"[*`~]|\\b_|_\\b"_s), {}},
    };
    return applied(text, rules);
}

/// Sentences in order; a line that ends without a stop is one.
QStringList sentencesOf(const QString &text) {
    static const QRegularExpression stop = expression(u"(?<=[.!?…])\\s+"_s);
    QStringList sentences;
    for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts)) {
        for (QString sentence : line.simplified().split(stop, Qt::SkipEmptyParts)) {
            if (sentence.endsWith(u':') || sentence.endsWith(u';') || sentence.endsWith(u',')) {
                sentence.chop(1);
            }
            if (!sentence.isEmpty() && sentence.back().isLetterOrNumber()) {
                sentence += u'.';
            }
            if (!sentence.isEmpty()) {
                sentences.append(sentence);
            }
        }
    }
    return sentences;
}

const QList<Rule> &englishFigures() {
    static const QList<Rule> rules{
        {expression(u"€([\\d,.]*\\d)"_s), u"\\1 euros"_s},
        {expression(u"\\+(?=\\d)"_s), u"plus "_s},
        {expression(u"[−](?=\\d)"_s), u"minus "_s},
        {expression(u"(\\d) ?%"_s), u"\\1 percent"_s},
        {expression(u"(\\d) h\\b"_s), u"\\1 hours"_s},
        {expression(u"(\\d) m\\b"_s), u"\\1 minutes"_s},
        {expression(u"(\\d) ms\\b"_s), u"\\1 milliseconds"_s},
        {expression(u"\\s*[·→|]\\s*"_s), u", "_s},
        {expression(u"\\s*[—–]\\s*"_s), u", "_s},
    };
    return rules;
}

const QList<Rule> &russianFigures() {
    static const QList<Rule> rules{
        {expression(u"€([\\d,.]*\\d)"_s), u"\\1 евро"_s},
        {expression(u"\\+(?=\\d)"_s), u"плюс "_s},
        {expression(u"[−](?=\\d)"_s), u"минус "_s},
        {expression(u"(\\d) ?%"_s), u"\\1 процентов"_s},
        {expression(u"(\\d) h\\b"_s), u"\\1 часов"_s},
        {expression(u"(\\d) m\\b"_s), u"\\1 минут"_s},
        {expression(u"\\s*[·→|]\\s*"_s), u", "_s},
        {expression(u"\\s*[—–]\\s*"_s), u", "_s},
    };
    return rules;
}

} // namespace

QString spokenFigures(const QString &text) {
    return applied(text, isRussian(text) ? russianFigures() : englishFigures()).simplified();
}

QString spokenText(const QString &answer) {
    QString prose = answer;
    const QJsonObject block = takeBlocks(prose);
    QStringList said = sentencesOf(withoutMarkup(prose)).mid(0, mostSentences);
    const QString figures = figuresOf(block);
    if (!figures.isEmpty()) {
        said.append(figures);
    }
    if (said.isEmpty()) { // a table or a link alone
        said.append(isRussian(answer) ? u"Подробности в чате."_s
                                      : u"The details are in the chat."_s);
    }
    return spokenFigures(said.join(u' '));
}

} // namespace kiv::sandbox
