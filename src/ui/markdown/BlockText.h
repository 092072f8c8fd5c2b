#pragma once

#include "ui/markdown/DocumentWriter.h"
#include "ui/markdown/FoundMarks.h"
#include "ui/markdown/MarkdownPart.h"
#include "ui/markdown/TableColumns.h"

#include <QPointer>
#include <QQuickItem>
#include <QQuickTextDocument>
#include <QRectF>

namespace kiv::ui {

/// Fills the document of a text edit with a part of a block, and says where in it is what the view
/// draws itself. It is a child of the text edit and as wide as it. Lengths are device-independent
/// pixels.
class BlockText : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY changed REQUIRED)
    Q_PROPERTY(kiv::ui::MarkdownPart part READ part WRITE setPart NOTIFY changed REQUIRED)
    /// The text stands as it is, marks and all.
    Q_PROPERTY(bool plain MEMBER m_plain NOTIFY changed)
    /// Of the ground of words that the person looks for, and of the edge of those they are at.
    Q_PROPERTY(QColor foundColor MEMBER m_foundColor NOTIFY marksChanged)
    Q_PROPERTY(QColor foundEdge MEMBER m_foundEdge NOTIFY marksChanged)
    /// Of the text edit.
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY changed REQUIRED)
    Q_PROPERTY(double lineHeight READ lineHeight WRITE setLineHeight NOTIFY changed REQUIRED)
    /// Of inline code and of the head of a table.
    Q_PROPERTY(int smallSize READ smallSize WRITE setSmallSize NOTIFY changed)
    Q_PROPERTY(QColor linkColor READ linkColor WRITE setLinkColor NOTIFY changed)
    Q_PROPERTY(QColor faintColor READ faintColor WRITE setFaintColor NOTIFY changed)
    /// What a table can spread over before it scrolls.
    Q_PROPERTY(double available MEMBER m_available NOTIFY changed)

    /// The grounds of inline code.
    Q_PROPERTY(QList<QRectF> chips READ chips NOTIFY placesChanged)
    /// The top edge of each line of the document: items of a list, rows of a table.
    Q_PROPERTY(QList<double> tops READ tops NOTIFY placesChanged)
    /// Where the text ends: a rectangle without width.
    Q_PROPERTY(QRectF end READ end NOTIFY placesChanged)
    /// What a text that stands as it is would like to have.
    Q_PROPERTY(double naturalWidth READ naturalWidth NOTIFY widthMeasured)
    /// The width of code or of a table, which do not wrap.
    Q_PROPERTY(double unwrappedWidth READ unwrappedWidth NOTIFY widthMeasured)
public:
    explicit BlockText(QQuickItem *parent = nullptr);

    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);
    MarkdownPart part() const { return m_part; }
    void setPart(const MarkdownPart &part);
    double lineHeight() const { return m_look.lineHeight; }
    void setLineHeight(double height) { change(m_look.lineHeight, height); }
    int smallSize() const { return m_look.codeSize; }
    void setSmallSize(int size) {
        m_look.headSize = size;
        change(m_look.codeSize, size);
    }
    QColor linkColor() const { return m_look.link; }
    void setLinkColor(const QColor &color) { change(m_look.link, color); }
    QColor faintColor() const { return m_look.faint; }
    void setFaintColor(const QColor &color) { change(m_look.faint, color); }

    QList<QRectF> chips() const { return m_chips; }
    QList<double> tops() const { return m_tops; }
    QRectF end() const { return m_end; }
    double naturalWidth() const { return m_naturalWidth; }
    double unwrappedWidth() const { return m_unwrappedWidth; }

    /// Where the words show that the search is at; null without any.
    QRectF currentMark() const { return m_marks.current(); }

    /// Puts the cells that a selection in a table touches on the clipboard, with tabs between them.
    Q_INVOKABLE void copyCells(int start, int end) const;

Q_SIGNALS:
    void changed();
    void placesChanged();
    void widthMeasured();
    void marksChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;

private:
    template <typename Value>
    void change(Value &member, const Value &value) {
        if (member == value)
            return;
        member = value;
        Q_EMIT changed();
    }
    void write();
    void measure(const QList<TextLine> &lines);
    void placeMarks();

    QPointer<QQuickTextDocument> m_document;
    MarkdownPart m_part;
    bool m_plain = false;
    QFont m_font;
    double m_available = 0;
    TextLook m_look;
    DocumentWriter m_writer;
    TableColumns m_columns;
    FoundMarks m_marks;
    QColor m_foundColor;
    QColor m_foundEdge;
    QList<QRectF> m_chips;
    QList<double> m_tops;
    QRectF m_end;
    double m_naturalWidth = 0;
    double m_unwrappedWidth = 0;
};

} // namespace kiv::ui
