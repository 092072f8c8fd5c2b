#include "store/FileTypes.h"

#include <algorithm>
#include <array>

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

struct FileType {
    QLatin1StringView extension;
    QLatin1StringView type;
};

constexpr std::array types{
    FileType{"png"_L1, "image/png"_L1},
    FileType{"jpg"_L1, "image/jpeg"_L1},
    FileType{"jpeg"_L1, "image/jpeg"_L1},
    FileType{"webp"_L1, "image/webp"_L1},
    FileType{"gif"_L1, "image/gif"_L1},
    FileType{"pdf"_L1, "application/pdf"_L1},
    FileType{"json"_L1, "application/json"_L1},
    FileType{"jsonl"_L1, "application/json"_L1},
    FileType{"ndjson"_L1, "application/json"_L1},
    FileType{"htm"_L1, "text/html"_L1},
    FileType{"html"_L1, "text/html"_L1},
    FileType{"xml"_L1, "text/xml"_L1},
    FileType{"csv"_L1, "text/csv"_L1},
    FileType{"txt"_L1, "text/plain"_L1},
    FileType{"text"_L1, "text/plain"_L1},
    FileType{"md"_L1, "text/plain"_L1},
    FileType{"log"_L1, "text/plain"_L1},
    FileType{"tsv"_L1, "text/plain"_L1},
    FileType{"yaml"_L1, "text/plain"_L1},
    FileType{"yml"_L1, "text/plain"_L1},
    FileType{"ini"_L1, "text/plain"_L1},
    FileType{"sql"_L1, "text/plain"_L1},
};

} // namespace

const QStringList &fileExts() {
    static const QStringList extensions = [] {
        QStringList list;
        for (const FileType &type : types)
            list.append(type.extension);
        return list;
    }();
    return extensions;
}

QString mime(const QString &forExt) {
    const auto found = std::ranges::find_if(types, [&](const FileType &type) {
        return forExt.compare(type.extension, Qt::CaseInsensitive) == 0;
    });
    return found == types.end() ? u"application/octet-stream"_s : QString(found->type);
}

QString extensionOf(const QString &fileName) {
    const qsizetype dot = fileName.lastIndexOf(u'.');
    return dot < 0 ? QString() : fileName.sliced(dot + 1);
}

FileKind fileKind(const QString &fileName) {
    const QString extension = extensionOf(fileName).toLower();
    if (mime(extension).startsWith("image/"_L1))
        return FileKind::Image;
    if (extension == "csv"_L1 || extension == "tsv"_L1)
        return FileKind::Table;
    return FileKind::Document;
}

} // namespace kiv::store
