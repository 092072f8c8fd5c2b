#pragma once

#include <QQuickItem>

#include <functional>

namespace kiv::driver {

/// The first visible item of `root` and what is in it that matches; null when there is none. An
/// item comes before what is in it, and an invisible one hides what is in it.
QQuickItem *findItem(QQuickItem *root, const std::function<bool(const QQuickItem &)> &matches);
/// The same by its object name.
QQuickItem *findItem(QQuickItem *root, const QString &objectName);

} // namespace kiv::driver
