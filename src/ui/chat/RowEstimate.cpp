#include "ui/chat/RowEstimate.h"

#include <algorithm>
#include <cmath>

namespace kiv::ui {

using text::MDBlock;
using Kind = FeedDelegate::Kind;

namespace {

// Lengths at the normal size of text, about.
constexpr double lineHeight = 21;
constexpr double letterWidth = 7;
constexpr double blockGap = 10;
constexpr double bubblePadding = 16;
constexpr double itemGap = 4;
constexpr double itemIndent = 20;
constexpr double quoteIndent = 17;
constexpr double codeFrame = 58;
constexpr double codeLine = 20;
constexpr double tableHead = 34;
constexpr double tableRow = 36;
constexpr double ruleHeight = 5;

constexpr double labelHeight = 36;
constexpr double callHeight = 44;
constexpr double headHeight = 54;
constexpr double filesHeight = 46;
constexpr double cardHeight = 50;
constexpr double chipsHeight = 42;

double wrapped(qsizetype letters, double width) {
    const double fitting = std::max(1.0, std::floor(width / letterWidth));
    return lineHeight * std::max(1.0, std::ceil(static_cast<double>(letters) / fitting));
}

double unwrapped(qsizetype lines, double height) {
    return static_cast<double>(lines) * height;
}

struct ContentHeight {
    double width;

    double operator()(const MDBlock::Heading &heading) const {
        return wrapped(heading.text.size(), width);
    }
    double operator()(const MDBlock::Paragraph &paragraph) const { return ofText(paragraph.text); }
    double operator()(const MDBlock::Bullets &bullets) const {
        double sum = 0;
        for (const QString &item : bullets.items)
            sum += ofItem(item);
        return sum;
    }
    double operator()(const MDBlock::Ordered &ordered) const {
        double sum = 0;
        for (const auto &item : ordered.items)
            sum += ofItem(item.text);
        return sum;
    }
    double operator()(const MDBlock::Tasks &tasks) const {
        double sum = 0;
        for (const auto &item : tasks.items)
            sum += ofItem(item.text);
        return sum;
    }
    double operator()(const MDBlock::Quote &quote) const {
        double sum = 0;
        for (const QString &line : quote.lines)
            sum += wrapped(line.size(), width - quoteIndent);
        return sum;
    }
    double operator()(const MDBlock::Code &code) const {
        return codeFrame + unwrapped(code.text.count(u'\n') + 1, codeLine);
    }
    double operator()(const MDBlock::Table &table) const {
        return tableHead + unwrapped(table.rows.size(), tableRow);
    }
    double operator()(const MDBlock::Rule &) const { return ruleHeight; }

private:
    double ofItem(const QString &item) const {
        return itemGap + wrapped(item.size(), width - itemIndent);
    }
    double ofText(const QString &text) const {
        double sum = 0;
        for (const QStringView line : QStringView(text).tokenize(u'\n'))
            sum += wrapped(line.size(), width);
        return sum;
    }
};

} // namespace

double estimatedHeight(const FeedRow &row, double width) {
    switch (row.kind) {
    case Kind::Older:
    case Kind::Day:
    case Kind::Unread:
        return labelHeight;
    case Kind::Call:
        return callHeight;
    case Kind::Head:
        return headHeight;
    case Kind::Files:
        return filesHeight;
    case Kind::Tail:
        return (row.cardArt.isEmpty() ? 0 : cardHeight) + (row.chips.isEmpty() ? 0 : chipsHeight);
    default:
        break;
    }
    const double padding = row.first || row.last ? bubblePadding : 0;
    return blockGap + padding + std::visit(ContentHeight{width - 2 * padding}, row.part.content);
}

} // namespace kiv::ui
