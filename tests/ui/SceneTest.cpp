#include "store/DrawnArts.h"
#include "ui/Gallery.h"
#include "ui/SceneAnswers.h"
#include "ui/Workspace.h"

#include <QMetaProperty>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

/// A text of the window as it is seen.
struct SeenText {
    QString words;
    QRectF box; ///< what of it is not clipped, in the window
    QColor color;
    bool cut = false; ///< elided, or running out of its room
};

/// What of an item's area no clipping item above it cuts off.
QRectF shownPart(const QQuickItem *item, const QRectF &area) {
    QRectF box = item->mapRectToScene(area);
    for (const QQuickItem *above = item->parentItem(); above; above = above->parentItem()) {
        if (above->clip())
            box &= above->mapRectToScene(above->boundingRect());
    }
    return box;
}

/// Where the letters of a text stand.
QRectF inkOf(const QQuickItem *text) {
    const double width = std::min(text->property("contentWidth").toDouble(), text->width());
    const int alignment = text->property("effectiveHorizontalAlignment").toInt();
    const double spare = text->width() - width;
    const double x = alignment == Qt::AlignRight     ? spare
                     : alignment == Qt::AlignHCenter ? spare / 2
                                                     : 0;
    return {x, 0, width, text->height()};
}

void collectTexts(const QQuickItem *item, QList<SeenText> &texts) {
    if (!item->isVisible() || item->opacity() == 0)
        return;
    const QString words = item->property("text").toString();
    if (item->inherits("QQuickText") && !words.isEmpty()) {
        const QRectF ink = inkOf(item);
        const QRectF box = shownPart(item, ink);
        if (!box.isEmpty()) {
            const bool out = item->property("contentWidth").toDouble() > item->width() + 0.5;
            texts.append({words, box, item->property("color").value<QColor>(),
                          out || item->property("truncated").toBool()});
        }
    }
    const QList<QQuickItem *> children = item->childItems();
    for (const QQuickItem *child : children)
        collectTexts(child, texts);
}

/// Every text that a scene or one of its rows holds, except names that are meant for the program.
void collectFields(const QMetaObject &fields, const void *gadget, QStringList &words) {
    for (int i = 0; i < fields.propertyCount(); ++i) {
        const QMetaProperty field = fields.property(i);
        if (QByteArrayView(field.name()) == "art" || QByteArrayView(field.name()) == "status")
            continue;
        const QVariant value = field.readOnGadget(gadget);
        if (value.metaType() == QMetaType::fromType<QString>()) {
            words.append(value.toString());
        } else if (value.metaType() == QMetaType::fromType<QStringList>()) {
            words += value.toStringList();
        } else if (value.canConvert<QVariantList>()) {
            const auto rows = value.value<QVariantList>();
            for (const QVariant &row : rows) {
                if (const QMetaObject *type = row.metaType().metaObject())
                    collectFields(*type, row.constData(), words);
            }
        }
    }
}

QStringList textsOf(const canvas::SceneOut &scene) {
    QStringList words;
    collectFields(canvas::SceneOut::staticMetaObject, &scene, words);
    words.removeAll(QString());
    words.removeDuplicates();
    return words;
}

bool isFigure(const QString &words) {
    static const QRegularExpression figure(u"^[−+-]?[€$£]?[\\d\u202f\u00a0.,]+[%\u00a0]?$"_s);
    return figure.match(words).hasMatch();
}

double luminance(const QColor &color) {
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// What a text stands on: most of the picture in its box.
QColor groundOf(const QImage &picture, const QRectF &box) {
    QHash<QRgb, int> counts;
    const QRect area = box.toAlignedRect() & picture.rect();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    return QColor(std::max_element(counts.cbegin(), counts.cend()).key());
}

} // namespace

/// Every scene, from the text of an answer to the picture, at three widths in both themes.
class SceneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"qrc:|QML|file:"_s)); }
    void everyArt();
    void structure_data();
    void structure();

private:
    void check(const SceneAnswer &answer, const canvas::SceneOut &scene, const QImage &picture);

    Workspace m_workspace;
    Gallery m_gallery;
};

void SceneTest::everyArt() {
    QStringList arts;
    for (const SceneAnswer &answer : sceneAnswers())
        arts.append(answer.art);
    arts.removeDuplicates();
    QStringList drawn = store::drawnArts();
    arts.sort();
    drawn.sort();
    QCOMPARE(arts, drawn);
}

void SceneTest::structure_data() {
    QTest::addColumn<SceneAnswer>("answer");
    for (const SceneAnswer &answer : sceneAnswers())
        QTest::newRow(qPrintable(answer.name)) << answer;
}

void SceneTest::structure() {
    QFETCH(SceneAnswer, answer);
    const canvas::SceneOut scene = sceneOf(answer);
    for (const QSize &size : {QSize(640, 760), QSize(1000, 720), QSize(1600, 1000)}) {
        m_gallery.setDark(false);
        m_gallery.show(u"ScenePage.qml"_s, size,
                       {{u"scene"_s, QVariant::fromValue(scene)},
                        {u"scope"_s, QVariant::fromValue(m_workspace.store->scope())}});
        for (const bool dark : {false, true}) {
            m_gallery.setDark(dark);
            const QImage picture = m_gallery.grab(u"scene-%1-%2-%3"_s.arg(
                answer.name, QString::number(size.width()), dark ? u"dark"_s : u"light"_s));
            check(answer, scene, picture);
            if (QTest::currentTestFailed())
                return;
        }
    }
}

void SceneTest::check(const SceneAnswer &answer, const canvas::SceneOut &scene,
                      const QImage &picture) {
    QList<SeenText> seen;
    collectTexts(m_gallery.window().contentItem(), seen);
    const QRectF sheet =
        m_gallery.item(u"sheet"_s)
            ->mapRectToScene(QRectF(QPointF(), m_gallery.item(u"sheet"_s)->size()));
    QString all;
    for (qsizetype i = 0; i < seen.size(); ++i) {
        const SeenText &text = seen.at(i);
        all += text.words + u'\n';
        const QByteArray at = QByteArray::number(picture.width()) + ": " + text.words.toUtf8();
        QVERIFY2(sheet.contains(text.box), at);
        QVERIFY2(!isFigure(text.words) || !text.cut, at);
        const double readable = contrast(text.color, groundOf(picture, text.box));
        QVERIFY2(readable >= 4.5, at + ' ' + QByteArray::number(readable));
        const QRectF box = text.box.adjusted(1, 1, -1, -1);
        for (qsizetype j = 0; j < i; ++j)
            QVERIFY2(!box.intersects(seen.at(j).box.adjusted(1, 1, -1, -1)),
                     at + " over " + seen.at(j).words.toUtf8());
    }
    // Long lists show what fits; a program's minus is shown as one.
    if (answer.name.endsWith(u"-many"))
        return;
    all += QString(all).replace(u'−', u'-');
    const QStringList expected = textsOf(scene) + answer.figures;
    for (const QString &words : expected)
        QVERIFY2(all.contains(words), qPrintable(u"not shown: "_s + words));
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::SceneTest)
#include "SceneTest.moc"
