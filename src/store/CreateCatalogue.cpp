#include "store/CreateCatalogue.h"

#include "net/Decode.h"

#include <QFile>
#include <QLocale>

using kiv::store::CreateCatalogue;
using kiv::store::CreateChoice;
using kiv::store::CreateTemplate;

namespace kiv::net {

// clang-format off
template <>
inline constexpr auto tableOf<CreateChoice> = recordTable("CreateChoice",
    Field{&CreateChoice::id, "id"},
    Field{&CreateChoice::icon, "icon"},
    Field{&CreateChoice::title, "title"},
    Field{&CreateChoice::summary, "summary"});

template <>
inline constexpr auto tableOf<CreateTemplate> = recordTable("CreateTemplate",
    Field{&CreateTemplate::id, "id"},
    Field{&CreateTemplate::icon, "icon"},
    Field{&CreateTemplate::title, "title"},
    Field{&CreateTemplate::summary, "summary"},
    Field{&CreateTemplate::name, "name"},
    Field{&CreateTemplate::text, "text"},
    Field{&CreateTemplate::tools, "tools"},
    Field{&CreateTemplate::autonomy, "autonomy"});

template <>
inline constexpr auto tableOf<CreateCatalogue> = recordTable("CreateCatalogue",
    Field{&CreateCatalogue::projects, "projects"},
    Field{&CreateCatalogue::agents, "agents"},
    Field{&CreateCatalogue::tools, "tools"},
    Field{&CreateCatalogue::autonomy, "autonomy"});
// clang-format on

} // namespace kiv::net

namespace kiv::store {

using namespace Qt::StringLiterals;

CreateCatalogue CreateCatalogue::read() {
    const QString language = QLocale().language() == QLocale::Russian ? u"ru"_s : u"en"_s;
    QFile file(u":/kiv/create-%1.json"_s.arg(language));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("There is nothing to create from");
    try {
        return net::decodeBody<CreateCatalogue>(file.readAll());
    } catch (const DecodingError &error) {
        qFatal("What there is to create from cannot be read: %s", error.what());
    }
}

} // namespace kiv::store
