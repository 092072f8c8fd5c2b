#include "base/LocalText.h"
#include "language/Translations.h"
#include "ui/EveryPlace.h"
#include "ui/SeenText.h"
#include "ui/Workspace.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

using store::Language;

/// The window in Russian, the switch of the language while it runs, and how counts, dates and sizes
/// are written.
class LanguageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"qrc:|QML"_s)); }
    void counts_data();
    void counts();
    void dates_data();
    void dates();
    void catalogues();
    void choice();
    void switchesBothWays();
    void wizardSwitches();
    void accountSwitches();
    void everyPlace_data();
    void everyPlace();

private:
    static QString textOf(const Gallery &gallery, const QString &item) {
        return gallery.item(item)->property("text").toString();
    }
    static bool sees(const Gallery &gallery, const QString &words) {
        const QList<SeenText> seen = textsIn(gallery.window());
        return std::ranges::any_of(seen, [&](const SeenText &text) { return text.words == words; });
    }
};

void LanguageTest::counts_data() {
    QTest::addColumn<QLocale::Language>("language");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("projects");
    QTest::addColumn<QString>("excess");
    const auto row = [](QLocale::Language language, int count, const QString &projects,
                        const QString &excess) {
        QTest::addRow("%s, %d", qPrintable(QLocale::languageToCode(language)), count)
            << language << count << projects << excess;
    };
    row(QLocale::English, 0, u"0 projects"_s, u"0 characters too many"_s);
    row(QLocale::English, 1, u"1 project"_s, u"1 character too many"_s);
    row(QLocale::English, 21, u"21 projects"_s, u"21 characters too many"_s);
    row(QLocale::Russian, 0, u"0 проектов"_s, u"Лишние 0 символов"_s);
    row(QLocale::Russian, 1, u"1 проект"_s, u"Лишний 1 символ"_s);
    row(QLocale::Russian, 2, u"2 проекта"_s, u"Лишние 2 символа"_s);
    row(QLocale::Russian, 5, u"5 проектов"_s, u"Лишние 5 символов"_s);
    row(QLocale::Russian, 11, u"11 проектов"_s, u"Лишние 11 символов"_s);
    row(QLocale::Russian, 21, u"21 проект"_s, u"Лишний 21 символ"_s);
    row(QLocale::Russian, 24, u"24 проекта"_s, u"Лишние 24 символа"_s);
    row(QLocale::Russian, 112, u"112 проектов"_s, u"Лишние 112 символов"_s);
}

void LanguageTest::counts() {
    QFETCH(QLocale::Language, language);
    QFETCH(int, count);
    Translations translations;
    translations.use(QLocale(language));
    QTEST(store::ScopeRoom::tr("%Ln project(s)", nullptr, count), "projects");
    QTEST(store::CreateRoom::tr("%Ln character(s) too many", nullptr, count), "excess");
}

void LanguageTest::dates_data() {
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("day");
    QTest::addColumn<QString>("otherYear");
    QTest::addColumn<QString>("recent");
    QTest::addColumn<QString>("size");
    const QLocale british(QLocale::English, QLocale::UnitedKingdom);
    QTest::newRow("British") << british << u"09:05"_s << u"Monday, 2 March"_s << u"2 March 2026"_s
                             << u"2 Mar, 09:05"_s << u"1.2\u00a0MB"_s;
    QTest::newRow("none") << QLocale::c() << u"09:05"_s << u"Monday, 2 March"_s << u"2 March 2026"_s
                          << u"2 Mar, 09:05"_s << u"1.2\u00a0MB"_s;
    QTest::newRow("American") << QLocale(QLocale::English, QLocale::UnitedStates) << u"9:05 AM"_s
                              << u"Monday, March 2"_s << u"March 2, 2026"_s << u"Mar 2, 9:05 AM"_s
                              << u"1.2\u00a0MB"_s;
    QTest::newRow("Russian") << QLocale(QLocale::Russian, QLocale::Russia) << u"09:05"_s
                             << u"Понедельник, 2 марта"_s << u"2 марта 2026"_s << u"2 мар., 09:05"_s
                             << u"1,2\u00a0МБ"_s;
}

