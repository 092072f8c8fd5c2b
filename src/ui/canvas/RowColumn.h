#pragma once

#include <QFont>
#include <QObject>
#include <QVariant>
#include <QtQmlIntegration>

namespace kiv::ui {

/// One field of all rows of a scene: what its figures range over, and the room that its words want.
class RowColumn : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariant rows READ rows WRITE setRows NOTIFY inputChanged REQUIRED)
    Q_PROPERTY(QString field READ field WRITE setField NOTIFY inputChanged REQUIRED)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY inputChanged)
    Q_PROPERTY(double lowest READ lowest NOTIFY figuresChanged)
    Q_PROPERTY(double highest READ highest NOTIFY figuresChanged)
    Q_PROPERTY(double sum READ sum NOTIFY figuresChanged)
    Q_PROPERTY(double widest READ widest NOTIFY widestChanged)
public:
    using QObject::QObject;

    QVariant rows() const { return m_rows; }
    /// A list of rows of one kind.
    void setRows(const QVariant &rows);
    QString field() const { return m_field; }
    void setField(const QString &field);
    QFont font() const { return m_font; }
    void setFont(const QFont &font);

    double lowest() const { return m_lowest; }
    double highest() const { return m_highest; }
    double sum() const { return m_sum; }
    /// Device-independent pixels, in this font.
    double widest() const { return m_widest; }

Q_SIGNALS:
    void inputChanged();
    void figuresChanged();
    void widestChanged();

private:
    QVariantList values() const;
    void addUp();
    void measure();

    QVariant m_rows;
    QString m_field;
    QFont m_font;
    double m_lowest = 0;
    double m_highest = 0;
    double m_sum = 0;
    double m_widest = 0;
};

} // namespace kiv::ui
