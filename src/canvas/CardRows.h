#pragma once

#include "canvas/SceneEnums.h"

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QtQmlIntegration/qqmlintegration.h>

#include <optional>

/// The rows of scenes made of cards and tables. Texts are what is shown; percentages and lengths
/// have been worked out. Each is a gadget, so that a view reads its fields by name.
namespace kiv::canvas {

/// A headline figure.
struct KpiCard {
    Q_GADGET
    QML_VALUE_TYPE(kpiCard)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString value MEMBER value)
    Q_PROPERTY(QString delta MEMBER delta)
    Q_PROPERTY(QVariant deltaGood READ deltaGoodOrNull)
    Q_PROPERTY(kiv::canvas::Tone tone READ tone STORED false)
public:
    QString label;
    QString value;
    QString delta;                 ///< the change as written
    std::optional<bool> deltaGood; ///< absent: neither good nor bad

    QVariant deltaGoodOrNull() const { return deltaGood ? QVariant(*deltaGood) : QVariant(); }
    Tone tone() const { return !deltaGood ? Tone::Neutral : *deltaGood ? Tone::Good : Tone::Bad; }
    friend bool operator==(const KpiCard &, const KpiCard &) = default;
};

/// A row of a comparison table; `numeric` says of each cell whether it is a figure.
struct CpRow {
    Q_GADGET
    QML_VALUE_TYPE(cpRow)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QStringList cells MEMBER cells)
    Q_PROPERTY(QList<bool> numeric MEMBER numeric)
public:
    QString name;
    QStringList cells;
    QList<bool> numeric;
    friend bool operator==(const CpRow &, const CpRow &) = default;
};

/// A decision criterion with the scores of the two options.
struct CritRow {
    Q_GADGET
    QML_VALUE_TYPE(critRow)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(int a MEMBER a)
    Q_PROPERTY(int b MEMBER b)
public:
    QString name;
    int a = 0;
    int b = 0;
    friend bool operator==(const CritRow &, const CritRow &) = default;
};

/// A piece of work on a lane; position and length are fractions of the lane.
struct LaneTask {
    Q_GADGET
    QML_VALUE_TYPE(laneTask)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(double left MEMBER left)
    Q_PROPERTY(double width MEMBER width)
    Q_PROPERTY(QString status MEMBER status)
public:
    QString title;
    double left = 0;
    double width = 0;
    QString status; ///< one of unknown, blocked, done, doing, todo
    friend bool operator==(const LaneTask &, const LaneTask &) = default;
};

/// An agent and its work, in order.
struct Lane {
    Q_GADGET
    QML_VALUE_TYPE(lane)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString role MEMBER role)
    Q_PROPERTY(QList<kiv::canvas::LaneTask> tasks MEMBER tasks)
public:
    QString name;
    QString role;
    QList<LaneTask> tasks;
    friend bool operator==(const Lane &, const Lane &) = default;
};

/// A card.
struct BriefItem {
    Q_GADGET
    QML_VALUE_TYPE(briefItem)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString meta MEMBER meta)
public:
    QString text;
    QString meta;
    friend bool operator==(const BriefItem &, const BriefItem &) = default;
};

/// A column of cards.
struct BriefCol {
    Q_GADGET
    QML_VALUE_TYPE(briefCol)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(kiv::canvas::SceneColor color MEMBER color)
    Q_PROPERTY(int count MEMBER count)
    Q_PROPERTY(QList<kiv::canvas::BriefItem> items MEMBER items)
public:
    QString name;
    SceneColor color = SceneColor::Violet;
    int count = 0;
    QList<BriefItem> items;
    friend bool operator==(const BriefCol &, const BriefCol &) = default;
};

/// A key result.
struct KeyResult {
    Q_GADGET
    QML_VALUE_TYPE(keyResult)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(int pct MEMBER pct)
    Q_PROPERTY(kiv::canvas::SceneColor color MEMBER color)
public:
    QString title;
    int pct = 0;
    SceneColor color = SceneColor::Violet;
    friend bool operator==(const KeyResult &, const KeyResult &) = default;
};

/// An objective with its key results.
struct OkObj {
    Q_GADGET
    QML_VALUE_TYPE(okObj)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString owner MEMBER owner)
    Q_PROPERTY(QString score MEMBER score)
    Q_PROPERTY(kiv::canvas::SceneColor scoreColor MEMBER scoreColor)
    Q_PROPERTY(QList<kiv::canvas::KeyResult> krs MEMBER krs)
public:
    QString name;
    QString owner;
    QString score; ///< 0.0 to 1.0, one decimal
    SceneColor scoreColor = SceneColor::Violet;
    QList<KeyResult> krs;
    friend bool operator==(const OkObj &, const OkObj &) = default;
};

} // namespace kiv::canvas
