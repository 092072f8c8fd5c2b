#include "Explain.h"

#include "BlocksJson.h"
#include "SceneJson.h"
#include "SpecJson.h"
#include "base/Json.h"
#include "canvas/AnswerBlock.h"
#include "canvas/ArtChoice.h"
#include "canvas/CanvasIntents.h"
#include "canvas/ReplyOptions.h"
#include "canvas/SceneAdapter.h"
#include "canvas/SurfaceMatcher.h"

namespace kiv::tools {

namespace {

struct Request {
    QString text;
    std::optional<JVal> view;
    std::optional<QString> question;
    canvas::ReplySources replies;
};

class RequestError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A member, a null counting as absent.
std::optional<JsonValue> member(const JsonObject &object, const char *key) {
    const auto value = object.find(key);
    return value && !value->isNull() ? value : std::nullopt;
}

[[noreturn]] void refuse(const char *key, const char *expected) {
    throw RequestError(std::string(key) + " is not " + expected);
}

std::optional<QString> text(const JsonObject &object, const char *key) {
    const auto value = member(object, key);
    if (value && !value->string())
        refuse(key, "a string");
    return value ? value->string() : std::nullopt;
}

std::optional<bool> flag(const JsonObject &object, const char *key) {
    const auto value = member(object, key);
    if (value && !value->boolean())
        refuse(key, "a boolean");
    return value ? value->boolean() : std::nullopt;
}

std::optional<JsonArray> list(const JsonObject &object, const char *key) {
    const auto value = member(object, key);
    if (value && !value->array())
        refuse(key, "a list");
    return value ? value->array() : std::nullopt;
}

std::optional<QStringList> choiceOptions(const JsonObject &object) {
    const auto elements = list(object, "choiceOptions");
    if (!elements)
        return std::nullopt;
    QStringList options;
    for (const JsonValue element : *elements) {
        const auto option = element.string();
        if (!option)
            refuse("choiceOptions", "a list of strings");
        options.append(*option);
    }
    return options;
}

std::optional<QList<canvas::Starter>> starters(const JsonObject &object) {
    const auto elements = list(object, "starters");
    if (!elements)
        return std::nullopt;
    QList<canvas::Starter> result;
    for (const JsonValue element : *elements) {
        const auto starter = element.object();
        const auto label = starter ? text(*starter, "label") : std::nullopt;
        const auto prompt = starter ? text(*starter, "prompt") : std::nullopt;
        if (!label || !prompt)
            refuse("starters", "a list of label and prompt");
        result.append({*label, *prompt});
    }
    return result;
}

/// Throws RequestError, and DecodingError for what is no JSON.
Request readRequest(QByteArrayView line) {
    const JsonDocument document(line);
    const auto object = document.root().object();
    if (!object)
        refuse("the line", "a JSON object");
    Request request;
    request.text = text(*object, "text").value_or(QString());
    if (const auto view = member(*object, "view"))
        request.view = view->toJVal();
    request.question = text(*object, "question");
    request.replies = {.choiceOptions = choiceOptions(*object),
                       .starters = starters(*object),
                       .confirmAsk = flag(*object, "confirmAsk"),
                       .errorMessage = text(*object, "errorMessage")};
    return request;
}

void writeReply(JsonText &json, const canvas::ReplyOptions::Parsed &parsed) {
    json.beginObject();
    json.member(u"text", parsed.text);
    json.member(u"chips", parsed.chips, [&](const canvas::ReplyChip &chip) {
        json.member(u"label", chip.label);
        json.member(u"send", chip.send);
    });
    json.endObject();
}

void writeSurface(JsonText &json, const std::optional<canvas::SurfaceLink> &link) {
    if (!link) {
        json.null();
        return;
    }
    json.beginObject();
    json.member(u"url", link->url.toString(QUrl::FullyEncoded));
    json.member(u"title", link->title);
    json.endObject();
}

void writeCanvas(JsonText &json, const canvas::ViewSpec &spec,
                 const std::optional<QString> &intent) {
    json.key(u"spec");
    writeSpec(json, spec);
    const auto scene = canvas::SceneAdapter::vals(spec, intent);
    json.member(u"art", canvas::CanvasEngine::artForSpec(spec, intent));
    json.key(u"scene");
    if (scene)
        writeScene(json, *scene);
    else
        json.null();
}

void writeAnswer(JsonText &json, const Request &request, const QUrl &baseUrl) {
    const auto intent =
        request.question ? canvas::CanvasIntents::classify(*request.question) : std::nullopt;
    const auto replies = canvas::ReplyOptions::parse(request.text, request.replies);
    const auto answer = canvas::CanvasEngine::extractViewSpec(request.text, request.view);
    // An options line below a table is no row of it.
    const auto spec = replies.text == request.text
                          ? answer.spec
                          : canvas::CanvasEngine::extractViewSpec(replies.text, request.view).spec;
    json.beginObject();
    json.member(u"intent", intent);
    json.member(u"text", answer.text);
    if (spec) {
        writeCanvas(json, *spec, intent);
    } else {
        for (const QStringView name : {u"spec", u"art", u"scene"}) {
            json.key(name);
            json.null();
        }
    }
    json.key(u"surface");
    writeSurface(json, canvas::SurfaceMatcher::match(request.text, baseUrl));
    json.key(u"reply");
    writeReply(json, replies);
    json.key(u"blocks");
    writeBlocks(json, request.text);
    json.endObject();
}

QByteArray errorText(const char *error) {
    JsonText json;
    json.beginObject();
    json.member(u"error", QString::fromUtf8(error));
    json.endObject();
    return json.text();
}

} // namespace

QByteArray explain(QByteArrayView request, const QUrl &baseUrl) {
    try {
        JsonText json;
        writeAnswer(json, readRequest(request), baseUrl);
        return json.text();
    } catch (const std::runtime_error &error) {
        return errorText(error.what());
    }
}

} // namespace kiv::tools
