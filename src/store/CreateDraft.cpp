#include "store/CreateDraft.h"

#include <QCoreApplication>

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

QString words(const char *text) {
    return QCoreApplication::translate("CreateDraft", text);
}

} // namespace

CreateDraft draftOf(const CreateTemplate &source) {
    return {source.id, source.name, source.text, source.tools, source.autonomy};
}

void CreateDraft::fill(const CreateTemplate &source, const CreateDraft &filled) {
    const CreateDraft proposed = draftOf(source);
    const auto take = [&](auto CreateDraft::*member) {
        if (this->*member == filled.*member)
            this->*member = proposed.*member;
    };
    take(&CreateDraft::name);
    take(&CreateDraft::text);
    take(&CreateDraft::tools);
    take(&CreateDraft::autonomy);
    templateId = source.id;
}

QString CreateDraft::description(const CreateCatalogue &catalogue) const {
    QStringList chosen;
    for (const CreateChoice &tool : catalogue.tools) {
        if (tools.contains(tool.id))
            chosen.append(tool.title);
    }
    QStringList lines{
        chosen.isEmpty()
            ? words(QT_TRANSLATE_NOOP("CreateDraft", "Tools: none"))
            : words(QT_TRANSLATE_NOOP("CreateDraft", "Tools: %1")).arg(chosen.join(u", "_s))};
    for (const CreateChoice &level : catalogue.autonomy) {
        if (level.id == autonomy)
            lines.append(words(QT_TRANSLATE_NOOP("CreateDraft", "Autonomy: %1. %2."))
                             .arg(level.title, level.summary));
    }
    return lines.join(u'\n');
}

} // namespace kiv::store
