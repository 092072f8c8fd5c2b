// The typing rules of the wire, held against every record's table, and the records that have an
// order of their own.

#include "net/AccountRecords.h"
#include "net/AgentRecords.h"
#include "net/ChatRecords.h"
#include "net/Decode.h"
#include "net/ProjectRecords.h"
#include "net/SessionRecords.h"
#include "net/VoiceRecords.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace kiv;
using namespace kiv::net;
using namespace Qt::StringLiterals;

using Check = std::function<void()>;
Q_DECLARE_METATYPE(Check)

namespace {

const QString sampleText = u"тест \"✓\" 😀\n\t\\"_s;
constexpr qint64 sampleInteger = 9'007'199'254'740'993; // no double holds it

/// A value of each type and how the wire writes it.
template <typename T>
struct Sample {
    static T value() {
        T record;
        const auto fill = [&](const auto &...fields) {
            ((record.*fields.member =
                  Sample<typename std::decay_t<decltype(fields)>::Type>::value()),
             ...);
        };
        std::apply(fill, tableOf<T>.fields);
        return record;
    }
    static QJsonObject json() {
        QJsonObject object;
        const auto fill = [&](const auto &...fields) {
            (object.insert(QString::fromUtf8(fields.key.data(), qsizetype(fields.key.size())),
                           Sample<typename std::decay_t<decltype(fields)>::Type>::json()),
             ...);
        };
        std::apply(fill, tableOf<T>.fields);
        return object;
    }
};
template <>
struct Sample<QString> {
    static QString value() { return sampleText; }
    static QJsonValue json() { return sampleText; }
};
template <>
struct Sample<qint64> {
    static qint64 value() { return sampleInteger; }
    static QJsonValue json() { return sampleInteger; }
};
template <>
struct Sample<double> {
    static double value() { return 1e300; }
    static QJsonValue json() { return 1e300; }
};
template <>
struct Sample<bool> {
    static bool value() { return true; }
    static QJsonValue json() { return true; }
};
template <>
struct Sample<JVal> {
    static JVal value() {
        return JVal::obj({{u"a"_s, JVal::arr({JVal::num(1), JVal(), JVal::str(sampleText)})}});
    }
    static QJsonValue json() {
        return QJsonObject{{u"a"_s, QJsonArray{true, QJsonValue(), sampleText}}};
    }
};
template <typename T>
struct Sample<QList<T>> {
    static QList<T> value() { return {Sample<T>::value(), Sample<T>::value()}; }
    static QJsonValue json() { return QJsonArray{Sample<T>::json(), Sample<T>::json()}; }
};
template <typename T>
struct Sample<std::optional<T>> {
    static std::optional<T> value() { return Sample<T>::value(); }
    static QJsonValue json() { return Sample<T>::json(); }
};

/// JSON values that a field of type T refuses.
template <typename T>
QList<QJsonValue> wrongFor() {
    if constexpr (isOptional<T>) {
        return wrongFor<typename T::value_type>();
    } else if constexpr (std::is_same_v<T, JVal>) {
        return {};
    } else {
        QList<QJsonValue> values{QJsonArray{QJsonValue(QJsonArray())}, QJsonArray{QJsonValue()}};
        if constexpr (!std::is_same_v<T, QString>)
            values += {u""_s, u"1"_s, u"true"_s};
        if constexpr (!std::is_same_v<T, bool>)
            values += {true, false};
        if constexpr (!std::is_same_v<T, qint64> && !std::is_same_v<T, double>)
            values += {0, 1};
        if constexpr (!std::is_same_v<T, double>)
            values += {1.5, 1e19, -1e300};
        if constexpr (std::is_class_v<T> && !std::is_same_v<T, QString> && !isList<T>)
            values += QJsonArray();
        else
            values += QJsonObject();
        return values;
    }
}

QByteArray bytes(const QJsonObject &object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

template <typename Record>
QString errorOf(const QByteArray &body) {
    try {
        decodeBody<Record>(body);
        return {};
    } catch (const DecodingError &error) {
        return QString::fromUtf8(error.what());
    }
}

template <typename Record, typename OneField>
void checkField(const OneField &field) {
    using Type = typename OneField::Type;
    const QString key = QString::fromUtf8(field.key.data(), qsizetype(field.key.size()));
    const auto &name = tableOf<Record>.name;
    const QString place = QString::fromUtf8(name.data(), qsizetype(name.size())) + u'.' + key;

    QJsonObject missing = Sample<Record>::json();
    missing.remove(key);
    QJsonObject null = Sample<Record>::json();
    null.insert(key, QJsonValue());
    if constexpr (OneField::required) {
        for (const QJsonObject &without : {missing, null})
            QVERIFY2(errorOf<Record>(bytes(without)).contains(place), qPrintable(place));
    } else {
        Record expected = Sample<Record>::value();
        expected.*field.member = Type();
        for (const QJsonObject &without : {missing, null})
            QVERIFY2(decodeBody<Record>(bytes(without)) == expected, qPrintable(place));
    }
    for (const QJsonValue &wrong : wrongFor<Type>()) {
        QJsonObject body = Sample<Record>::json();
        body.insert(key, wrong);
        const QString error = errorOf<Record>(bytes(body));
        QVERIFY2(error.contains(place), bytes(body) + " -> " + error.toUtf8());
    }
}

template <typename Record>
void checkRecord() {
    const QJsonObject full = Sample<Record>::json();
    const Record expected = Sample<Record>::value();
    QVERIFY(decodeBody<Record>(bytes(full)) == expected);

    QJsonObject extra = full;
    extra.insert(u"Ж"_s, QJsonArray{QJsonObject{{u"id"_s, QJsonValue()}}});
    extra.insert(QString(), 1);
    QVERIFY(decodeBody<Record>(bytes(extra)) == expected);

    for (const char *body : {"[]", "\"x\"", "1", "true", "null"})
        QVERIFY2(!errorOf<Record>(body).isEmpty(), body);
    for (const char *body : {"", "{", "{}{}", "{\"a\":\"\xff\"}", "\xef\xbb\xbfx"})
        QVERIFY2(!errorOf<Record>(body).isEmpty(), body);

    std::apply([](const auto &...fields) { (checkField<Record>(fields), ...); },
               tableOf<Record>.fields);
}

template <typename... Records>
void addRecords() {
    ((QTest::newRow(tableOf<Records>.name.data()) << Check(&checkRecord<Records>)), ...);
}

} // namespace

class RecordsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyRecordKeepsTheRules_data() {
        QTest::addColumn<Check>("check");
        using Metadata = ChatRow::ChatRowMetadata;
        addRecords<MeUser, ProjectSummary, ProjectsList, ProjectMember, ProjectMember::MemberAgent,
                   AgentSummary, AgentsList, OrchestratorInfo, AgentCreateResult,
                   AgentCreateResult::IdOnly, ChatRow, Metadata, Metadata::RawAttachment,
                   Metadata::StarterRaw, ChatPage, ChatSendResult, Ack>();
        using namespace KivAPI;
        addRecords<UserProfile, PlanInfo, WalletInfo, WalletInfo::Wallet, VoiceCapability,
                   VoiceSessionInfo, VoiceCallsList, VoiceCallEntry, VoiceCallDetail,
                   VoiceCallDetail::CallBody, TranscriptLine, ProjectEventsPage, ProjectEvent,
                   UploadResult, UploadedFile>();
    }
    void everyRecordKeepsTheRules() {
        QFETCH(Check, check);
        check();
    }

