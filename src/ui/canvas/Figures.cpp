#include "ui/canvas/Figures.h"

#include "canvas/SceneFigures.h"

namespace kiv::ui {

QString Figures::share(double part, double whole) {
    return whole > 0 && part >= 0 ? canvas::shareText(part, whole) : QString();
}

QString Figures::minus(QString figure) {
    return figure.replace(u'-', QChar(0x2212));
}

QString Figures::initials(const QString &name) {
    QString letters;
    const QStringList words = name.split(u' ', Qt::SkipEmptyParts);
    for (const QString &word : words) {
        // A letter beyond the basic plane is two code units.
        const bool pair = word.front().isHighSurrogate() && word.size() > 1;
        if (pair || word.front().isLetterOrNumber())
            letters += word.first(pair ? 2 : 1).toUpper();
        if (letters.size() >= 2)
            break;
    }
    return letters;
}

QString Figures::joined(QStringList words, const QString &separator) {
    words.removeAll(QString());
    return words.join(separator);
}

} // namespace kiv::ui
