#pragma once

#include "canvas/SceneEnums.h"

#include <QList>
#include <QObject>
#include <QVariant>
#include <QtQmlIntegration>

namespace kiv::ui {

/// A piece of a bar. Lengths are device-independent pixels.
struct StackPiece {
    Q_GADGET
    QML_VALUE_TYPE(stackPiece)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString share MEMBER share)
    Q_PROPERTY(kiv::canvas::SceneColor color MEMBER color)
    Q_PROPERTY(int others MEMBER others)
    Q_PROPERTY(double x MEMBER x)
    Q_PROPERTY(double width MEMBER width)
public:
    QString label;
    QString share; ///< of the whole, as shown
    canvas::SceneColor color = canvas::SceneColor::Violet;
    int others = 0; ///< how many parts lie in this piece that have none of their own
    double x = 0;
    double width = 0;
    friend bool operator==(const StackPiece &, const StackPiece &) = default;
};

/// How the parts of a whole lie in one bar: a gap between two pieces, none so narrow that it is
/// lost. Where there are too many for that, all narrow ones share a last piece.
class StackLayout : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariant parts READ parts WRITE setParts NOTIFY partsChanged REQUIRED)
    Q_PROPERTY(double width READ width WRITE setWidth NOTIFY widthChanged REQUIRED)
    Q_PROPERTY(QList<kiv::ui::StackPiece> pieces READ pieces NOTIFY piecesChanged)
    /// Whether the pieces lie as they do because of other parts, not of another width.
    Q_PROPERTY(bool redrawn READ isRedrawn NOTIFY redrawnChanged)
public:
    using QObject::QObject;

    QVariant parts() const { return m_parts; }
    /// A list of canvas::Seg or canvas::UeRow.
    void setParts(const QVariant &parts);
    double width() const { return m_width; }
    void setWidth(double width);
    QList<StackPiece> pieces() const { return m_pieces; }
    bool isRedrawn() const { return m_redrawn; }

Q_SIGNALS:
    void partsChanged();
    void widthChanged();
    void piecesChanged();
    void redrawnChanged();

private:
    void layOut();
    void setRedrawn(bool redrawn);

    struct Part {
        StackPiece piece;
        double share = 0; ///< in any measure that all parts have in common
    };

    static QList<Part> gathered(const QList<Part> &parts, double least);
    static double whole(const QList<Part> &parts);

    QVariant m_parts;
    double m_width = 0;
    bool m_redrawn = false;
    QList<Part> m_all;
    QList<StackPiece> m_pieces;
};

} // namespace kiv::ui
