#include "../FuzzText.h"

#include "base/AppVersion.h"
#include "base/BaseUrl.h"

#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// An address that is taken is safe to talk to, and read again it is the same one.
void checkAddress(const QString &text) {
    QUrl url;
    try {
        url = kiv::parseBaseUrl(text);
    } catch (const kiv::BaseUrlError &) {
        return;
    }
    mustHold(url.scheme() == u"https"_s || kiv::isLoopback(url.host()));
    mustHold(url.userInfo().isEmpty() && !url.hasQuery() && !url.hasFragment());
    mustHold(kiv::parseBaseUrl(url.toString(QUrl::FullyEncoded)) == url);
    mustHold(kiv::appendPath(url, u"a/b"_s).host() == url.host());
}

/// What is put into a path stays one piece of it, and comes out as it was, but that points alone,
/// which would climb, come out as something else.
void checkSegment(const QString &text) {
    const QString segment = kiv::pathSegment(text);
    for (const char16_t cut : {u'/', u'?', u'#', u'\\'})
        mustHold(!segment.contains(cut));
    const QString read = QUrl::fromPercentEncoding(segment.toLatin1());
    mustHold(read != u"."_s && read != u".."_s);
    mustHold(read == text || text == u"."_s || text == u".."_s);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    const QString text = fuzzText(data, size);
    checkAddress(text);
    if (text.isValidUtf16())
        checkSegment(text);
    const QString one = text.section(u' ', 0, 0);
    const QString other = text.section(u' ', 1);
    mustHold(!(kiv::AppVersion::isNewer(one, other) && kiv::AppVersion::isNewer(other, one)));
    return 0;
}
