#include "../FuzzFile.h"

#include "net/PersistentCookieJar.h"

#include <QNetworkCookie>

using namespace Qt::StringLiterals;
using kiv::net::PersistentCookieJar;

namespace {

const QUrl server(u"https://kiv.example/api/v2/me"_s);
const QUrl elsewhere(u"https://other.example/"_s);

QList<QByteArray> sentBy(const PersistentCookieJar &jar, const QUrl &url) {
    QList<QByteArray> forms;
    for (const QNetworkCookie &cookie : jar.cookiesForUrl(url))
        forms.append(cookie.toRawForm());
    std::sort(forms.begin(), forms.end());
    return forms;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
    beSilent();
    return 0;
}

/// Whatever the file holds, what is read from it is kept by the next saving, and each cookie goes
/// to one host.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    const FuzzFile file(data, size);
    QList<QByteArray> before;
    {
        PersistentCookieJar jar(file.path());
        const auto there = sentBy(jar, elsewhere);
        jar.setCookiesFromUrl({QNetworkCookie("kiv_fuzz", "1")}, server);
        before = sentBy(jar, server);
        mustHold(!before.isEmpty() && sentBy(jar, elsewhere) == there);
    }
    {
        PersistentCookieJar jar(file.path());
        mustHold(sentBy(jar, server) == before);
        jar.clear();
        mustHold(sentBy(jar, server).isEmpty());
    }
    mustHold(!QFile::exists(file.path()));
    return 0;
}
