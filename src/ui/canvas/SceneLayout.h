#pragma once

#include "canvas/SceneOut.h"

#include <QFont>
#include <QObject>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Where the parts of a scene lie: made anew for another scene, another room or another font.
/// Lengths are device-independent pixels. Who derives from it names it in full: what tells QML of
/// the types looks a base up as it is written.
class SceneLayout : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(kiv::canvas::SceneOut scene READ scene WRITE setScene NOTIFY sceneChanged REQUIRED)
    Q_PROPERTY(double width READ width WRITE setWidth NOTIFY widthChanged REQUIRED)
    Q_PROPERTY(double height READ height WRITE setHeight NOTIFY heightChanged)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged REQUIRED)
public:
    using QObject::QObject;

    const canvas::SceneOut &scene() const { return m_scene; }
    void setScene(const canvas::SceneOut &scene);
    /// The room that there is.
    double width() const { return m_width; }
    void setWidth(double width);
    double height() const { return m_height; }
    void setHeight(double height);
    /// Of the words whose lengths count.
    const QFont &font() const { return m_font; }
    void setFont(const QFont &font);

Q_SIGNALS:
    void sceneChanged();
    void widthChanged();
    void heightChanged();
    void fontChanged();
    void changed();

protected:
    /// What depends on the scene and the font alone; layOut() follows.
    virtual void measure() {}
    /// Ends with changed().
    virtual void layOut() = 0;

private:
    canvas::SceneOut m_scene;
    double m_width = 0;
    double m_height = 0;
    QFont m_font;
};

} // namespace kiv::ui
