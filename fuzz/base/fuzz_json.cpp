#include "../FuzzText.h"

#include "base/JVal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using kiv::JVal;

namespace {

QJsonValue written(const JVal &value) {
    if (const auto *text = value.asStr())
        return *text;
    if (const auto *number = value.asNum())
        return *number;
    if (const auto *array = value.asArr()) {
        QJsonArray values;
        for (const JVal &element : *array)
            values.append(written(element));
        return values;
    }
    if (const auto *object = value.asObj()) {
        QJsonObject members;
        for (auto member = object->cbegin(); member != object->cend(); ++member)
            members.insert(member.key(), written(member.value()));
        return members;
    }
    return {};
}

} // namespace

/// What was read is the same with blanks around it, and when it is written out and read again.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto value = JVal::parse(bytes);
    mustHold(JVal::parse("\r\n \t" + bytes + " \n") == value);
    if (!value)
        return 0;
    // A list around it, since a document of Qt's is no bare value.
    const QByteArray again = QJsonDocument(QJsonArray{written(*value)}).toJson();
    const auto read = JVal::parse(again);
    mustHold(read && read->asArr() && read->asArr()->size() == 1);
    mustHold(read->asArr()->first() == *value);
    mustHold(read->asArr()->first().canonical() == value->canonical());
    return 0;
}
