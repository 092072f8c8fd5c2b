#pragma once

#include <QColor>
#include <QPointer>
#include <QQuickItem>
#include <QQuickTextDocument>
#include <QTextCursor>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Shows words at the cursor of a text field that are not part of its text: they take room as if
/// they were typed, but cannot be selected, edited or undone. They stand in the layout of the
/// cursor's line, where an input method shows what is being composed, so that neither the text nor
/// its undo history knows of them. While a key or a press is dealt with they are out of the way:
/// the field would count them when it moves its cursor.
class InterimText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// The field, and what it holds.
    Q_PROPERTY(QQuickItem *target READ target WRITE setTarget NOTIFY changed REQUIRED)
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY changed REQUIRED)
    Q_PROPERTY(QString words READ words WRITE setWords NOTIFY changed REQUIRED)
    /// The position in the text that they follow.
    Q_PROPERTY(int at READ at WRITE setAt NOTIFY changed REQUIRED)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed REQUIRED)
public:
    using QObject::QObject;

    QQuickItem *target() const { return m_field; }
    void setTarget(QQuickItem *field);
    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);
    QString words() const { return m_words; }
    void setWords(const QString &words);
    int at() const { return m_at; }
    void setAt(int at);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);

    /// Makes words part of the text, as an edit that is undone by itself.
    Q_INVOKABLE void insert(int at, const QString &words);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void changed();

private:
    void scheduleShow();
    void show();
    void hide();
    void setInLayout(int position, const QString &words);

    QPointer<QQuickItem> m_field;
    QPointer<QQuickTextDocument> m_document;
    QString m_words;
    int m_at = 0;
    QColor m_color;
    QTextCursor m_shownIn; ///< somewhere in the block that shows them; null when none does
    QString m_shown;
    bool m_isPressed = false;
    bool m_isScheduled = false;
};

} // namespace kiv::ui
