#include "Accounts.h"

#include "Http.h"
#include "base/Text.h"

#include <QHash>
#include <QJsonArray>
#include <QTime>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

enum class Kind { Line, Text, Flag, List, Zone, Hour };

struct Field {
    Kind kind;
    qsizetype longest; ///< characters; of a list, entries
};

const QHash<QString, Field> &fields() {
    static const QHash<QString, Field> table = {
        {u"full_name"_s, {Kind::Line, 120}},
        {u"handle"_s, {Kind::Line, 60}},
        {u"company_name"_s, {Kind::Line, 200}},
        {u"company_website"_s, {Kind::Line, 300}},
        {u"company_size"_s, {Kind::Line, 60}},
        {u"industry"_s, {Kind::Line, 120}},
        {u"jobTitle"_s, {Kind::Line, 120}},
        {u"preferred_sectors"_s, {Kind::List, 50}},
        {u"time_zone"_s, {Kind::Zone, 80}},
        {u"preferred_language"_s, {Kind::Line, 40}},
        {u"preferred_country"_s, {Kind::Line, 80}},
        {u"communication_style"_s, {Kind::Text, 4000}},
        {u"working_hours_start"_s, {Kind::Hour, 5}},
        {u"working_hours_end"_s, {Kind::Hour, 5}},
        {u"working_hours_days"_s, {Kind::Line, 80}},
        {u"notification_email"_s, {Kind::Flag, 0}},
        {u"notification_approvals"_s, {Kind::Flag, 0}},
        {u"default_data_sources_mode"_s, {Kind::Line, 60}},
        {u"preferred_llm_provider"_s, {Kind::Line, 120}},
        {u"preferred_llm_model"_s, {Kind::Line, 120}},
        {u"chat_llm_provider"_s, {Kind::Line, 120}},
        {u"chat_llm_model"_s, {Kind::Line, 120}},
        {u"orchestrator_llm_provider"_s, {Kind::Line, 120}},
        {u"orchestrator_llm_model"_s, {Kind::Line, 120}},
        {u"pipeline_llm_provider"_s, {Kind::Line, 120}},
        {u"pipeline_llm_model"_s, {Kind::Line, 120}},
        {u"browser_summary_llm_provider"_s, {Kind::Line, 120}},
        {u"browser_summary_llm_model"_s, {Kind::Line, 120}},
        {u"compaction_llm_provider"_s, {Kind::Line, 120}},
        {u"compaction_llm_model"_s, {Kind::Line, 120}},
        {u"worker_global_rules"_s, {Kind::Text, 20'000}},
        {u"worker_chat_rules"_s, {Kind::Text, 20'000}},
        {u"worker_user_facts"_s, {Kind::Text, 20'000}},
        {u"shared_md"_s, {Kind::Text, 20'000}},
        {u"decisions_md"_s, {Kind::Text, 20'000}},
        {u"routine_md"_s, {Kind::Text, 20'000}},
        {u"tools_md"_s, {Kind::Text, 20'000}},
        {u"goals_md"_s, {Kind::Text, 20'000}},
        {u"glossary_md"_s, {Kind::Text, 20'000}},
        {u"owner_learned_md"_s, {Kind::Text, 20'000}},
    };
    return table;
}

[[noreturn]] void refuse(const QString &key, const QString &why) {
    throw Refusal(400, u"\"%1\" %2."_s.arg(key, why), u"bad_value"_s);
}

void checkString(const QString &key, const QString &value, const Field &field) {
    if (characterCount(value) > field.longest)
        refuse(key, u"is longer than %1 characters"_s.arg(field.longest));
    if (field.kind == Kind::Line && value.contains(u'\n'))
        refuse(key, u"must be one line"_s);
    if (field.kind == Kind::Zone && !value.isEmpty() && !QTimeZone(value.toUtf8()).isValid())
        refuse(key, u"is no time zone"_s);
    if (field.kind == Kind::Hour && !value.isEmpty() &&
        !QTime::fromString(value, u"HH:mm"_s).isValid())
        refuse(key, u"must be a time such as 09:30"_s);
}

void check(const QString &key, const QJsonValue &value, const Field &field) {
    if (value.isNull()) {
        return; // clears the field
    }
    switch (field.kind) {
    case Kind::Flag:
        if (!value.isBool())
            refuse(key, u"must be true or false"_s);
        return;
    case Kind::List: {
        const QJsonArray entries = value.toArray();
        const bool strings = std::all_of(entries.begin(), entries.end(),
                                         [](const QJsonValue &entry) { return entry.isString(); });
        if (!value.isArray() || !strings || entries.size() > field.longest)
            refuse(key, u"must be a list of at most %1 strings"_s.arg(field.longest));
        return;
    }
    default:
        if (!value.isString())
            refuse(key, u"must be a string"_s);
        checkString(key, value.toString(), field);
    }
}

} // namespace

QJsonObject checkedProfile(const QJsonObject &changes) {
    QJsonObject known;
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        const auto field = fields().constFind(change.key());
        if (field != fields().cend()) {
            check(change.key(), change.value(), *field);
            known.insert(change.key(), change.value());
        }
    }
    return known;
}

} // namespace kiv::sandbox
