#pragma once

#include "base/Work.h"
#include "store/CreateDraft.h"

#include <QObject>
#include <QProperty>

#include <array>
#include <optional>

namespace kiv::store {

class AppStore;

/// The create wizard: what is being made, page by page, and the call that makes it. Project and
/// agent are filled in apart, so that changing one's mind about the kind loses nothing.
class CreateRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(bool open READ isOpen NOTIFY openChanged)
    Q_PROPERTY(kiv::store::CreateKind kind READ kind WRITE setKind NOTIFY kindChanged)
    Q_PROPERTY(QStringList stepNames READ stepNames NOTIFY kindChanged)
    Q_PROPERTY(QList<kiv::store::CreateChoice> kinds READ kinds NOTIFY openChanged)
    Q_PROPERTY(QList<kiv::store::CreateChoice> templates READ templates NOTIFY kindChanged)
    Q_PROPERTY(QList<kiv::store::CreateChoice> toolChoices READ toolChoices NOTIFY openChanged)
    Q_PROPERTY(QList<kiv::store::CreateChoice> levels READ levels NOTIFY openChanged)
    Q_PROPERTY(QList<kiv::store::CreateChoice> parents READ parents NOTIFY openChanged)
    Q_PROPERTY(kiv::store::CreateStep step READ step NOTIFY stepChanged)
    Q_PROPERTY(int stepNumber READ stepNumber NOTIFY stepChanged)
    Q_PROPERTY(QString templateId READ templateId WRITE setTemplateId NOTIFY draftChanged)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY draftChanged)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY draftChanged)
    Q_PROPERTY(QList<bool> toolMarks READ toolMarks NOTIFY draftChanged)
    Q_PROPERTY(QString level READ level WRITE setLevel NOTIFY draftChanged)
    Q_PROPERTY(QString parentId READ parentId WRITE setParentId NOTIFY draftChanged)
    Q_PROPERTY(QString parentName READ parentName NOTIFY draftChanged)
    Q_PROPERTY(QString nameCount READ nameCount NOTIFY draftChanged)
    Q_PROPERTY(QString textCount READ textCount NOTIFY draftChanged)
    Q_PROPERTY(QString nameError READ nameError NOTIFY draftChanged)
    Q_PROPERTY(QString textError READ textError NOTIFY draftChanged)
    Q_PROPERTY(QList<kiv::store::CreateChoice> review READ review NOTIFY draftChanged)
    Q_PROPERTY(kiv::store::CreatePhase phase READ phase NOTIFY phaseChanged)
    Q_PROPERTY(QString failure READ failure NOTIFY failureChanged)
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
    Q_PROPERTY(bool asking READ isAsking NOTIFY askingChanged)
