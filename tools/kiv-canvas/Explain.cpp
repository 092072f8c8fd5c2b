#include "Explain.h"

#include "BlocksJson.h"
#include "SceneJson.h"
#include "SpecJson.h"
#include "base/Json.h"
#include "canvas/CanvasEngine.h"
#include "canvas/CanvasIntents.h"
#include "canvas/SceneAdapter.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace kiv::tools {

using namespace Qt::StringLiterals;

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

QJsonValue orNull(const std::optional<QString> &value) {
    return value ? QJsonValue(*value) : QJsonValue();
}

QJsonObject replyJson(const canvas::ReplyOptions::Parsed &parsed) {
    QJsonArray chips;
    for (const canvas::ReplyChip &chip : parsed.chips)
        chips.append(QJsonObject{{u"label"_s, chip.label}, {u"send"_s, chip.send}});
    return {{u"text"_s, parsed.text}, {u"chips"_s, chips}};
}

QJsonValue surfaceJson(const std::optional<canvas::SurfaceLink> &link) {
    if (!link)
        return {};
    return QJsonObject{{u"url"_s, link->url.toString(QUrl::FullyEncoded)},
                       {u"title"_s, link->title}};
}

QJsonObject answerJson(const Request &request, const QUrl &baseUrl) {
    const auto intent =
        request.question ? canvas::CanvasIntents::classify(*request.question) : std::nullopt;
    const auto answer = canvas::CanvasEngine::extractViewSpec(request.text, request.view);
    QJsonObject json{
        {u"intent"_s, orNull(intent)},
        {u"text"_s, answer.text},
        {u"spec"_s, QJsonValue()},
        {u"art"_s, QJsonValue()},
        {u"scene"_s, QJsonValue()},
        {u"surface"_s, surfaceJson(canvas::SurfaceMatcher::match(request.text, baseUrl))},
        {u"reply"_s, replyJson(canvas::ReplyOptions::parse(request.text, request.replies))},
        {u"blocks"_s, blocksJson(request.text)}};
    if (answer.spec) {
        json.insert(u"spec"_s, specJson(*answer.spec));
        json.insert(u"art"_s, orNull(canvas::CanvasEngine::artForSpec(*answer.spec, intent)));
        if (const auto scene = canvas::SceneAdapter::vals(*answer.spec, intent)) {
            json.insert(u"art"_s, scene->art);
            json.insert(u"scene"_s, sceneJson(*scene));
        }
    }
    return json;
}

} // namespace

QByteArray explain(QByteArrayView request, const QUrl &baseUrl) {
    QJsonObject reply;
    try {
        reply = answerJson(readRequest(request), baseUrl);
    } catch (const std::runtime_error &error) {
        reply.insert(u"error"_s, QString::fromUtf8(error.what()));
    }
    return QJsonDocument(reply).toJson(QJsonDocument::Compact);
}

} // namespace kiv::tools
