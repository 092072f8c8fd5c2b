#include "language/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace kiv {

using namespace Qt::StringLiterals;

void Translations::use(const QLocale &locale) {
    QLocale::setDefault(locale);
    // A translator that goes away is no longer asked.
    m_own.reset();
    m_library.reset();
    const QString language = QLocale::languageToCode(locale.language());
    auto library = std::make_unique<QTranslator>();
    if (library->load(u"qtbase_"_s + language,
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        m_library = std::move(library);
        QCoreApplication::installTranslator(m_library.get());
    }
    m_own = std::make_unique<QTranslator>();
    if (!m_own->load(u":/kiv/translations/kiv_%1.qm"_s.arg(language)))
        qFatal("There are no words in %s", qPrintable(language));
    QCoreApplication::installTranslator(m_own.get());
}

} // namespace kiv
