#include "Router.h"
#include "Routes.h"
#include "Services.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr size_t mostFiles = 5;
constexpr qsizetype largestFile = 10 * 1024 * 1024;
constexpr qsizetype longestInlineText = 20'000;

bool isText(const QString &mime) {
    return mime.startsWith(u"text/"_s) || mime == u"application/json"_s;
}

/// What an agent can read.
bool isTaken(const QString &mime) {
    return isText(mime) || mime.startsWith(u"image/"_s) || mime == u"application/pdf"_s;
}

QJsonObject storeOne(Services &services, const Call &call, const httplib::MultipartFormData &part) {
    const QString name = QString::fromStdString(part.filename);
    const QString mime = QString::fromStdString(part.content_type);
    const QByteArray content = QByteArray::fromStdString(part.content);
    const auto refused = [&name](const QString &why) {
        return QJsonObject{{u"ok"_s, false}, {u"name"_s, name}, {u"error"_s, why}};
    };
    if (content.isEmpty())
        return refused(u"The file is empty."_s);
    if (content.size() > largestFile)
        return refused(u"The file is larger than 10 MiB."_s);
    if (!isTaken(mime))
        return refused(u"Files of this kind cannot be read here."_s);
    const StoredFile file = services.files.store(call.account, name, mime, content);
    QJsonObject stored{{u"ok"_s, true},
                       {u"name"_s, file.name},
                       {u"size"_s, file.size},
                       {u"mime"_s, file.mime},
                       {u"key"_s, file.key},
                       {u"url"_s, fileAddress(call.origin, file.key)},
                       {u"kind"_s, mime.startsWith(u"image/"_s) ? u"image"_s : u"file"_s}};
    if (isText(mime))
        stored.insert(u"text"_s, QString::fromUtf8(content).left(longestInlineText));
    return stored;
}

Reply upload(Services &services, const Call &call) {
    if (!call.request.is_multipart_form_data() || call.request.files.empty())
        throw Refusal(400, u"No files were sent."_s, u"no_files"_s);
    if (call.request.files.size() > mostFiles)
        throw Refusal(400, u"At most %1 files at a time."_s.arg(mostFiles), u"too_many_files"_s);
    QJsonArray files;
    for (const auto &[field, part] : call.request.files)
        files.append(storeOne(services, call, part));
    return Reply::json({{u"files"_s, files}});
}

Reply download(Services &services, const Call &call) {
    const auto file = services.files.find(call.segment(1));
    auto content = file ? services.files.content(*file) : std::nullopt;
    if (!content)
        throw Refusal(404, u"There is no such file."_s, u"not_found"_s);
    // An uploaded page must not run as one of this server's own.
    return {.body = *std::move(content),
            .type = file->mime.toUtf8(),
            .headers = {{"Content-Security-Policy", "sandbox; default-src 'none'"}}};
}

} // namespace

void addFileRoutes(Router &router, Services &services) {
    using Access = Router::Access;
    router.upload("/api/v2/projects/([^/]+)/chat/files", [&services](const Call &call) {
        services.workspace.projectLabel(call.account, call.segment(1));
        return upload(services, call);
    });
    router.upload("/api/v2/custom-agents/([^/]+)/chat/files", [&services](const Call &call) {
        services.workspace.agent(call.account, call.segment(1));
        return upload(services, call);
    });
    router.get("/files/([A-Za-z0-9_-]+)", Access::Everybody,
               [&services](const Call &call) { return download(services, call); });
}

} // namespace kiv::sandbox
