#pragma once

#include <QList>
#include <QString>
#include <QStringView>

#include <memory>
#include <optional>

namespace kiv {

/// A compiled pattern in ICU syntax, run over UTF-16 in place. Immutable, so one constant serves
/// every thread. Ranges are UTF-16 code units.
class Regex {
public:
    enum Option { NoOption = 0, CaseInsensitive = 1, AnchorsMatchLines = 2 };
    Q_DECLARE_FLAGS(Options, Option)

    /// A part of the searched text; start is -1 for a group that took no part in the match.
    struct Range {
        qsizetype start = -1;
        qsizetype length = 0;
        qsizetype end() const { return start + length; }
    };

    /// One match with its groups; group 0 is the whole. Views into the searched text.
    class Match {
    public:
        Match(QStringView text, QList<Range> groups) : m_text(text), m_groups(std::move(groups)) {}
        Range range(qsizetype group = 0) const { return m_groups.at(group); }
        bool has(qsizetype group) const { return m_groups.at(group).start >= 0; }
        /// Empty for a group that took no part.
        QStringView captured(qsizetype group = 0) const;

    private:
        QStringView m_text;
        QList<Range> m_groups;
    };

    /// A pattern that does not compile ends the program: every pattern is a constant of the tree.
    explicit Regex(QStringView pattern, Options options = NoOption);
    Regex(Regex &&) noexcept;
    Regex &operator=(Regex &&) noexcept;
    ~Regex();

    /// The first match at or after `from`.
    std::optional<Match> find(QStringView text, qsizetype from = 0) const;
    bool contains(QStringView text) const { return find(text).has_value(); }
    QList<Match> findAll(QStringView text) const;
    /// Every match replaced by `replacement`, in which $1 stands for group 1.
    QString replaceAll(QStringView text, QStringView replacement) const;

private:
    struct Compiled;
    std::unique_ptr<Compiled> m_compiled;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Regex::Options)

} // namespace kiv
