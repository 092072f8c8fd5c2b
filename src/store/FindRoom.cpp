#include "store/FindRoom.h"

#include "base/Background.h"
#include "store/AppStore.h"
#include "text/MDParser.h"

#include <algorithm>

namespace kiv::store {

using text::SearchText;
using text::WordPlace;

namespace {

SearchText read(const QString &body, Who who) {
    if (who == Who::You)
        return SearchText(text::plainParts(body), SearchText::Markup::None);
    return SearchText(text::partsOf(text::MDParser::parse(body)), SearchText::Markup::Read);
}

} // namespace

FindRoom::FindRoom(AppStore &store) : m_store(store) {
    MessageModel *messages = store.chat()->msgs();
    connect(messages, &MessageModel::countChanged, this, &FindRoom::schedule);
    connect(messages, &MessageModel::dataChanged, this,
            [this](const QModelIndex &, const QModelIndex &, const QList<int> &roles) {
                if (roles.contains(MessageModel::BodyRole))
                    schedule();
            });
    connect(store.layout(), &LayoutRoom::dockOpenChanged, this, [this] {
        if (!m_store.layout()->dockOpen())
            close();
    });
}

void FindRoom::open() {
    if (!m_store.layout()->dockOpen())
        m_store.layout()->toggleDock();
    if (!m_shown) {
        m_shown = true;
        m_isAsked = true;
        schedule();
    }
    Q_EMIT opened();
}

void FindRoom::close() {
    m_shown = false;
    m_work.cancel();
    m_searching = false;
    m_fromMessage = {};
    clear();
    m_messages.clear();
    m_rows.clear();
}

void FindRoom::look(const QString &pattern, const QString &from) {
    if (!m_shown || pattern == m_pattern)
        return;
    m_pattern = pattern;
    m_isAsked = true;
    if (m_current < 0) {
        m_fromMessage = QUuid::fromString(from);
        m_fromPlace = {};
    }
    schedule();
}

void FindRoom::schedule() {
    if (!m_shown)
        return;
    m_isStale = true;
    if (m_work.running())
        return;
    m_work.start([this](Cancel cancel) { return search(std::move(cancel)); });
}

QCoro::Task<void> FindRoom::search(Cancel cancel) {
    m_searching = true;
    while (std::exchange(m_isStale, false)) {
        auto job = [sources = sources(), pattern = pattern()] {
            return searched(sources, pattern);
        };
        Searched result = co_await inBackground(std::move(job), cancel);
        if (result.pattern == m_pattern)
            take(std::move(result));
    }
    m_searching = false;
}

QList<FindRoom::Source> FindRoom::sources() const {
    QList<Source> sources;
    const MessageModel &messages = *m_store.chat()->msgs();
    sources.reserve(messages.count());
    for (int row = 0; row < messages.count(); ++row) {
        const Msg &message = messages.messages().at(row);
        Source source{message.id,
                      messages.index(row).data(MessageModel::BodyRole).toString(),
                      message.who,
                      {}};
        const auto known = m_rows.constFind(message.id);
        if (known != m_rows.cend() && m_messages.at(*known).body == source.body)
            source.text = m_messages.at(*known).text;
        sources.append(std::move(source));
    }
    return sources;
}

FindRoom::Searched FindRoom::searched(QList<Source> sources, const QString &pattern) {
    Searched result{pattern, std::move(sources), {}};
    // One line is looked for.
    const text::FoldedText words(QString(pattern).replace(u'\n', u' '));
    for (int i = 0; i < result.sources.size() && !words.isEmpty(); ++i) {
        Source &source = result.sources[i];
        if (!source.text)
            source.text = std::make_shared<const SearchText>(read(source.body, source.who));
        for (const WordPlace &place : source.text->find(words))
            result.matches.append({i, place});
    }
    return result;
}

void FindRoom::take(Searched searched) {
    m_messages = std::move(searched.sources);
    m_matches = std::move(searched.matches);
    m_rows.clear();
    for (int i = 0; i < m_messages.size(); ++i)
        m_rows.insert(m_messages.at(i).id, i);
    m_current = matchToShow();
    keepPlace();
    Q_EMIT foundChanged();
    if (std::exchange(m_isAsked, false) && m_current >= 0)
        Q_EMIT stepped();
}

/// The first from the place where the search stands, and from the top when there is none; the
/// newest when it stands nowhere.
int FindRoom::matchToShow() const {
    if (m_matches.isEmpty() || m_fromMessage.isNull())
        return count() - 1;
    const Match from{m_rows.value(m_fromMessage, 0), m_fromPlace};
    const auto found = std::ranges::lower_bound(m_matches, from);
    return found == m_matches.end() ? 0 : static_cast<int>(found - m_matches.begin());
}

void FindRoom::clear() {
    m_matches.clear();
    m_current = -1;
    Q_EMIT foundChanged();
}

void FindRoom::step(int by) {
    if (!m_shown) {
        open();
        return;
    }
    if (m_current < 0)
        return;
    m_current = (m_current + by + count()) % count();
    keepPlace();
    Q_EMIT foundChanged();
    Q_EMIT stepped();
}

void FindRoom::keepPlace() {
    if (m_current < 0)
        return;
    m_fromMessage = idOf(m_matches.at(m_current));
    m_fromPlace = m_matches.at(m_current).place;
    m_fromPlace.length = 0; // words that become shorter are still there
}

const WordPlace *FindRoom::current() const {
    return m_current < 0 ? nullptr : &m_matches.at(m_current).place;
}

QString FindRoom::currentMessage() const {
    return m_current < 0 ? QString() : idOf(m_matches.at(m_current)).toString(QUuid::WithoutBraces);
}

int FindRoom::currentPart() const {
    return m_current < 0 ? 0 : m_matches.at(m_current).place.part;
}

QList<WordPlace> FindRoom::foundIn(const QString &messageId, int part) const {
    const auto message = m_rows.constFind(QUuid::fromString(messageId));
    if (message == m_rows.cend())
        return {};
    QList<WordPlace> places;
    for (auto match = std::ranges::lower_bound(m_matches, Match{*message, {.part = part}});
         match != m_matches.end() && match->message == *message && match->place.part == part;
         ++match)
        places.append(match->place);
    return places;
}

} // namespace kiv::store
