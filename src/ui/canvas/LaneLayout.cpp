#include "ui/canvas/LaneLayout.h"

#include <QFontMetricsF>
#include <QHash>

#include <algorithm>
#include <cmath>

namespace kiv::ui {

using namespace Qt::StringLiterals;
using canvas::WorkStatus;

namespace {

constexpr double lanePadding = 8; ///< above the first and below the last row of blocks
constexpr double laneSpare = 48;  ///< how much higher than a block a lane can be
constexpr double rowGap = 6;
constexpr double blockGap = 4; ///< between neighbours whose fractions touch
constexpr double padding = 12;
constexpr double tightPadding = 8;
constexpr double tightBlock = 104; ///< a narrower block has less padding
constexpr double signGap = 6;
constexpr double leastTitle = 28; ///< less than that tells nothing
constexpr int mostRows = 3;       ///< of blocks that would not overlap in one

WorkStatus statusOf(const QString &word) {
    static const QHash<QString, WorkStatus> words{{u"done"_s, WorkStatus::Done},
                                                  {u"doing"_s, WorkStatus::Doing},
                                                  {u"todo"_s, WorkStatus::Todo},
                                                  {u"blocked"_s, WorkStatus::Blocked}};
    return words.value(word, WorkStatus::Unknown);
}

double signRoom(WorkStatus status) {
    const bool plain = status == WorkStatus::Todo || status == WorkStatus::Unknown;
    return plain ? 0 : LaneLayout::signSize + signGap;
}

/// The sign comes first, then the title; without room for both the sign stands alone.
void placeWords(LaneBlock &block) {
    const double side = block.width < tightBlock ? tightPadding : padding;
    const double sign = signRoom(block.status);
    block.titleX = side + sign;
    block.titleWidth = block.width - block.titleX - side;
    block.signX = side;
    if (block.titleWidth >= leastTitle)
        return;
    block.titleWidth = 0;
    block.signX = std::round((block.width - LaneLayout::signSize) / 2);
}

/// Finds each block its place, one after the other from the left.
class LanePacker {
public:
    LanePacker(int spareRows, double rowStep) : m_spareRows(spareRows), m_rowStep(rowStep) {}

    /// A block that can be shortened to `share`.
    void add(LaneBlock block, double share) {
        const qsizetype row = rowFor(block.x);
        m_rows[row] = {block.x + block.width + blockGap, block.x + share, m_blocks.size()};
        block.y = static_cast<double>(row) * m_rowStep;
        placeWords(block);
        m_blocks.append(block);
    }
    const QList<LaneBlock> &blocks() const { return m_blocks; }
    int rows() const { return std::max(1, static_cast<int>(m_rows.size())); }

private:
    struct Row {
        double end = 0;     ///< where the next block can begin
        double share = 0;   ///< the same if its last block is shortened
        qsizetype last = 0; ///< that block
    };

    qsizetype rowFor(double x) {
        const auto free = std::find_if(m_rows.cbegin(), m_rows.cend(),
                                       [x](const Row &row) { return row.end <= x; });
        if (free != m_rows.cend())
            return std::distance(m_rows.cbegin(), free);
        if (m_rows.size() >= m_spareRows) {
            // The block that began first gives way, as long as its title does not get lost.
            qsizetype row = -1;
            for (qsizetype i = 0; i < m_rows.size(); ++i) {
                if (m_rows.at(i).share <= x && (row < 0 || m_rows.at(i).last < m_rows.at(row).last))
                    row = i;
            }
            if (row >= 0 && shorten(m_blocks[m_rows.at(row).last], x - blockGap))
                return row;
        }
        m_rows.append(Row());
        return m_rows.size() - 1;
    }

    bool shorten(LaneBlock &block, double end) const {
        LaneBlock shorter = block;
        shorter.width = end - block.x;
        placeWords(shorter);
        if (shorter.titleWidth == 0 && block.titleWidth > 0 && m_rows.size() < mostRows)
            return false;
        block = shorter;
        return true;
    }

