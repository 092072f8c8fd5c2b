#include "ui/canvas/Samples.h"

#include "canvas/AnswerReading.h"
#include "canvas/SceneAdapter.h"
#include "canvas/SceneText.h"

#include <QFile>

namespace kiv::ui {

using namespace Qt::StringLiterals;

namespace {

canvas::SceneOut sceneOf(const QString &art) {
    QFile file(u":/qt/qml/Kiv/Canvas/samples/%1.md"_s.arg(art));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("There is no sample of %s", qPrintable(art));
    const auto spec = canvas::readAnswer(QString::fromUtf8(file.readAll())).spec;
    auto scene = spec ? canvas::SceneAdapter::vals(*spec, {}) : std::nullopt;
    if (!scene || scene->art != art)
        qFatal("The sample of %s does not draw it", qPrintable(art));
    // No answer stands behind it.
    scene->countLine.remove(u" · from the answer"_s);
    scene->countLine += u" · sample"_s;
    scene->insight.clear();
    return *scene;
}

} // namespace

Samples::Samples(QObject *parent) : QObject(parent), m_scene(sceneOf(arts().first())) {}

const QStringList &Samples::arts() {
    static const QStringList arts{u"status"_s,   u"report"_s,  u"costs"_s,  u"cashflow"_s,
                                  u"budget"_s,   u"funnel"_s,  u"unit"_s,   u"okr"_s,
                                  u"workload"_s, u"compare"_s, u"agents"_s, u"decision"_s,
                                  u"brief"_s,    u"retro"_s};
    return arts;
}

void Samples::setCurrent(int current) {
    if (current == m_current || current < 0 || current >= arts().size())
        return;
    m_current = current;
    m_scene = sceneOf(arts().at(current));
    Q_EMIT currentChanged();
}

QString Samples::word(const QString &art) {
    return canvas::artWord(art);
}

} // namespace kiv::ui
