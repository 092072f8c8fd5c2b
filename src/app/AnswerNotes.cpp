#include "app/AnswerNotes.h"

#include "base/Text.h"
#include "store/AppStore.h"
#include "text/MDParser.h"

#include <QWindow>

namespace kiv::app {

namespace {

constexpr qsizetype mostCharacters = 80;

QString wordsOf(const QString &marked) {
    QString words;
    for (const text::MDParser::InlineSpan &span : text::MDParser::inlineSpans(marked))
        words += span.text;
    return words.simplified();
}

QString firstOf(const text::MDBlock &block) {
    using Block = text::MDBlock;
    if (const auto *heading = std::get_if<Block::Heading>(&block.kind))
        return heading->text;
    if (const auto *paragraph = std::get_if<Block::Paragraph>(&block.kind))
        return paragraph->text.section(u'\n', 0, 0);
    if (const auto *bullets = std::get_if<Block::Bullets>(&block.kind))
        return bullets->items.value(0);
    if (const auto *quote = std::get_if<Block::Quote>(&block.kind))
        return quote->lines.value(0);
    return {};
}

} // namespace

AnswerNotes::AnswerNotes(store::AppStore &store, desktop::Notifier &notifier)
    : m_store(store), m_notifier(notifier) {
    connect(store.chat(), &store::ChatRoom::answerEnded, this, &AnswerNotes::tell);
    connect(store.chat(), &store::ChatRoom::answerFailed, this,
            [this] { show(tr("No answer came")); });
    connect(store.notices(), &store::NoticeRoom::wantedChanged, this, [this] {
        if (!m_store.notices()->wanted())
            m_notifier.withdraw();
    });
}

void AnswerNotes::setWindow(QWindow *window) {
    m_window = window;
    if (window)
        connect(window, &QWindow::activeChanged, this, [this] {
            if (isLookedAt())
                m_notifier.withdraw();
        });
}

bool AnswerNotes::isLookedAt() const {
    return m_window && m_window->isActive();
}

QString AnswerNotes::firstLine(const QString &answer) {
    const QList<text::MDBlock> blocks = text::MDParser::parse(answer);
    const QString line = blocks.isEmpty() ? QString() : wordsOf(firstOf(blocks.first()));
    const QString shown = firstCharacters(line, mostCharacters);
    return shown.size() < line.size() ? shown.trimmed() + u'…' : shown;
}

void AnswerNotes::tell(const QUuid &answer) {
    const store::MessageModel *messages = m_store.chat()->msgs();
    const qsizetype row = messages->rowOf(answer);
    if (row < 0 || std::exchange(m_told, answer) == answer)
        return;
    const QString line = firstLine(messages->messages().at(row).shown);
    show(line.isEmpty() ? tr("The answer is there") : line);
}

void AnswerNotes::show(const QString &text) {
    if (!m_store.notices()->wanted() || !m_window || isLookedAt())
        return;
    m_notifier.show({.topic = m_store.door()->current().toString(),
                     .title = m_store.scope()->scopeName(),
                     .text = text});
}

} // namespace kiv::app
