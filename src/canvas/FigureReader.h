#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace kiv::canvas {

/// Walks over a figure from left to right.
class FigureReader {
public:
    explicit FigureReader(QStringView text) : m_text(text) {}

    /// The null character behind the end.
    QChar peek(qsizetype ahead = 0) const {
        return m_at + ahead < m_text.size() ? m_text.at(m_at + ahead) : QChar();
    }
    QStringView rest() const { return m_text.sliced(m_at); }
    void skip(qsizetype count) { m_at += count; }
    /// Spaces of any width, as they also stand between thousands.
    void skipSpaces();
    bool take(QChar c);
    bool take(QStringView word);

    /// Digits with separators of thousands and one decimal sign.
    std::optional<double> number();
    /// Whether the point of the last number may stand between thousands: "1.200".
    bool mayGroup() const { return m_mayGroup; }

    static bool isSpace(QChar c) { return c == u' ' || c == u'\u00a0' || c == u'\u202f'; }
    static bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

private:
    QString run();
    qsizetype digitsBehind() const;

    QStringView m_text;
    qsizetype m_at = 0;
    bool m_mayGroup = false;
};

} // namespace kiv::canvas
