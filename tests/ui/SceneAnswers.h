#pragma once

#include "canvas/SceneOut.h"

#include <QList>

namespace kiv::ui {

/// An answer that draws a scene.
struct SceneAnswer {
    QString name; ///< the art, then what is special about the data
    QString art;
    QString text;
    /// Texts that have to be on the screen beside those that the scene holds as texts.
    QStringList figures = {};
};

/// Answers for every art of the window: data as in everyday use, one row, 200 rows, names of 120
/// characters in two scripts, and figures that are negative, zero, missing or beyond a hundred
/// per cent, where the art takes such.
QList<SceneAnswer> sceneAnswers();
/// One of them.
SceneAnswer answerNamed(const QString &name);

/// Those of decisions, funnels, parts and cash flows.
QList<SceneAnswer> chartAnswers();
/// Those of agents, briefs and retrospectives.
QList<SceneAnswer> cardAnswers();

/// The scene of an answer, as the window draws it. An answer that does not draw its art ends the
/// test.
canvas::SceneOut sceneOf(const SceneAnswer &answer);

} // namespace kiv::ui
