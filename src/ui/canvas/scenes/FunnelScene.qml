pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// Stages from first to last: bars that get narrower, and what was lost between two of them.
ArtScene {
    id: funnel

    readonly property bool dense: scene.fnStages.length > 7
    readonly property int nameWidth: Tokens.fit(wide ? 204 : 148)
    readonly property int convWidth: Math.max(narrow ? 88 : wide ? 128 : 96, Math.ceil(conversion.implicitWidth) + 12)

    marks: scene.fnStages.length

    ColumnWidth {
        id: counts

        rows: funnel.scene.fnStages
        field: "n"
        tabular: true
        style: Tokens.type.subheading
        least: Math.max(84, Math.ceil(count.implicitWidth) + 12)
    }
    Item {
        id: head

        x: funnel.side
        y: funnel.headroom
        width: funnel.inner
        height: Tokens.fit(28)
        Accessible.ignored: true

        Label {
            style: Tokens.type.captionStrong
            color: Tokens.t3
            text: qsTr("Stage")
        }
        Label {
            id: count

            x: parent.width - funnel.convWidth - width
            style: Tokens.type.captionStrong
            color: Tokens.t3
            text: qsTr("Count")
        }
        Label {
            id: conversion

            x: parent.width - width
            style: Tokens.type.captionStrong
            color: Tokens.t3
            text: qsTr("Conversion")
        }
    }
    RowList {
        id: rows

        readonly property int gap: funnel.dense ? 20 : 26
        readonly property int laneHeight: leastRow - gap

        art: funnel
        anchors.top: head.bottom
        anchors.bottom: parent.bottom
        anchors.bottomMargin: funnel.footroom
        leastRow: Tokens.fit(funnel.dense ? 36 : 48) + gap + (funnel.narrow ? 8 : 0)
        mostRow: leastRow + 38
        model: SceneModel {
            rows: funnel.scene.fnStages
        }
        delegate: FunnelStage {
            art: funnel
            height: index + 1 === rows.count ? rows.laneHeight : rows.rowHeight
            laneHeight: rows.laneHeight
            nameWidth: funnel.nameWidth
            countWidth: counts.wanted + 16
            convWidth: funnel.convWidth
            // What is lost is told below the stage that it is lost after.
            drop: funnel.scene.fnStages[index + 1]?.drop ?? ""
        }
    }
}
