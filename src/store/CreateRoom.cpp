#include "store/CreateRoom.h"

#include "base/Text.h"
#include "store/AppStore.h"

#include <algorithm>

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

const QString projectWord = u"project"_s;
const QString agentWord = u"agent"_s;

QString stepName(CreateStep step) {
    switch (step) {
    case CreateStep::Kind:
        return CreateRoom::tr("Kind");
    case CreateStep::Template:
        return CreateRoom::tr("Template");
    case CreateStep::Details:
        return CreateRoom::tr("Details");
    case CreateStep::Tools:
        return CreateRoom::tr("Tools and autonomy");
    case CreateStep::Review:
        break;
    }
    return CreateRoom::tr("Review");
}

QString counted(const QString &text, qsizetype limit) {
    return CreateRoom::tr("%1 of %2").arg(characterCount(text)).arg(limit);
}

/// Why a text does not fit; empty when it does.
QString excess(const QString &text, qsizetype limit) {
    const qsizetype over = characterCount(text.trimmed()) - limit;
    if (over <= 0)
        return {};
    return CreateRoom::tr("%Ln character(s) too many", nullptr, static_cast<int>(over));
}

QString titleOf(const QList<CreateChoice> &choices, const QString &id) {
    const auto found = std::ranges::find(choices, id, &CreateChoice::id);
    return found == choices.end() ? QString() : found->title;
}

} // namespace

CreateRoom::CreateRoom(AppStore &store) : m_store(store) {}

template <typename Value>
void CreateRoom::change(Value &member, const Value &value) {
    if (member == value || m_phase.value() != CreatePhase::Editing)
        return;
    member = value;
    Q_EMIT draftChanged();
}

void CreateRoom::start(const QString &kind, const QString &project) {
    if (m_open)
        return;
    m_catalogue = CreateCatalogue::read();
    for (const CreateKind each : {CreateKind::Project, CreateKind::Agent}) {
        const CreateDraft first = draftOf(m_catalogue.templates(each).first());
        sideOf(each) = {first, first};
    }
    m_parent = project;
    m_kind = kind == agentWord ? CreateKind::Agent : CreateKind::Project;
    m_step = kind.isEmpty() ? CreateStep::Kind : CreateStep::Template;
    Q_EMIT kindChanged(); // of a fresh catalogue
    Q_EMIT draftChanged();
    m_open = true;
}

void CreateRoom::retranslate() {
    if (!m_open)
        return;
    m_catalogue = CreateCatalogue::read();
    Q_EMIT openChanged();
    Q_EMIT kindChanged();
    Q_EMIT draftChanged();
}

void CreateRoom::setKind(CreateKind kind) {
    if (m_phase.value() != CreatePhase::Editing)
        return;
    m_kind = kind;
    m_complaining = false;
    m_failure = QString();
    Q_EMIT draftChanged();
}

QList<CreateStep> CreateRoom::steps() const {
    QList<CreateStep> steps{CreateStep::Kind, CreateStep::Template, CreateStep::Details};
    if (m_kind.value() == CreateKind::Agent)
        steps.append(CreateStep::Tools);
    steps.append(CreateStep::Review);
    return steps;
}

QStringList CreateRoom::stepNames() const {
    QStringList names;
    const QList<CreateStep> all = steps();
    for (const CreateStep step : all)
        names.append(stepName(step));
    return names;
}

QList<CreateChoice> CreateRoom::kinds() {
    return {
        {projectWord, u"layers"_s, tr("Project"), tr("A room of its own for people and agents")},
        {agentWord, u"agents"_s, tr("Agent"), tr("Somebody who does one kind of work")}};
}

QList<CreateChoice> CreateRoom::templates() const {
    QList<CreateChoice> choices;
    for (const CreateTemplate &each : m_catalogue.templates(m_kind))
        choices.append({each.id, each.icon, each.title, each.summary});
    return choices;
}

QList<CreateChoice> CreateRoom::parents() const {
    QList<CreateChoice> choices{{{}, u"agents"_s, tr("No project"), tr("Works on its own")}};
    const QList<Project> projects = m_store.scope()->projects();
    for (const Project &project : projects)
        choices.append({project.id, u"layers"_s, project.name, project.meta});
    return choices;
}

void CreateRoom::setTemplateId(const QString &id) {
    const QList<CreateTemplate> &templates = m_catalogue.templates(m_kind);
    const auto found = std::ranges::find(templates, id, &CreateTemplate::id);
    if (found == templates.end() || id == templateId())
        return;
    CreateDraft draft = side().draft;
    draft.fill(*found, side().filled);
    side().filled = draftOf(*found);
    change(side().draft, draft);
}

