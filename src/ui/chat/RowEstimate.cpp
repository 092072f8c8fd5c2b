#include "ui/chat/RowEstimate.h"

#include <algorithm>
#include <cmath>

namespace kiv::ui {

using text::MDBlock;
using Kind = FeedDelegate::Kind;

namespace {

constexpr double lineHeight = 21;
constexpr double letterWidth = 7;
constexpr double blockGap = 10;

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
            sum += wrapped(line.size(), width - 17);
        return sum;
    }
    double operator()(const MDBlock::Code &code) const {
        return 58 + unwrapped(code.text.count(u'\n') + 1, 20);
    }
    double operator()(const MDBlock::Table &table) const {
        return 34 + unwrapped(table.rows.size(), 36);
    }
    double operator()(const MDBlock::Rule &) const { return 5; }

private:
    double ofItem(const QString &item) const { return 4 + wrapped(item.size(), width - 20); }
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
        return 36;
    case Kind::Call:
        return 44;
    case Kind::Head:
        return 54;
    case Kind::Files:
        return 46;
    case Kind::Tail:
        return (row.cardArt.isEmpty() ? 0 : 50) + (row.chips.isEmpty() ? 0 : 42);
    default:
        break;
    }
    const double padding = row.first || row.last ? 16 : 0;
    return blockGap + padding + std::visit(ContentHeight{width - 2 * padding}, row.part.content);
}

} // namespace kiv::ui
