#pragma once

#include <QObject>
#include <QtQmlIntegration/qqmlintegration.h>

/// The closed sets of the store, under one name for the views: Store.AuthPhase.SignedIn, …
namespace kiv::store {

Q_NAMESPACE
QML_NAMED_ELEMENT(Store)
Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")

/// Whether somebody is signed in; unknown until the session check at start has answered.
enum class AuthPhase { Unknown, Anon, SignedIn };
Q_ENUM_NS(AuthPhase)

/// Which form the sign-in sheet shows; Closed while there is no sheet.
enum class AuthSheetMode { Closed, Login, Signup };
Q_ENUM_NS(AuthSheetMode)

/// The canvas state of a chat turn.
enum class Phase { Idle, Thinking, Building, Done };
Q_ENUM_NS(Phase)

/// What the canvas shows.
enum class CanvasState {
    Empty,
    SignedOut,
    ThinkingSkeleton,
    BuildingScene,
    Scene,
    Page,
    Panel,
    Hint,
    Failed
};
Q_ENUM_NS(CanvasState)

/// The shape of the skeleton: what the question's intent makes likely.
enum class SkeletonShape { Cards, Rows, Board, Plot };
Q_ENUM_NS(SkeletonShape)

/// Who a conversation is with.
enum class ScopeKind { Kiv, Project, Agent };
Q_ENUM_NS(ScopeKind)

/// Which side wrote a message.
enum class Who { You, Agent };
Q_ENUM_NS(Who)

/// The look that the person has chosen; System follows the desktop.
enum class Theme { System, Light, Dark };
Q_ENUM_NS(Theme)

/// The language of the screens that the person has chosen; System follows the desktop.
enum class Language { System, English, Russian };
Q_ENUM_NS(Language)

/// What an error of the sign-in sheet is about.
enum class AuthField { None, Email, Password };
Q_ENUM_NS(AuthField)

/// How far a message of ours has come.
enum class Delivery { Stored, Pending, Failed };
Q_ENUM_NS(Delivery)

/// How far a file of the next message has come.
enum class Upload { Running, Failed, Done };
Q_ENUM_NS(Upload)

/// What kind of picture stands for a file.
enum class FileKind { Document, Image, Table };
Q_ENUM_NS(FileKind)

/// What a row of the rail stands for.
enum class RailRow { Kiv, SectionLabel, Project, Agent };
Q_ENUM_NS(RailRow)

/// What the create wizard makes.
enum class CreateKind { Project, Agent };
Q_ENUM_NS(CreateKind)

/// A page of the create wizard.
enum class CreateStep { Kind, Template, Details, Tools, Review };
Q_ENUM_NS(CreateStep)

/// How far a creation has come; what is created may still have to be opened.
enum class CreatePhase { Editing, Sending, Created };
Q_ENUM_NS(CreatePhase)

/// What an event says about how things go.
enum class EventTone { Neutral, Good, Warning, Bad };
Q_ENUM_NS(EventTone)

/// How far something that is asked for has come.
enum class LoadState { Loading, Ready, Failed };
Q_ENUM_NS(LoadState)

/// How far what the person entered in a field has come: as the server has it, typed over, on its
/// way, just kept, or turned down.
enum class SaveState { Stored, Edited, Saving, Saved, Failed };
Q_ENUM_NS(SaveState)

/// How far a call is; what the call screen shows while one is up.
enum class CallPhase { Connecting, Active, Ending };
Q_ENUM_NS(CallPhase)

/// What a line of a call's transcript is: something said, or something that happened.
enum class CallLineKind { Speech, Event };
Q_ENUM_NS(CallLineKind)

/// Which entry of a password change is wrong.
enum class PasswordFault { None, Current, Changed, Repeated };
Q_ENUM_NS(PasswordFault)

} // namespace kiv::store
