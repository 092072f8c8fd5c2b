#pragma once

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace kiv::ui {

/// What a field of the account can be set to, or what of it matches a search.
class ChoiceModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kind kind READ kind WRITE setKind NOTIFY kindChanged REQUIRED)
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /// Long enough to be searched.
    Q_PROPERTY(bool searchable READ isSearchable NOTIFY kindChanged)
public:
    enum Kind { CompanySizes, Industries, TimeZones, Languages, Countries, Styles, Hours };
    Q_ENUM(Kind)
    enum Role { ValueRole = Qt::UserRole + 1, LabelRole };

    /// A value as it is stored, and how it shows.
    struct Choice {
        QString value;
        QString label;
    };

    explicit ChoiceModel(QObject *parent = nullptr) : QAbstractListModel(parent) {}

    Kind kind() const { return m_kind; }
    void setKind(Kind kind);
    QString filter() const { return m_filter; }
    void setFilter(const QString &filter);
    int count() const { return static_cast<int>(m_shown.size()); }
    bool isSearchable() const;

    /// How a stored value shows: as it is when it is none of ours.
    Q_INVOKABLE QString labelOf(const QString &value) const;
    Q_INVOKABLE QString valueAt(int row) const;
    Q_INVOKABLE int rowOf(const QString &value) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void kindChanged();
    void filterChanged();
    void countChanged();

private:
    Kind m_kind = CompanySizes;
    QString m_filter;
    QList<Choice> m_shown;
};

} // namespace kiv::ui
