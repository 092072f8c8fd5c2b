#include "soak/PersonSteps.h"

#include "soak/Places.h"
#include "soak/Stage.h"

#include <QFile>

namespace kiv::soak {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using store::Msg;

namespace {

constexpr const char16_t *questions[] = {
    u"Weekly report",
    u"Compare the hosting options",
    u"What is the status?",
    u"Show the trial funnel",
    u"What does one invoice cost?",
    u"The retro",
    u"What needs me today?",
    u"Explain how this works",
    u"Who does what?",
    u"Spend by project",
    u"Отчёт за неделю",
    u"Hello",
    u"The goals",
    u"What next?",
};
constexpr const char16_t *words[] = {u"and",   u"the invoices", u"of March",   u"для севера",
                                     u"again", u"as a table",   u"\U0001F680", u"please"};
constexpr const char16_t *profileFields[] = {u"full_name", u"company_name", u"industry"};

QString pick(Random &random, const auto &texts) {
    return QString::fromUtf16(random.of(texts));
}

store::ChatRoom &room(Stage &stage) {
    return *stage.store().chat();
}

QString idOf(const Msg &message) {
    return message.id.toString(QUuid::WithoutBraces);
}

QList<Msg> messagesWhere(Stage &stage, auto holds) {
    QList<Msg> found;
    for (const Msg &message : room(stage).msgs()->messages()) {
        if (holds(message))
            found.append(message);
    }
    return found;
}

bool isFailed(const Msg &message) {
    return message.isUnsent() && message.failed;
}

/// What is typed from now on is the draft of this chat.
void leaveDraft(Stage &stage) {
    if (const auto chat = stage.chat())
        stage.ledger.drafts[*chat] = room(stage).draft();
}

/// Whether its row, when the reply is lost, is taken for an older one: only the time tells.
bool isMistimed(Stage &stage, const Msg &message) {
    return !message.follows && stage.clock.wallAhead() > 2min;
}

/// Takes down what `send` has sent, if anything: a new message of ours at the end.
void sending(Stage &stage, auto send) {
    QSet<QUuid> before;
    for (const Msg &message : room(stage).msgs()->messages())
        before.insert(message.id);
    const auto chat = stage.chat();
    send();
    for (const Msg &message : room(stage).msgs()->messages()) {
        if (chat && message.isUnsent() && !before.contains(message.id)) {
            stage.ledger.send(*chat, message.text, message.attachments.size(),
                              isMistimed(stage, message));
            stage.note(
                u"  %1 to %2"_s.arg(Ledger::tag(Ledger::numberIn(message.text)), chat->path));
            ++stage.tally[u"questions"_s];
        }
    }
    leaveDraft(stage);
}

} // namespace

bool isSignedIn(Stage &stage) {
    return stage.store().scope()->auth() == store::AuthPhase::SignedIn;
}

bool isSignedOut(Stage &stage) {
    return stage.store().scope()->auth() == store::AuthPhase::Anon &&
           !stage.store().session()->busy() && stage.leaving.isEmpty();
}

bool isInChat(Stage &stage) {
    return isSignedIn(stage) && stage.chat() &&
           room(stage).connected() == stage.store().scope()->chatTarget();
}

bool hasFailed(Stage &stage) {
    return isInChat(stage) && !messagesWhere(stage, isFailed).isEmpty();
}

bool hasFiles(Stage &stage) {
    return isInChat(stage) && stage.store().attachments()->chatFiles()->count() > 0;
}

bool canStop(Stage &stage) {
    return isInChat(stage) && room(stage).canStop();
}

void ask(Stage &stage) {
    // What was typed before goes along, unless it has become too much.
    const QString typed = room(stage).draft().size() < 2000 ? room(stage).draft() : QString();
    stage.ledger.drop(room(stage).draft());
    const QString text = stage.ledger.numbered(pick(stage.random, questions) + u' ' + typed);
    room(stage).setDraft(text);
    leaveDraft(stage);
    sending(stage, [&] { room(stage).sendDraft(); });
}

void askFromCanvas(Stage &stage) {
    const QString text = stage.ledger.numbered(pick(stage.random, questions));
    sending(stage, [&] { room(stage).send(text); });
}

void type(Stage &stage) {
    for (int left = stage.random.between(1, 4); left > 0; --left)
        room(stage).setDraft(room(stage).draft() + pick(stage.random, words) + u' ');
    leaveDraft(stage);
}

void clearDraft(Stage &stage) {
    stage.ledger.drop(room(stage).draft());
    room(stage).setDraft(QString());
    leaveDraft(stage);
}

/// A file of the person's.
QUrl notes(Stage &stage, int number) {
    const MainThread::OwnDoing writing(stage.thread);
    const QString path = stage.folder.filePath(u"notes-%1.txt"_s.arg(number));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(QByteArray(stage.random.between(1, 60'000), 'n'));
    return QUrl::fromLocalFile(path);
}

void attach(Stage &stage) {
    QList<QUrl> files;
    for (int left = stage.random.between(1, 3); left > 0; --left) {
        files.append(notes(stage, left));
    }
    stage.store().attachments()->uploadChatFiles(files);
}

/// A file of the next message by chance.
QString someFile(Stage &stage) {
    const store::AttachmentModel *files = stage.store().attachments()->chatFiles();
    const auto row = static_cast<int>(stage.random.below(files->count()));
    return files->data(files->index(row), store::AttachmentModel::FileIdRole).toString();
}

void removeFile(Stage &stage) {
    stage.store().attachments()->removeChatFile(someFile(stage));
}

void uploadAgain(Stage &stage) {
    stage.store().attachments()->retryUpload(someFile(stage));
}

void retry(Stage &stage) {
    const QList<Msg> failed = messagesWhere(stage, isFailed);
    const Msg &message = stage.random.of(failed);
    // An agent takes a request once; a project room may have taken the first one.
    const auto sent = stage.ledger.sent.find(Ledger::numberIn(message.text));
    if (sent != stage.ledger.sent.end() && room(stage).connected()->isProject())
        ++sent->second.most;
    room(stage).retry(idOf(message));
}

void edit(Stage &stage) {
    const QList<Msg> ours =
        messagesWhere(stage, [](const Msg &message) { return message.who == store::Who::You; });
    if (ours.isEmpty())
        return;
    const Msg &message = stage.random.of(ours);
    room(stage).edit(idOf(message));
    if (!room(stage).draft().contains(message.text))
        stage.fail(u"a message that is edited is not in the draft"_s);
    leaveDraft(stage);
}

void askAgain(Stage &stage) {
    const QList<Msg> answers = messagesWhere(stage, [](const Msg &message) {
        return message.who == store::Who::Agent && message.serverID;
    });
    if (!answers.isEmpty())
        sending(stage, [&] { room(stage).askAgain(idOf(stage.random.of(answers))); });
}

void retryTurn(Stage &stage) {
    for (const Msg &message : messagesWhere(stage, isFailed)) {
        // It may be the one that is sent again.
        const auto sent = stage.ledger.sent.find(Ledger::numberIn(message.text));
        if (sent != stage.ledger.sent.end() && room(stage).connected()->isProject())
            ++sent->second.most;
    }
    sending(stage, [&] { room(stage).retryTurn(); });
}

void pickReply(Stage &stage) {
    const QList<Msg> offers =
        messagesWhere(stage, [](const Msg &message) { return !message.chips.isEmpty(); });
    if (offers.isEmpty())
        return;
    const Msg &offer = stage.random.of(offers);
    sending(stage, [&] { room(stage).pickChip(idOf(offer), offer.chips.constFirst()); });
}

void stop(Stage &stage) {
    room(stage).stopLive();
}

void changeScope(Stage &stage) {
    stage.isCleared = false;
    store::ScopeRoom &scope = *stage.store().scope();
    const QList<Place> known = places(scope);
    enter(scope, stage.random.of(known));
}

void newChat(Stage &stage) {
    stage.ledger.drop(room(stage).draft());
    stage.isCleared = true;
    room(stage).newChat();
    leaveDraft(stage);
}

void showOlder(Stage &stage) {
    room(stage).showOlder();
}

void find(Stage &stage) {
    store::FindRoom *finding = stage.store().find();
    finding->open();
    finding->look(stage.random.oneIn(2) ? u"the"_s : u"отчёт"_s, {});
    finding->next();
    if (stage.random.oneIn(2))
        finding->close();
}

void walkHistory(Stage &stage) {
    store::CanvasRoom *canvas = stage.store().canvas();
    switch (stage.random.between(0, 3)) {
    case 0:
        return canvas->stepBack();
    case 1:
        return canvas->openHistory(stage.random.between(0, 5));
    case 2:
        return canvas->clearCanvas();
    default:
        break;
    }
    const QList<Msg> drawn =
        messagesWhere(stage, [](const Msg &message) { return !message.art.isEmpty(); });
    if (!drawn.isEmpty())
        canvas->showMessageCanvas(idOf(stage.random.of(drawn)));
}

void showEvents(Stage &stage) {
    stage.store().canvas()->openPanel(u"events"_s);
}

void editProfile(Stage &stage) {
    store::AccountRoom *account = stage.store().account();
    account->loadProfile();
    store::AccountField *field = account->field(pick(stage.random, profileFields));
    field->edit(u"Somebody %1"_s.arg(stage.steps));
    field->commit();
}

void movePanels(Stage &stage) {
    store::LayoutRoom *layout = stage.store().layout();
    switch (stage.random.between(0, 4)) {
    case 0:
        return layout->toggleDock();
    case 1:
        return layout->toggleRail();
    case 2:
        return layout->dragRail(stage.random.between(200, 500));
    case 3:
        return layout->toggleHist();
    default:
        return layout->toggleEvents();
    }
}

void changeLook(Stage &stage) {
    store::AppearanceRoom *appearance = stage.store().appearance();
    if (stage.random.oneIn(2))
        appearance->chooseTheme(stage.random.oneIn(2) ? store::Theme::Dark : store::Theme::Light);
    else
        appearance->chooseLanguage(stage.random.oneIn(2) ? store::Language::Russian
                                                         : store::Language::English);
}

void signOut(Stage &stage) {
    stage.leaving = stage.store().scope()->userEmail();
    stage.store().session()->logout();
}

void signIn(Stage &stage) {
    const User &user = stage.random.of(stage.users);
    stage.store().session()->openAuthSheet(store::AuthSheetMode::Login);
    stage.store().session()->submitAuth(user.email, user.password, false);
}

void reopen(Stage &stage) {
    stage.close();
    stage.open();
}

} // namespace kiv::soak
