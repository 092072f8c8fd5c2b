#pragma once

#include <QLocale>
#include <QTranslator>

#include <memory>

namespace kiv {

/// The words of the screens in the language of a locale, for as long as this lives. English is what
/// the texts in the code are written in; its own file has their plurals.
class Translations {
public:
    /// From now on texts are looked up for `locale`, which becomes the default locale.
    void use(const QLocale &locale);

private:
    std::unique_ptr<QTranslator> m_own;
    std::unique_ptr<QTranslator> m_library; ///< what Qt itself says; absent where it is English
};

} // namespace kiv
