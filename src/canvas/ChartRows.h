#pragma once

#include "canvas/SceneEnums.h"

#include <QList>
#include <QMetaType>
#include <QString>
#include <QtQmlIntegration/qqmlintegration.h>

/// The rows of scenes made of bars and lines. Texts are what is shown; percentages and lengths have
/// been worked out. Each is a gadget, so that a view reads its fields by name.
namespace kiv::canvas {

/// A stream of work, value against target.
struct Stream {
    Q_GADGET
    QML_VALUE_TYPE(stream)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(int pct MEMBER pct)
    Q_PROPERTY(QString note MEMBER note)
    Q_PROPERTY(bool good MEMBER good)
    Q_PROPERTY(int target MEMBER target)
public:
    QString name;
    int pct = 0; ///< length of the bar
    QString note;
    bool good = false;
    int target = -1; ///< where the target's tick stands, as a percentage; -1 without a target
    friend bool operator==(const Stream &, const Stream &) = default;
};

/// A stage of a funnel.
struct FnStage {
    Q_GADGET
    QML_VALUE_TYPE(fnStage)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString n MEMBER n)
    Q_PROPERTY(double w MEMBER w)
    Q_PROPERTY(QString conv MEMBER conv)
    Q_PROPERTY(QString drop MEMBER drop)
    Q_PROPERTY(bool last MEMBER last)
public:
    QString name;
    QString n;    ///< the count as shown
    double w = 0; ///< width relative to the first stage, 0 to 1
    QString conv; ///< share of the stage before that reached this one; empty for the first
    QString drop; ///< share that did not
    bool last = false;
    friend bool operator==(const FnStage &, const FnStage &) = default;
};

/// A part of a whole; position and width are percentages of it.
struct UeRow {
    Q_GADGET
    QML_VALUE_TYPE(ueRow)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(double left MEMBER left)
    Q_PROPERTY(double w MEMBER w)
    Q_PROPERTY(kiv::canvas::SceneColor color MEMBER color)
    Q_PROPERTY(QString value MEMBER value)
public:
    QString name;
    double left = 0;
    double w = 0;
    SceneColor color = SceneColor::Violet;
    QString value;
    friend bool operator==(const UeRow &, const UeRow &) = default;
};

/// A cost row; `pct` is relative to the largest amount, negative for an amount below zero.
struct CoRow {
    Q_GADGET
    QML_VALUE_TYPE(coRow)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString sub MEMBER sub)
    Q_PROPERTY(QString amount MEMBER amount)
    Q_PROPERTY(double pct MEMBER pct)
    Q_PROPERTY(kiv::canvas::SceneColor color MEMBER color)
public:
    QString name;
    QString sub;
    QString amount;
    double pct = 0;
    SceneColor color = SceneColor::Violet;
    friend bool operator==(const CoRow &, const CoRow &) = default;
};

/// A segment of a stacked bar; `w` is a percentage of it.
struct Seg {
    Q_GADGET
    QML_VALUE_TYPE(seg)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(double w MEMBER w)
    Q_PROPERTY(kiv::canvas::SceneColor bg MEMBER bg)
public:
    QString label;
    double w = 0;
    SceneColor bg = SceneColor::Violet;
    friend bool operator==(const Seg &, const Seg &) = default;
};

/// A period of a cash-flow chart.
struct CfMonth {
    Q_GADGET
    QML_VALUE_TYPE(cfMonth)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(double inH MEMBER inH)
    Q_PROPERTY(double outH MEMBER outH)
    Q_PROPERTY(qint64 bal MEMBER bal)
    Q_PROPERTY(double balY MEMBER balY)
    Q_PROPERTY(QString in MEMBER in)
    Q_PROPERTY(QString out MEMBER out)
    Q_PROPERTY(QString balance MEMBER balance)
public:
    QString name;
    double inH = 0; ///< length of the bar of what came in, a percentage of the plot's height
    double outH = 0;
    qint64 bal = 0;  ///< the balance, rounded
    double balY = 0; ///< the balance's height on the plot, a percentage from its foot
    QString in;      ///< the figures as shown; empty where the answer has none
    QString out;
    QString balance;
    friend bool operator==(const CfMonth &, const CfMonth &) = default;
};

/// A person and their load. `pct` is the real figure; a bar ends at 100.
struct WlRow {
    Q_GADGET
    QML_VALUE_TYPE(wlRow)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString role MEMBER role)
    Q_PROPERTY(int pct MEMBER pct)
    Q_PROPERTY(kiv::canvas::SceneColor color MEMBER color)
public:
    QString name;
    QString role;
    int pct = 0;
    SceneColor color = SceneColor::Violet;
    friend bool operator==(const WlRow &, const WlRow &) = default;
};

/// A budget line; both lengths are percentages of the largest figure of the scene.
struct BgRow {
    Q_GADGET
    QML_VALUE_TYPE(bgRow)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString plan MEMBER plan)
    Q_PROPERTY(QString actual MEMBER actual)
    Q_PROPERTY(double planPct MEMBER planPct)
    Q_PROPERTY(double actPct MEMBER actPct)
    Q_PROPERTY(kiv::canvas::SceneColor fill MEMBER fill)
    Q_PROPERTY(QString delta MEMBER delta)
    Q_PROPERTY(bool deltaGood MEMBER deltaGood)
public:
    QString name;
    QString plan;
    QString actual;
    double planPct = 0;
    double actPct = 0;
    SceneColor fill = SceneColor::Violet;
    QString delta; ///< deviation from the plan in per cent
    bool deltaGood = false;
    friend bool operator==(const BgRow &, const BgRow &) = default;
};

} // namespace kiv::canvas