    /// The tables themselves, held against bodies as the backend writes them.
    void bodiesOfTheBackend() {
        const auto page = decodeBody<ChatPage>(R"({"messages":[
            {"id":41,"role":"user","content":"q","created_at":"2026-03-02T09:42:00Z"},
            {"id":42,"role":"assistant","content":"a","metadata":{"member_label":"Ann",
             "attachments":[{"name":"n","filename":"f","url":"u","public_url":"p"}],
             "view":{"kind":"table"},"choice_options":["yes","no"],
             "starters":[{"label":"l","prompt":"p"}],"confirm_ask":true,"error":"x"}}]})");
        QCOMPARE(page.messages.size(), 2);
        QCOMPARE(page.messages[0].id, 41);
        QCOMPARE(page.messages[0].createdAt, u"2026-03-02T09:42:00Z"_s);
        const auto &metadata = *page.messages[1].metadata;
        QCOMPARE(metadata.memberLabel, u"Ann"_s);
        QCOMPARE(metadata.attachments->first().publicUrl, u"p"_s);
        QCOMPARE(metadata.view->canonical(), u"{\"kind\":\"table\"}"_s);
        QCOMPARE(metadata.choiceOptions, (QList{u"yes"_s, u"no"_s}));
        QCOMPARE(metadata.starters->first().prompt, u"p"_s);
        QCOMPARE(metadata.confirmAsk, true);
        QCOMPARE(metadata.errorMessage, u"x"_s);

        const auto row = decodeBody<ChatRow>(
            R"({"role":"user","content":"","metadata":{"errorMessage":"x","memberLabel":"y"}})");
        QVERIFY(*row.metadata == ChatRow::ChatRowMetadata());

        const auto profile = decodeBody<KivAPI::UserProfile>(
            R"({"full_name":"Ann","jobTitle":"QA","preferred_sectors":["a"],"shared_md":"s",
                "notification_email":false,"browser_summary_llm_model":"m"})");
        QCOMPARE(profile.fullName, u"Ann"_s);
        QCOMPARE(profile.jobTitle, u"QA"_s);
        QCOMPARE(profile.notificationEmail, false);
        QCOMPARE(profile.browserSummaryLlmModel, u"m"_s);
        const auto snake = decodeBody<KivAPI::UserProfile>(R"({"job_title":"QA"})");
        QVERIFY(snake == KivAPI::UserProfile());
        QVERIFY(!decodeBody<KivAPI::ProjectEventsPage>("{}").events);
    }

    void ofAKeyThatStandsTwiceTheFirstCounts() {
        const auto user = decodeBody<MeUser>(R"({"name":"Ann","email":null,"name":7,"email":"x"})");
        QCOMPARE(user.name, u"Ann"_s);
        QVERIFY(!user.email);
        QCOMPARE(errorOf<ChatRow>(R"({"role":null,"role":"user","content":""})"),
                 u"The reply cannot be read: ChatRow.role is not a text."_s);
    }

    void aNewAgentIsKnownByEitherId() {
        const auto idIn = [](const char *body) {
            return decodeBody<AgentCreateResult>(body).agentID().value_or(u"none"_s);
        };
        QCOMPARE(idIn(R"({"id":"1","agent":{"id":"2"}})"), u"1"_s);
        QCOMPARE(idIn(R"({"id":null,"agent":{"id":"2"}})"), u"2"_s);
        QCOMPARE(idIn(R"({"agent":{}})"), u"none"_s);
    }

    void aUserMayComeWrappedOrBare_data() {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("email"); // or the error
        const auto row = [](const char *body, const char *email) {
            QTest::newRow(body) << QByteArray(body) << QString::fromUtf8(email);
        };
        row(R"({"user":{"email":"x"}})", "x");
        row(R"({"email":"x"})", "x");
        row(R"({"user":null,"email":"x"})", "x");
        row(R"({"user":"odd","email":"x"})", "x");
        row(R"({"user":{"email":7},"email":"x"})", "x");
        row(R"({"user":{},"email":"x"})", "");
        row(R"({"user":7,"email":7})", "The reply cannot be read: MeUser.email is not a text.");
        row("[]", "The reply cannot be read: MeUser is not an object.");
    }
    void aUserMayComeWrappedOrBare() {
        QFETCH(QByteArray, body);
        QFETCH(QString, email);
        const QString error = errorOf<AuthResult>(body);
        if (error.isEmpty())
            QCOMPARE(decodeBody<AuthResult>(body).user.email.value_or(QString()), email);
        else
            QCOMPARE(error, email);
    }

    void theAvatarHasTwoKeys() {
        const auto avatarIn = [](const char *body) {
            return decodeBody<MeUser>(body).avatarUrl.value_or(u"none"_s);
        };
        QCOMPARE(avatarIn(R"({"picture":"p"})"), u"p"_s);
        QCOMPARE(avatarIn(R"({"picture":"p","avatar_url":null})"), u"p"_s);
        QCOMPARE(avatarIn(R"({"picture":"p","avatar_url":"a"})"), u"a"_s);
        QCOMPARE(avatarIn(R"({"picture":7,"avatar_url":"a"})"), u"a"_s);
        QCOMPARE(avatarIn(R"({"picture":null})"), u"none"_s);
        QCOMPARE(errorOf<MeUser>(R"({"picture":7})"),
                 u"The reply cannot be read: MeUser.picture is not a text."_s);
    }

    void usersAreGreetedByTheirName() {
        const auto nameIn = [](const char *body) {
            return decodeBody<MeUser>(body).displayName().value_or(u"none"_s);
        };
        QCOMPARE(nameIn(R"({"name":" Ann\n","full_name":"B","email":"e"})"), u"Ann"_s);
        QCOMPARE(nameIn(R"({"full_name":"B","email":"e"})"), u"B"_s);
        QCOMPARE(nameIn(R"({"name":" ","full_name":"B","email":"e"})"), u"e"_s);
        QCOMPARE(nameIn(R"({"name":""})"), u"none"_s);
    }

    void hugeBodiesAreRead() {
        const QString text(8 * 1024 * 1024, u'Ж');
        const auto row = decodeBody<ChatRow>(bytes({{u"role"_s, u"user"_s}, {u"content"_s, text}}));
        QVERIFY(row.content == text);

        QByteArray many = "{\"messages\":[";
        for (int i = 0; i < 100'000; ++i)
            many += R"({"role":"user","content":"x"},)";
        many.chop(1);
        QCOMPARE(decodeBody<ChatPage>(many + "]}").messages.size(), 100'000);
    }
};

QTEST_GUILESS_MAIN(RecordsTest)
#include "RecordsTest.moc"
