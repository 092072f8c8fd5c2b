#include "../FuzzText.h"

#include "desktop/LogText.h"

using namespace Qt::StringLiterals;
using kiv::desktop::LogText::redacted;

/// Whatever stands around a credential, it is not in the log; and a line stays short.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    const QString text = fuzzText(data, size);
    constexpr qsizetype longest = 401;
    mustHold(redacted(text).size() <= longest && !redacted(text).contains(u'\n'));
    const QString secret = u"ZmVycnktbGFudGVybg"_s;
    const QString half = text.left(text.size() / 2);
    const QString rest = text.mid(text.size() / 2);
    for (const QString &form :
         {u"Cookie: kiv_session=%1"_s, u"password=%1"_s, u"\"token\": \"%1\""_s,
          uR"("secret":"a\"%1")"_s, u"https://kiv.example/a?q=%1"_s,
          u"https://ada:%1@kiv.example/"_s, u"Bearer %1"_s})
        mustHold(!redacted(half + u'\n' + form.arg(secret) + u'\n' + rest).contains(secret));
    return 0;
}
