#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

/// Parts of the answers that scenes are tested with.
namespace kiv::ui {

/// Rows of an answer that is too long for any window.
inline constexpr int many = 200;

/// 120 characters that do not fit into any column, in one of two scripts.
QString longName(int i);

/// A message with a view.
QString block(const QString &kind, const QString &art, const QString &title,
              const QJsonObject &data);

QJsonObject points(const QJsonArray &rows, const QString &unit = {});
QJsonObject point(const QString &label, double value, const QString &hint = {});
/// Rows of one text each.
QJsonArray texts(const QStringList &words);

/// As many rows as asked for, each made from its place.
template <typename Make>
QJsonArray times(int count, Make make) {
    QJsonArray rows;
    for (int i = 0; i < count; ++i)
        rows.append(make(i));
    return rows;
}

} // namespace kiv::ui