void LanguageTest::dates() {
    QFETCH(QLocale, locale);
    QLocale::setDefault(locale);
    const QDate day(2026, 3, 2);
    const QDateTime at(day, QTime(9, 5));
    const auto plain = [](QString text) { return text.replace(QChar(0x202f), u' '); };
    QTEST(plain(timeText(at)), "time");
    QTEST(dayText(day, QDate(2026, 11, 22)), "day");
    QTEST(dayText(day, QDate(2027, 1, 1)), "otherYear");
    QTEST(plain(shortDayTimeText(at)), "recent");
    QTEST(sizeText(1'200'000), "size");
}

/// What the wizard offers is the same in every language, but for its words.
void LanguageTest::catalogues() {
    const auto inLanguage = [](QLocale::Language language) {
        QLocale::setDefault(QLocale(language));
        return store::CreateCatalogue::read();
    };
    const auto shape = [](const store::CreateCatalogue &all) {
        QStringList lines;
        for (const store::CreateChoice &each : all.tools + all.autonomy)
            lines.append(each.id + u' ' + each.icon);
        for (const store::CreateTemplate &each : all.agents + all.projects)
            lines.append(
                u"%1 %2 %3 %4"_s.arg(each.id, each.icon, each.tools.join(u','), each.autonomy));
        return lines;
    };
    const store::CreateCatalogue english = inLanguage(QLocale::English);
    const store::CreateCatalogue russian = inLanguage(QLocale::Russian);
    QCOMPARE(shape(russian), shape(english));
    for (qsizetype i = 0; i < english.agents.size(); ++i)
        QVERIFY(russian.agents.at(i).title != english.agents.at(i).title);
}

/// The person's choice wins over the desktop and is kept; what cannot be read is no choice.
void LanguageTest::choice() {
    Workspace workspace;
    store::AppearanceRoom *room = workspace.store->appearance();
    QCOMPARE(room->language(), Language::System);
    room->chooseLanguage(Language::Russian);
    QCOMPARE(room->locale().language(), QLocale::Russian);
    workspace.restart();
    QCOMPARE(workspace.store->appearance()->locale().language(), QLocale::Russian);
    workspace.store->appearance()->chooseLanguage(Language::English);
    QCOMPARE(workspace.store->appearance()->locale().language(), QLocale::English);
    workspace.settings->setValue(u"zandor.language"_s, u"Klingon"_s);
    workspace.restart();
    QCOMPARE(workspace.store->appearance()->language(), Language::System);
}

void LanguageTest::switchesBothWays() {
    Workspace workspace;
    Gallery gallery;
    workspace.history(test::kivChat, R"([{"id":1,"role":"user","content":"How was the week?",
        "created_at":"2026-02-27T09:42:00Z"},{"id":2,"role":"assistant","content":"Good.",
        "created_at":"2026-02-27T09:43:00Z"}])");
    QVERIFY(workspace.signIn());
    gallery.open(*workspace.store, {1440, 900});
    // What of the words does not show within a while.
    const auto missing = [&](const QStringList &words) {
        QStringList unseen;
        (void)QTest::qWaitFor(
            [&] {
                unseen = words;
                unseen.removeIf([&](const QString &each) { return sees(gallery, each); });
                return unseen.isEmpty();
            },
            1000);
        return unseen;
    };
    const QStringList english{u"Projects"_s,
                              u"5 projects, 14 agents"_s,
                              u"Conversation"_s,
                              u"Sees all projects and agents"_s,
                              u"Friday, 27 February"_s,
                              u"Enter to send, Shift+Enter for a new line"_s};
    const QStringList russian{u"Проекты"_s,
                              u"5 проектов, 14 агентов"_s,
                              u"Разговор"_s,
                              u"Видит все проекты и всех агентов"_s,
                              u"Пятница, 27 февраля"_s,
                              u"Enter — отправить, Shift+Enter — новая строка"_s};
    QCOMPARE(missing(english).join(u", "_s), QString());
    gallery.click(u"profileButton"_s);
    gallery.click(u"segment:Русский"_s);
    QCOMPARE(missing(russian).join(u", "_s), QString());
    QCOMPARE(missing({u"Оформление"_s, u"Размер текста"_s, u"Системная"_s, u"Системный"_s}),
             QStringList());
    // The texts of the rooms are the same for everybody.
    QVERIFY(sees(gallery, u"3 agents · active"_s));
    gallery.save(u"language-russian"_s);
    gallery.click(u"segment:English"_s);
    QCOMPARE(missing(english).join(u", "_s), QString());
    QCOMPARE(missing({u"Appearance"_s, u"Text size"_s}).join(u", "_s), QString());
    QCOMPARE(workspace.store->appearance()->language(), Language::English);
}

