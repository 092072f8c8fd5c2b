#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickTextDocument>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Gives the lines of a text field or a selectable text a fixed height, which the field itself has
/// no property for. It is kept up through typing, pasting and undoing.
class LineSpacing : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY documentChanged
                   REQUIRED)
    /// In device-independent pixels.
    Q_PROPERTY(
        double lineHeight READ lineHeight WRITE setLineHeight NOTIFY lineHeightChanged REQUIRED)
public:
    using QObject::QObject;

    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);
    double lineHeight() const { return m_lineHeight; }
    void setLineHeight(double lineHeight);

Q_SIGNALS:
    void documentChanged();
    void lineHeightChanged();

private:
    void apply();

    QPointer<QQuickTextDocument> m_document;
    double m_lineHeight = 0;
    bool m_applying = false;
};

} // namespace kiv::ui
