#include "voice/SpokenText.h"

#include "answers/Answer.h"

#include <QDate>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr qsizetype mostSentences = 3;
constexpr qsizetype mostBesides = 2; ///< sentences beside figures
constexpr qsizetype mostFigures = 3;

struct Rule {
    QRegularExpression pattern;
    QString words;
};

QString applied(QString text, const QList<Rule> &rules) {
    for (const Rule &rule : rules)
        text.replace(rule.pattern, rule.words);
    return text;
}

QRegularExpression expression(const QString &pattern) {
    return QRegularExpression(pattern, QRegularExpression::MultilineOption |
                                           QRegularExpression::UseUnicodePropertiesOption);
}

/// An answer in its parts: what is written, and what would be drawn.
struct Parts {
    QString prose; ///< what leads to the drawing, or what there is beside it
    QJsonDocument drawing;
};

Parts partsOf(const QString &answer) {
    static const QRegularExpression fence(u"```[^\\n]*\\n(.*?)(```|$)"_s,
                                          QRegularExpression::DotMatchesEverythingOption);
    const auto block = fence.match(answer);
    if (!block.hasMatch())
        return {answer, {}};
    const QString before = answer.first(block.capturedStart());
    return {before.trimmed().isEmpty() ? QString(answer).remove(fence) : before,
            QJsonDocument::fromJson(block.captured(1).toUtf8())};
}

/// One thing of a drawing with its figure, state or first card; empty when it has none.
QString spokenEntry(const QJsonValue &entry) {
    if (entry.isString())
        return entry.toString();
    const QString card = entry[u"points"_s][0][u"label"_s].toString();
    for (const QString &figure :
         {entry[u"display"_s].toString(), entry[u"status"_s].toString(), card}) {
        if (!figure.isEmpty()) {
            const QString name = entry[u"name"_s].toString();
            return u"%1: %2"_s.arg(name.isEmpty() ? entry[u"label"_s].toString() : name, figure);
        }
    }
    return {};
}

/// What is laid out beside the answer, as one sentence: the first few things of it.
QString figuresOf(const QJsonDocument &drawing) {
    QJsonArray entries = drawing.array();
    for (const QString &key : {u"items"_s, u"points"_s, u"columns"_s}) {
        if (entries.isEmpty() && drawing[u"rows"_s].isUndefined())
            entries = drawing[key].toArray();
    }
    QStringList said;
    for (const QJsonValue &entry : entries) {
        const QString text = spokenEntry(entry);
        if (!text.isEmpty() && said.size() < mostFigures)
            said.append(text);
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
            if (sentence.endsWith(u';') || sentence.endsWith(u','))
                sentence.chop(1);
            if (!sentence.isEmpty() && sentence.back().isLetterOrNumber())
                sentence += u'.';
            if (!sentence.isEmpty())
                sentences.append(sentence);
        }
    }
    return sentences;
}

const QList<Rule> &englishFigures() {
    static const QList<Rule> rules{
        {expression(u"€([\\d,.]*\\d)k\\b"_s), u"\\1 thousand euros"_s},
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
        {expression(u"€([\\d,.]*\\d)k\\b"_s), u"\\1 тысяч евро"_s},
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

/// 2026-11-22 as 22 November.
QString withSpokenDates(QString text, const QLocale &locale) {
    static const QRegularExpression date(u"\\b\\d{4}-\\d{2}-\\d{2}\\b"_s);
    for (auto found = date.match(text); found.hasMatch();) {
        const QDate day = QDate::fromString(found.captured(), Qt::ISODate);
        const QString words = day.isValid() ? locale.toString(day, u"d MMMM"_s) : found.captured();
        const qsizetype at = found.capturedStart();
        text.replace(at, found.capturedLength(), words);
        found = date.match(text, at + words.size());
    }
    return text;
}

} // namespace

QString spokenFigures(const QString &text) {
    const bool russian = isRussian(text);
    const QLocale locale(russian ? QLocale::Russian : QLocale::English);
    return applied(withSpokenDates(text, locale), russian ? russianFigures() : englishFigures())
        .simplified();
}

bool isLaidOut(const QString &answer) {
    static const QRegularExpression seen = expression(u"^\\s*(```|\\|)|\\]\\(|https?://"_s);
    return seen.match(answer).hasMatch();
}

QString spokenText(const QString &answer) {
    const auto [prose, drawing] = partsOf(answer);
    const QString figures = figuresOf(drawing);
    QStringList said =
        sentencesOf(withoutMarkup(prose)).mid(0, figures.isEmpty() ? mostSentences : mostBesides);
    if (!figures.isEmpty()) {
        said.append(figures);
    } else if (said.size() > 1 && said.constLast().endsWith(u':')) {
        said.removeLast(); // it leads to what cannot be said
    }
    if (said.isEmpty()) { // a table or a link alone
        said.append(isRussian(answer) ? u"Подробности в чате."_s
                                      : u"The details are in the chat."_s);
    }
    QString text = spokenFigures(said.join(u' '));
    if (text.endsWith(u':'))
        text.back() = u'.';
    return text;
}

} // namespace kiv::sandbox