/// What was filled in stays, and so does the template that it came from.
void LanguageTest::wizardSwitches() {
    Workspace workspace;
    Gallery gallery;
    QVERIFY(workspace.signIn());
    gallery.open(*workspace.store, {1440, 900});
    gallery.commands().perform(Command::NewAgent);
    gallery.click(u"template:researcher"_s);
    workspace.store->appearance()->chooseLanguage(Language::Russian);
    QTRY_VERIFY(sees(gallery, u"Исследователь"_s));
    QVERIFY(sees(gallery, u"Выберите шаблон"_s));
    QVERIFY(sees(gallery, u"Шаблон"_s));
    QCOMPARE(textOf(gallery, u"wizardNext"_s), u"Дальше"_s);
    QCOMPARE(workspace.store->create()->name(), u"Researcher"_s);
    QCOMPARE(workspace.store->create()->templateId(), u"researcher"_s);
}

/// The choices show in the language, and are stored as they were.
void LanguageTest::accountSwitches() {
    Workspace workspace;
    workspace.backend.answer(u"GET api/v2/user/profile"_s,
                             R"({"preferred_country":"Norway","preferred_language":"German",
        "company_size":"201–1,000","working_hours_days":"Mon, Tue"})");
    workspace.backend.answer(u"GET api/v2/user/plan"_s, R"({"token_limit":2000000})");
    workspace.backend.answer(u"GET api/v2/user/wallet"_s,
                             R"({"wallet":{"balance_credits":1212.4}})");
    Gallery gallery;
    QVERIFY(workspace.signIn());
    gallery.open(*workspace.store, {1440, 900});
    workspace.store->layout()->openAccount(u"profile"_s);
    QTRY_COMPARE(textOf(gallery, u"country"_s), u"Norway"_s);
    workspace.store->appearance()->chooseLanguage(Language::Russian);
    QTRY_COMPARE(textOf(gallery, u"country"_s), u"Норвегия"_s);
    QCOMPARE(textOf(gallery, u"language"_s), u"Немецкий"_s);
    QCOMPARE(textOf(gallery, u"companySize"_s), u"201–1000"_s);
    QCOMPARE(workspace.store->account()->field(u"preferred_country"_s)->text(), u"Norway"_s);
    workspace.store->layout()->openAccount(u"voice"_s);
    QTRY_COMPARE(textOf(gallery, u"day0"_s), u"Пн"_s);
    workspace.store->layout()->openAccount(u"plan"_s);
    QTRY_VERIFY(gallery.find(u"walletBalance"_s));
    QCOMPARE(textOf(gallery, u"walletBalance"_s), u"1\u00a0212,40"_s);
    workspace.store->appearance()->chooseLanguage(Language::English);
    QTRY_COMPARE(textOf(gallery, u"walletBalance"_s), u"1,212.40"_s);
}

void LanguageTest::everyPlace_data() {
    QTest::addColumn<QSize>("size");
    QTest::newRow("wide") << QSize(1440, 900);
    QTest::newRow("least") << QSize(1024, 680);
}

/// Leaves a picture of every place in Russian. No Russian word is cut off.
void LanguageTest::everyPlace() {
    QFETCH(QSize, size);
    const QString name = QLatin1StringView(QTest::currentDataTag());
    static const QRegularExpression russian(u"[а-яё]"_s);
    QStringList cut;
    Gallery gallery;
    visitEveryPlace(gallery, {.size = size, .language = Language::Russian},
                    [&](const QString &place) {
                        gallery.save(u"russian-%1-%2"_s.arg(name, place));
                        const QList<SeenText> seen = textsIn(gallery.window());
                        for (const SeenText &text : seen) {
                            if (text.cut && text.words.contains(russian))
                                cut.append(place + u": "_s + text.words);
                        }
                    });
    QVERIFY2(cut.isEmpty(), qPrintable(u'\n' + cut.join(u'\n')));
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::LanguageTest)
#include "LanguageTest.moc"
