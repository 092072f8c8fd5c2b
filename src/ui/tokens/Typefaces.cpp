#include "ui/tokens/Typefaces.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>

namespace kiv::ui {

using namespace Qt::StringLiterals;

namespace {

bool loadTabularFace() {
    for (const char *style : {"Regular", "Medium", "SemiBold"}) {
        const QString file =
            u":/qt/qml/Kiv/Tokens/fonts/KivTabular-%1.otf"_s.arg(QLatin1StringView(style));
        if (QFontDatabase::addApplicationFont(file) < 0)
            qWarning("The font %s cannot be loaded", qPrintable(file));
    }
    return true;
}

QString findCodeFamily() {
    const QFontInfo system(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    if (system.fixedPitch())
        return system.family();
    for (const QString &family : {u"DejaVu Sans Mono"_s, u"SF Mono"_s, u"Consolas"_s}) {
        if (QFontDatabase::hasFamily(family))
            return family;
    }
    return u"monospace"_s;
}

} // namespace

void useTypefaces() {
    [[maybe_unused]] static const bool loaded = loadTabularFace();
    const QStringList behind{u"Segoe UI"_s, u"SF Pro Text"_s, u"Noto Sans"_s, u"sans-serif"_s};
    // A style names one family alone: what that lacks is found here.
    QFont::insertSubstitutions(u"Inter"_s, behind);
    QFont::insertSubstitutions(u"KIV Tabular"_s, QStringList{u"Inter"_s} + behind);
    QFont font(u"Inter"_s);
    font.setPixelSize(14);
    QGuiApplication::setFont(font);
}

void findFirstFonts(qreal scale) {
    struct Style {
        int size;
        QFont::Weight weight;
    };
    constexpr Style styles[] = {{11, QFont::Normal}, {11, QFont::DemiBold}, {12, QFont::Normal},
                                {12, QFont::Medium}, {12, QFont::DemiBold}, {13, QFont::Normal},
                                {13, QFont::Medium}, {13, QFont::DemiBold}, {14, QFont::Normal},
                                {14, QFont::Medium}, {14, QFont::DemiBold}};
    for (const Style &style : styles) {
        QFont font(u"Inter"_s, -1, style.weight);
        font.setPixelSize(qRound(style.size * scale));
        QFontMetricsF(font).height();
    }
}

QString codeFamily() {
    static const QString family = findCodeFamily();
    return family;
}

} // namespace kiv::ui