void CreateRoom::setName(const QString &name) {
    change(side().draft.name, name);
}

void CreateRoom::setText(const QString &text) {
    change(side().draft.text, text);
}

void CreateRoom::setLevel(const QString &id) {
    change(side().draft.autonomy, id);
}

void CreateRoom::setParentId(const QString &project) {
    change(m_parent, project);
}

QString CreateRoom::parentName() const {
    return titleOf(parents(), m_parent);
}

void CreateRoom::toggleTool(const QString &id) {
    // In the catalogue's order, so that a tool taken and given back changes nothing.
    QStringList chosen;
    for (const CreateChoice &tool : std::as_const(m_catalogue.tools)) {
        if (draft().tools.contains(tool.id) != (tool.id == id))
            chosen.append(tool.id);
    }
    change(side().draft.tools, chosen);
}

QList<bool> CreateRoom::toolMarks() const {
    QList<bool> marks;
    for (const CreateChoice &tool : m_catalogue.tools)
        marks.append(draft().tools.contains(tool.id));
    return marks;
}

qsizetype CreateRoom::textLimit() const {
    return m_kind.value() == CreateKind::Project ? CreateDraft::briefLimit : CreateDraft::roleLimit;
}

QString CreateRoom::nameCount() const {
    return counted(name(), CreateDraft::nameLimit);
}

QString CreateRoom::textCount() const {
    return counted(text(), textLimit());
}

QString CreateRoom::nameError() const {
    if (m_complaining && name().trimmed().isEmpty())
        return tr("Give it a name");
    return excess(name(), CreateDraft::nameLimit);
}

QString CreateRoom::textError() const {
    if (m_complaining && m_kind.value() == CreateKind::Agent && text().trimmed().isEmpty())
        return tr("Say what it does, in a word or two");
    return excess(text(), textLimit());
}

QList<CreateChoice> CreateRoom::review() const {
    const bool agent = m_kind.value() == CreateKind::Agent;
    const QString words = text().trimmed();
    QList<CreateChoice> lines{{u"name"_s, {}, tr("Name"), name().trimmed()}};
    if (!agent) {
        lines.append({u"text"_s, {}, tr("Brief"), words.isEmpty() ? tr("None") : words});
        return lines;
    }
    QStringList chosen;
    for (const QString &tool : draft().tools)
        chosen.append(titleOf(m_catalogue.tools, tool));
    lines.append({u"text"_s, {}, tr("Role"), words});
    lines.append({u"parent"_s, {}, tr("Project"), parentName()});
    lines.append(
        {u"tools"_s, {}, tr("Tools"), chosen.isEmpty() ? tr("None") : chosen.join(u", "_s)});
    lines.append({u"autonomy"_s, {}, tr("Autonomy"), titleOf(m_catalogue.autonomy, level())});
    return lines;
}

bool CreateRoom::isComplete() const {
    return nameError().isEmpty() && textError().isEmpty();
}

void CreateRoom::next() {
    if (m_phase.value() == CreatePhase::Created)
        return openCreated();
    if (m_phase.value() == CreatePhase::Sending)
        return;
    if (m_step.value() == CreateStep::Details || m_step.value() == CreateStep::Review) {
        m_complaining = true;
        Q_EMIT draftChanged();
        if (!isComplete()) {
            m_step = CreateStep::Details;
            return;
        }
    }
    if (m_step.value() == CreateStep::Review)
        return submit();
    m_step = steps().at(stepNumber());
}

void CreateRoom::back() {
    if (stepNumber() > 1)
        goTo(stepNumber() - 1);
}

void CreateRoom::goTo(int number) {
    if (m_phase.value() == CreatePhase::Editing && number >= 1 && number < stepNumber())
        m_step = steps().at(number - 1);
}

bool CreateRoom::isEdited() const {
    return std::ranges::any_of(m_sides, [](const Side &each) { return each.draft != each.filled; });
}

void CreateRoom::requestClose() {
    if (m_phase.value() != CreatePhase::Created && isEdited())
        m_asking = true;
    else
        close();
}

void CreateRoom::giveWay() {
    if (m_phase.value() == CreatePhase::Created || !isEdited())
        close();
}

void CreateRoom::close() {
    m_work.cancel();
    m_asking = false;
    m_open = false;
    m_phase = CreatePhase::Editing;
    m_failure = QString();
    m_notice = QString();
    m_complaining = false;
    m_listed = false;
    m_createdId.clear();
    m_sides = {};
    m_parent.clear();
}

} // namespace kiv::store