public:
    explicit CreateRoom(AppStore &store);

    bool isOpen() const { return m_open; }
    CreateKind kind() const { return m_kind; }
    /// As QML writes it: another kind has templates and steps of its own.
    void setKind(CreateKind kind);
    QStringList stepNames() const;
    static QList<CreateChoice> kinds();
    QList<CreateChoice> templates() const;
    QList<CreateChoice> toolChoices() const { return m_catalogue.tools; }
    QList<CreateChoice> levels() const { return m_catalogue.autonomy; }
    /// The projects that an agent can join; the first stands for none.
    QList<CreateChoice> parents() const;
    CreateStep step() const { return m_step; }
    /// Counted from 1.
    int stepNumber() const { return static_cast<int>(steps().indexOf(m_step)) + 1; }

    QString templateId() const { return draft().templateId; }
    void setTemplateId(const QString &id);
    QString name() const { return draft().name; }
    void setName(const QString &name);
    /// The brief of a project, the role of an agent.
    QString text() const { return draft().text; }
    void setText(const QString &text);
    QStringList tools() const { return draft().tools; }
    /// For each of the tool choices, whether the agent may use it.
    QList<bool> toolMarks() const;
    QString level() const { return draft().autonomy; }
    void setLevel(const QString &id);
    /// The project that the agent joins; empty for none.
    QString parentId() const { return m_parent; }
    void setParentId(const QString &project);
    QString parentName() const;

    /// How much of a limit is used, such as "12 of 80".
    QString nameCount() const;
    QString textCount() const;
    /// Why a field cannot stay as it is; empty when it can. What is only missing is named once the
    /// person has tried to go on.
    QString nameError() const;
    QString textError() const;
    /// What will be created, one choice a line.
    QList<CreateChoice> review() const;

    CreatePhase phase() const { return m_phase; }
    /// Why the creation failed.
    QString failure() const { return m_failure; }
    /// What did not go as asked although something was created.
    QString notice() const { return m_notice; }
    /// Whether the person is asked if what they typed may go.
    bool isAsking() const { return m_asking; }

    /// Opens the wizard unless it is open. `kind` is "project" or "agent", or empty to begin with
    /// that question; `project` is the one that a new agent is to join.
    void start(const QString &kind, const QString &project);
    Q_INVOKABLE void toggleTool(const QString &id);
    /// To the next page when this one is complete; from the last one it creates, and opens the chat
    /// of what was created.
    Q_INVOKABLE void next();
    Q_INVOKABLE void back();
    /// To an earlier page.
    Q_INVOKABLE void goTo(int number);
    /// Closes the wizard, after a question if something was filled in.
    Q_INVOKABLE void requestClose();
    Q_INVOKABLE void keepEditing() { m_asking = false; }
    /// The language has changed: the catalogue is another one, what was filled in stays.
    void retranslate();
    /// Something else is to show: the wizard closes unless something was filled in.
    void giveWay();
    /// Closes the wizard and forgets what was filled in.
    Q_INVOKABLE void close();

Q_SIGNALS:
    void openChanged();
    void kindChanged();
    void stepChanged();
    void draftChanged();
    void phaseChanged();
    void failureChanged();
    void noticeChanged();
    void askingChanged();

private:
    struct Side {
        CreateDraft draft;
        CreateDraft filled; ///< what the chosen template has proposed
    };

    Side &sideOf(CreateKind kind) { return m_sides[static_cast<std::size_t>(kind)]; }
    Side &side() { return sideOf(m_kind); }
    const Side &side() const { return m_sides[static_cast<std::size_t>(m_kind.value())]; }
    const CreateDraft &draft() const { return side().draft; }
    QList<CreateStep> steps() const;
    qsizetype textLimit() const;
    bool isEdited() const;
    bool isComplete() const;
    template <typename Value>
    void change(Value &member, const Value &value);

    void submit();
    QCoro::Task<void> create(Cancel cancel);
    QCoro::Task<void> createProject(Cancel cancel);
    QCoro::Task<void> createAgent(Cancel cancel);
    QCoro::Task<void> reloadRail(Cancel cancel);
    void openCreated();
    void enterCreated();

    AppStore &m_store;
    CreateCatalogue m_catalogue;
    std::array<Side, 2> m_sides; ///< by kind
    QString m_parent;
    QString m_createdId;
    bool m_complaining = false;
    bool m_listed = false; ///< the rail knows what was created
    Q_OBJECT_BINDABLE_PROPERTY(CreateRoom, bool, m_open, &CreateRoom::openChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CreateRoom, CreateKind, m_kind, CreateKind::Project,
                                         &CreateRoom::kindChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CreateRoom, CreateStep, m_step, CreateStep::Kind,
                                         &CreateRoom::stepChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CreateRoom, CreatePhase, m_phase, CreatePhase::Editing,
                                         &CreateRoom::phaseChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CreateRoom, QString, m_failure, &CreateRoom::failureChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CreateRoom, QString, m_notice, &CreateRoom::noticeChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CreateRoom, bool, m_asking, &CreateRoom::askingChanged)
    Work m_work;
};

} // namespace kiv::store
