#include "canvas/FigureReader.h"

namespace kiv::canvas {

void FigureReader::skipSpaces() {
    while (isSpace(peek()))
        ++m_at;
}

bool FigureReader::take(QChar c) {
    if (m_at >= m_text.size() || peek() != c)
        return false;
    ++m_at;
    return true;
}

bool FigureReader::take(QStringView word) {
    if (!rest().startsWith(word))
        return false;
    m_at += word.size();
    return true;
}

std::optional<double> FigureReader::number() {
    constexpr qsizetype mostDigits = 15;
    QString digits = run();
    const bool isMark = digits.size() > 1 && digits.startsWith(u'0'); // "007", "030 123 456"
    if (digits.isEmpty() || isMark)
        return std::nullopt;
    while (digits.size() <= mostDigits && digitsBehind() == 3 &&
           (isSpace(peek()) || peek() == u',' || peek() == u'_')) {
        ++m_at;
        digits += run();
    }
    if (digits.size() > mostDigits)
        return std::nullopt;
    m_mayGroup = false;
    const bool decimalComma = peek() == u',' && digitsBehind() >= 1 && digitsBehind() <= 2;
    if ((peek() == u'.' && digitsBehind() >= 1) || decimalComma) {
        m_mayGroup = digits != u"0" && digits.size() <= 3 && digitsBehind() == 3;
        ++m_at;
        digits += u'.' + run();
    }
    return digits.toDouble();
}

QString FigureReader::run() {
    const qsizetype start = m_at;
    while (isDigit(peek()))
        ++m_at;
    return m_text.sliced(start, m_at - start).toString();
}

/// How many digits follow the character at hand, 4 standing for more.
qsizetype FigureReader::digitsBehind() const {
    qsizetype count = 0;
    while (count < 4 && isDigit(peek(count + 1)))
        ++count;
    return count;
}

} // namespace kiv::canvas
