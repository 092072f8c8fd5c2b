#pragma once

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace kiv::ui {

/// What a field of the account can be set to, or what of it matches a search.
class ChoiceModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kind kind READ kind WRITE setKind NOTIFY kindChanged REQUIRED)
    /// The name of the locale whose words the choices are shown in.
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged)
    /// What is stored, and how it shows: as it is when it is none of the choices.
    Q_PROPERTY(QString value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(QString label READ label NOTIFY valueChanged)
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
    QString language() const { return m_language; }
    void setLanguage(const QString &language);
    QString value() const { return m_value; }
    void setValue(const QString &value);
    QString label() const;
    QString filter() const { return m_filter; }
    void setFilter(const QString &filter);
    int count() const { return static_cast<int>(m_shown.size()); }
    bool isSearchable() const;

    Q_INVOKABLE QString valueAt(int row) const;
    Q_INVOKABLE int rowOf(const QString &value) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void kindChanged();
    void languageChanged();
    void valueChanged();
    void filterChanged();
    void countChanged();

private:
    /// What of the list meets the search.
    void offer();

    Kind m_kind = CompanySizes;
    QString m_language;
    QString m_value;
    QString m_filter;
    QList<Choice> m_shown;
};

} // namespace kiv::ui
