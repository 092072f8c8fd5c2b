#include "Asked.h"

#include <QJsonDocument>
#include <QLocale>
#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr QChar minus(0x2212);

/// Whether the text names something by this whole word or words.
bool names(const QString &text, const QString &name) {
    const QRegularExpression word(u"\\b%1\\b"_s.arg(QRegularExpression::escape(name)),
                                  QRegularExpression::CaseInsensitiveOption |
                                      QRegularExpression::UseUnicodePropertiesOption);
    return word.match(text).hasMatch();
}

/// The project that a question to everybody names, so that "What blocks Orchard?" is about one.
QString namedProject(Sql &sql, const Question &question) {
    const auto rows =
        sql.rows(u"SELECT slug, label FROM projects WHERE account = ?"_s, {question.scope.account});
    for (const Row &row : rows) {
        if (names(question.text, row.text(1)))
            return row.text(0);
    }
    return {};
}

/// An agent's name and project.
std::optional<Row> namedAgent(Sql &sql, const Question &question) {
    const auto rows = sql.rows(u"SELECT a.name, COALESCE(m.slug, '') FROM agents a"
                               u" LEFT JOIN members m ON m.agent = a.id"
                               u" WHERE a.account = ? AND a.kind = 'agent'"_s,
                               {question.scope.account});
    for (const Row &row : rows) {
        if (names(question.text, row.text(0)))
            return row;
    }
    return std::nullopt;
}

} // namespace

bool isRussian(const QString &text) {
    return std::ranges::any_of(text, [](QChar c) { return c.script() == QChar::Script_Cyrillic; });
}

Asked::Asked(Sql &sql, const Question &question)
    : m_sql(sql),
      m_question(question),
      m_slug(question.scope.slug),
      m_agent(question.scope.agent),
      m_russian(isRussian(question.text)) {
    if (m_slug.isEmpty() && m_agent.isEmpty()) {
        m_slug = namedProject(sql, question);
        const auto named = m_slug.isEmpty() ? namedAgent(sql, question) : std::nullopt;
        if (named) {
            m_agent = named->text(0);
            m_slug = named->text(1);
        }
    }
    const auto row =
        sql.row(u"SELECT as_of FROM accounts WHERE id = ?"_s, {question.scope.account});
    m_asOf = row ? QDate::fromString(row->text(0), Qt::ISODate) : QDate::currentDate();
}

QString Asked::say(const QString &english, const QString &russian) const {
    return m_russian ? russian : english;
}

QString Asked::projectLabel(const QString &slug) const {
    const auto row = m_sql.row(u"SELECT label FROM projects WHERE account = ? AND slug = ?"_s,
                               {account(), slug});
    return row ? row->text(0) : slug;
}

QString Asked::subject() const {
    if (!m_agent.isEmpty())
        return m_agent;
    return m_slug.isEmpty() ? say(u"all projects"_s, u"все проекты"_s) : projectLabel(m_slug);
}

QList<Row> Asked::rows(const QString &columns, const QString &table, const QString &rest,
                       const QVariantList &more) const {
    QString statement = u"SELECT %1 FROM %2 WHERE account = ? "_s.arg(columns, table);
    QVariantList values{account()};
    if (!m_slug.isEmpty()) {
        statement += u"AND slug = ? "_s;
        values.append(m_slug);
    }
    return m_sql.rows(statement + rest, values + more);
}

QList<Row> Asked::tasks(const QString &columns, const QString &rest,
                        const QVariantList &more) const {
    if (m_agent.isEmpty())
        return rows(columns, u"tasks"_s, rest, more);
    return rows(columns, u"tasks"_s, u"AND agent = ? "_s + rest, QVariantList{m_agent} + more);
}

QString Asked::projectWith(const QString &table) const {
    const auto found = rows(u"slug"_s, table, u"LIMIT 1"_s);
    return found.isEmpty() ? QString() : found.constFirst().text(0);
}

Answer withBlock(const QString &before, const QJsonObject &view, const QString &after,
                 const QString &language) {
    const QString json = QString::fromUtf8(QJsonDocument(view).toJson(QJsonDocument::Compact));
    QString content = u"%1\n\n```%2\n%3\n```"_s.arg(before, language, json);
    if (!after.isEmpty())
        content += u"\n\n"_s + after;
    return {content};
}

QString grouped(qint64 number) {
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(number);
}

QString euros(qint64 amount) {
    return u"€"_s + grouped(amount);
}

QString cents(qint64 amount) {
    return u"€%1"_s.arg(static_cast<double>(amount) / 100, 0, 'f', 2);
}

QString percentChange(double now, double before) {
    if (before == 0)
        return u"0%"_s;
    const double change = std::round((now - before) / before * 1000) / 10;
    const QString figure = QString::number(std::abs(change), 'f', 1) + u'%';
    return change < 0 ? minus + figure : u'+' + figure;
}

QString signedWhole(qint64 number) {
    const QString figure = grouped(std::abs(number));
    return number < 0 ? minus + figure : number > 0 ? u'+' + figure : figure;
}

QString hoursMinutes(qint64 minutes) {
    return minutes < 60 ? u"%1 m"_s.arg(minutes)
                        : u"%1 h %2 m"_s.arg(minutes / 60).arg(minutes % 60);
}

QJsonArray strings(const QStringList &list) {
    return QJsonArray::fromStringList(list);
}

} // namespace kiv::sandbox
