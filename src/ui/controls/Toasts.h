#pragma once

#include <QAbstractListModel>
#include <QUrl>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Short news about what the program has just done, newest last. Each goes after a while; a new one
/// beyond the third takes the place of the oldest.
class Toasts : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    static constexpr int limit = 3;
    enum Role { WordsRole = Qt::UserRole + 1, ActionRole, TargetRole };

    using QAbstractListModel::QAbstractListModel;

    /// `action` opens `target`; without words there is none.
    Q_INVOKABLE void show(const QString &words, const QString &action = {},
                          const QUrl &target = {});
    Q_INVOKABLE void dismiss(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    struct Toast {
        QString words;
        QString action;
        QUrl target;
    };

    QList<Toast> m_toasts;
};

} // namespace kiv::ui
