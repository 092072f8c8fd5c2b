#include "canvas/ArtChoice.h"
#include "ui/SceneView.h"

#include <QMetaProperty>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

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

/// What a text stands on: most of what is not of its own colour in its box. A sign that no font has
/// fills its box and leaves less of the ground than of itself.
QColor groundOf(const QImage &picture, const SeenText &text) {
    QHash<QRgb, int> counts;
    const QRect area = text.box.toAlignedRect() & picture.rect();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    const int own = counts.take(text.color.rgb());
    if (counts.isEmpty() || own > 0.8 * area.width() * area.height())
        return text.color;
    return QColor(std::max_element(counts.cbegin(), counts.cend()).key());
}

} // namespace

/// Every scene, from the text of an answer to the picture, from the least width to a large screen,
/// in both themes.
class SceneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"qrc:|QML|file:"_s)); }
    void everyArt();
    void structure_data();
    void structure();

private:
    void check(const SceneAnswer &answer, const canvas::SceneOut &scene, const QImage &picture);

    SceneView m_view;
};

void SceneTest::everyArt() {
    QStringList arts;
    for (const SceneAnswer &answer : sceneAnswers())
        arts.append(answer.art);
    arts.removeDuplicates();
    QStringList drawn(canvas::CanvasEngine::knownArts().begin(),
                      canvas::CanvasEngine::knownArts().end());
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
    for (const QSize &size :
         {QSize(640, 900), QSize(1000, 720), QSize(1600, 1000), QSize(2560, 1300)}) {
        m_view.gallery.setDark(false);
        m_view.show(scene, {}, size);
        for (const bool dark : {false, true}) {
            m_view.gallery.setDark(dark);
            const QImage picture = m_view.gallery.grab(u"scene-%1-%2-%3"_s.arg(
                answer.name, QString::number(size.width()), dark ? u"dark"_s : u"light"_s));
            check(answer, scene, picture);
            if (QTest::currentTestFailed())
                return;
        }
    }
}

void SceneTest::check(const SceneAnswer &answer, const canvas::SceneOut &scene,
                      const QImage &picture) {
    const QList<SeenText> seen = m_view.texts();
    const QRectF sheet = m_view.sheet()->mapRectToScene(m_view.sheet()->boundingRect());
    QString all;
    for (qsizetype i = 0; i < seen.size(); ++i) {
        const SeenText &text = seen.at(i);
        all += text.words + u'\n';
        QVERIFY2(text.words.isValidUtf16(), qPrintable(text.words));
        const QByteArray at = QByteArray::number(picture.width()) + ": " + text.words.toUtf8();
        QVERIFY2(sheet.contains(text.box), at);
        QVERIFY2(!isFigure(text.words) || !text.cut, at);
        const double readable = contrast(text.color, groundOf(picture, text));
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
