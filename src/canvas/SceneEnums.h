#pragma once

#include <QMetaType>
#include <QtQmlIntegration/qqmlintegration.h>
#include <qobjectdefs.h>

/// The closed sets of scenes, under one name for the views: Scene.SceneColor.Violet, …
namespace kiv::canvas {

Q_NAMESPACE
QML_NAMED_ELEMENT(Scene)

/// The colours that a scene names; the views give them their shades.
enum class SceneColor { Violet, Blue, Green, Amber, Red };
Q_ENUM_NS(SceneColor)

/// How far a piece of work is.
enum class WorkStatus { Unknown, Done, Doing, Todo, Blocked };
Q_ENUM_NS(WorkStatus)

/// One of two options.
enum class Option { None, A, B };
Q_ENUM_NS(Option)

/// How a change is meant: as a view reads an optional "is it good".
enum class Tone { Neutral, Good, Bad };
Q_ENUM_NS(Tone)

} // namespace kiv::canvas
