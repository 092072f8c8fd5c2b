#pragma once

#include "canvas/CardRows.h"
#include "canvas/ChartRows.h"

#include <QPointF>
#include <QtQmlIntegration/qqmlintegration.h>

namespace kiv::canvas {

/// One scene, complete and ready to draw. What a scene does not use stays empty.
struct SceneOut {
    Q_GADGET
    QML_VALUE_TYPE(sceneOut)
    Q_PROPERTY(QString art MEMBER art)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString sub MEMBER sub)
    Q_PROPERTY(QString countLine MEMBER countLine)
    Q_PROPERTY(QList<kiv::canvas::KpiCard> kpiCards MEMBER kpiCards)
    Q_PROPERTY(QStringList highlights MEMBER highlights)
    Q_PROPERTY(QStringList cpCols MEMBER cpCols)
    Q_PROPERTY(QList<kiv::canvas::CpRow> cpRows MEMBER cpRows)
    Q_PROPERTY(QList<kiv::canvas::CritRow> criteria MEMBER criteria)
    Q_PROPERTY(QString optionA MEMBER optionA)
    Q_PROPERTY(QString optionB MEMBER optionB)
    Q_PROPERTY(int scoreMost MEMBER scoreMost)
    Q_PROPERTY(kiv::canvas::Option better MEMBER better)
    Q_PROPERTY(QString totalA MEMBER totalA)
    Q_PROPERTY(QString totalB MEMBER totalB)
    Q_PROPERTY(QString recTitle MEMBER recTitle)
    Q_PROPERTY(QString recText MEMBER recText)
    Q_PROPERTY(bool tie MEMBER tie)
    Q_PROPERTY(QList<kiv::canvas::Lane> lanes MEMBER lanes)
    Q_PROPERTY(QString agentSummary MEMBER agentSummary)
    Q_PROPERTY(QList<kiv::canvas::Stream> streams MEMBER streams)
    Q_PROPERTY(QString statusSummary MEMBER statusSummary)
    Q_PROPERTY(QString insight MEMBER insight)
    Q_PROPERTY(QList<kiv::canvas::FnStage> fnStages MEMBER fnStages)
    Q_PROPERTY(QList<kiv::canvas::UeRow> ueRows MEMBER ueRows)
    Q_PROPERTY(QList<kiv::canvas::KpiCard> ueKpis MEMBER ueKpis)
    Q_PROPERTY(QList<kiv::canvas::BriefCol> groups MEMBER groups)
    Q_PROPERTY(QList<kiv::canvas::CoRow> coRows MEMBER coRows)
    Q_PROPERTY(QString coTotal MEMBER coTotal)
    Q_PROPERTY(QString coTotalSub MEMBER coTotalSub)
    Q_PROPERTY(QList<kiv::canvas::Seg> coSegs MEMBER coSegs)
    Q_PROPERTY(QList<kiv::canvas::CfMonth> cfMonths MEMBER cfMonths)
    Q_PROPERTY(QList<QPointF> cfLine MEMBER cfLine)
    Q_PROPERTY(double cfLow MEMBER cfLow)
    Q_PROPERTY(double cfHigh MEMBER cfHigh)
    Q_PROPERTY(QList<kiv::canvas::OkObj> okObjs MEMBER okObjs)
    Q_PROPERTY(QList<kiv::canvas::WlRow> wlRows MEMBER wlRows)
    Q_PROPERTY(QList<kiv::canvas::BgRow> bgRows MEMBER bgRows)
public:
    QString art; ///< one of the fourteen
    QString title;
    QString sub;             ///< the line under the heading
    QString countLine;       ///< how much there is, such as "4 rows · from the answer"
    QList<KpiCard> kpiCards; ///< report: headline figures
    QStringList highlights;  ///< report: short lines
    QStringList cpCols;      ///< compare: every column, that of the names included
    QList<CpRow> cpRows;     ///< compare
    QList<CritRow> criteria; ///< decision
    QString optionA;         ///< decision: the first option's name
    QString optionB;
    int scoreMost = 0; ///< decision: the highest score that can be given, else the highest given
    Option better = Option::None; ///< decision: the one with the higher total
    QString totalA; ///< decision: the first option's total; empty when scores are not all
    QString totalB;
    QString recTitle; ///< decision: heading of the recommendation
    QString recText;
    bool tie = false;        ///< decision: the two options score even
    QList<Lane> lanes;       ///< agents
    QString agentSummary;    ///< agents: one line over the lanes
    QList<Stream> streams;   ///< status
    QString statusSummary;   ///< status: one line over the streams
    QString insight;         ///< one sentence on how the figures are drawn
    QList<FnStage> fnStages; ///< funnel
    QList<UeRow> ueRows;     ///< unit: parts of a whole
    QList<KpiCard> ueKpis;   ///< unit: figures beside the parts
    QList<BriefCol> groups;  ///< brief and retro: columns of cards
    QList<CoRow> coRows;     ///< costs
    QString coTotal;         ///< costs, unit: the sum as shown; empty when a sum would mean nothing
    QString coTotalSub; ///< the line under it; unit: what the sum counts, empty for nothing to say
    QList<Seg> coSegs;  ///< costs: the stacked bar
    QList<CfMonth> cfMonths; ///< cashflow
    QList<QPointF> cfLine; ///< cashflow: the balance line; x and y are percentages, y from the foot
    double cfLow = 0;      ///< cashflow: the value at the foot of the plot, 0 or below
    double cfHigh = 0;     ///< cashflow: the value at its top
    QList<OkObj> okObjs;   ///< okr
    QList<WlRow> wlRows;   ///< workload
    QList<BgRow> bgRows;   ///< budget
    friend bool operator==(const SceneOut &, const SceneOut &) = default;
};

} // namespace kiv::canvas
