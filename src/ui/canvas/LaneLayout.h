#pragma once

#include "ui/canvas/SceneLayout.h"

namespace kiv::ui {

/// A piece of work on its lane. Lengths are device-independent pixels.
struct LaneBlock {
    Q_GADGET
    QML_VALUE_TYPE(laneBlock)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(kiv::canvas::WorkStatus status MEMBER status)
    Q_PROPERTY(double x MEMBER x)
    Q_PROPERTY(double y MEMBER y)
    Q_PROPERTY(double width MEMBER width)
    Q_PROPERTY(double signX MEMBER signX)
    Q_PROPERTY(double titleX MEMBER titleX)
    Q_PROPERTY(double titleWidth MEMBER titleWidth)
public:
    QString title;
    canvas::WorkStatus status = canvas::WorkStatus::Unknown;
    double x = 0; ///< from the left edge of the track
    double y = 0; ///< from the top of the lane
    double width = 0;
    double signX = 0;      ///< of the sign of the status, from the left edge of the block
    double titleX = 0;     ///< of the title, from the left edge of the block
    double titleWidth = 0; ///< 0: there is no room for it
    friend bool operator==(const LaneBlock &, const LaneBlock &) = default;
};

/// A lane as it is drawn.
struct LaneRow {
    Q_GADGET
    QML_VALUE_TYPE(laneRow)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString role MEMBER role)
    Q_PROPERTY(double height MEMBER height)
    Q_PROPERTY(QList<kiv::ui::LaneBlock> blocks MEMBER blocks)
public:
    QString name;
    QString role;
    double height = 0;
    QList<LaneBlock> blocks;
    friend bool operator==(const LaneRow &, const LaneRow &) = default;
};

/// Where the work of each agent lies. A block is as long as its share of the track, and longer for
/// its title where the track behind it is free: positions are order, not time. Blocks that would
/// overlap go to a further row of their lane, and so do blocks that would cut a title short while
/// there is height to spare. The lanes share the height as far as they have use for it. The width
/// is that of the track, the font that of the titles.
class LaneLayout : public kiv::ui::SceneLayout {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<kiv::ui::LaneRow> lanes READ lanes NOTIFY changed)
    Q_PROPERTY(double contentHeight READ contentHeight NOTIFY changed)
    /// What a title needs; the lanes are as much higher.
    Q_PROPERTY(double blockHeight READ blockHeight WRITE setBlockHeight NOTIFY blockHeightChanged)
public:
    static constexpr double leastBlock = 32;
    static constexpr double signSize = 14;

    using SceneLayout::SceneLayout;

    QList<LaneRow> lanes() const { return m_lanes; }
    double contentHeight() const { return m_contentHeight; }
    double blockHeight() const { return m_blockHeight; }
    void setBlockHeight(double height);

Q_SIGNALS:
    void blockHeightChanged();

protected:
    void layOut() override;

private:
    int rowsToSpare() const;
    int pack(const canvas::Lane &lane, int spareRows, QList<LaneBlock> &blocks) const;
    double wantedWidth(const LaneBlock &block) const;

    QList<LaneRow> m_lanes;
    double m_contentHeight = 0;
    double m_blockHeight = 40;
};

} // namespace kiv::ui