    int m_spareRows;
    double m_rowStep;
    QList<LaneBlock> m_blocks;
    QList<Row> m_rows;
};

/// The height at which lanes that are at least as high as `least` fill `room`.
double filledHeight(QList<double> least, double room) {
    std::sort(least.begin(), least.end());
    double below = 0; // what the lanes that are no higher than the shared height need
    double above = 0;
    for (const double height : std::as_const(least))
        above += height;
    for (qsizetype i = 0; i < least.size(); ++i) {
        above -= least.at(i);
        below = (room - above) / static_cast<double>(i + 1);
        if (i + 1 == least.size() || below <= least.at(i + 1))
            break;
    }
    return below;
}

} // namespace

void LaneLayout::setBlockHeight(double height) {
    if (std::exchange(m_blockHeight, height) == height)
        return;
    Q_EMIT blockHeightChanged();
    layOut();
}

void LaneLayout::layOut() {
    const double rowStep = m_blockHeight + rowGap;
    const double laneLeast = m_blockHeight + 2 * lanePadding;
    m_lanes.clear();
    const int spareRows = rowsToSpare();
    QList<double> needed;
    QList<double> least;
    for (const canvas::Lane &lane : scene().lanes) {
        LaneRow row{.name = lane.name, .role = lane.role};
        const int rows = pack(lane, spareRows, row.blocks);
        needed.append(rows * rowStep - rowGap);
        least.append(needed.last() + 2 * lanePadding);
        m_lanes.append(row);
    }
    m_contentHeight = 0;
    const double shared =
        std::clamp(filledHeight(least, height()), laneLeast, m_blockHeight + laneSpare);
    for (qsizetype i = 0; i < m_lanes.size(); ++i) {
        LaneRow &lane = m_lanes[i];
        lane.height = std::floor(std::max(shared, least.at(i)));
        m_contentHeight += lane.height;
        const double top = std::round((lane.height - needed.at(i)) / 2);
        for (LaneBlock &block : lane.blocks)
            block.y += top;
    }
    Q_EMIT changed();
}

/// How many rows each lane can have without taking more than its part of the height.
int LaneLayout::rowsToSpare() const {
    const auto lanes = static_cast<double>(std::max<qsizetype>(1, scene().lanes.size()));
    const double room = height() / lanes - 2 * lanePadding + rowGap;
    return std::clamp(static_cast<int>(room / (m_blockHeight + rowGap)), 1, mostRows);
}

/// What a block needs to show its title in one line.
double LaneLayout::wantedWidth(const LaneBlock &block) const {
    return 2 * padding + signRoom(block.status) + 1 +
           std::ceil(QFontMetricsF(font()).horizontalAdvance(block.title));
}

/// Gives each block its place and returns how many rows they take.
int LaneLayout::pack(const canvas::Lane &lane, int spareRows, QList<LaneBlock> &blocks) const {
    QList<canvas::LaneTask> tasks = lane.tasks;
    std::stable_sort(tasks.begin(), tasks.end(),
                     [](const auto &a, const auto &b) { return a.left < b.left; });
    LanePacker packer(spareRows, m_blockHeight + rowGap);
    for (const canvas::LaneTask &task : std::as_const(tasks)) {
        LaneBlock block{.title = task.title, .status = statusOf(task.status)};
        const double left = std::round(task.left * width());
        const double right = std::round((task.left + task.width) * width());
        const double share = std::max(leastBlock, right - left - blockGap);
        block.x = std::clamp(left, 0.0, std::max(0.0, width() - share));
        block.width =
            std::clamp(wantedWidth(block), share, std::max(share, width() - block.x - blockGap));
        packer.add(block, share);
    }
    blocks = packer.blocks();
    return packer.rows();
}

} // namespace kiv::ui
