#pragma once

#include "base/FileWriter.h"

#include <QMap>
#include <QSettings>
#include <QVariant>

#include <optional>

namespace kiv {

/// Settings in a file of their own, which is written on another thread. A file that cannot be read
/// is set aside, and what can still be understood of it is taken over; what the disk does not take
/// stays here and is told.
class SettingsFile : public QSettings {
    Q_OBJECT
public:
    explicit SettingsFile(const QString &path);
    /// Writes what is not written.
    ~SettingsFile() override;

    /// Where a damaged file has gone; empty when there was none.
    const QString &setAside() const { return m_setAside; }
    /// Why the disk does not take the settings; empty when it does.
    const QString &failure() const { return m_failure; }
    /// Begins to write what is not written. What is being written and fails is tried once more.
    void save();
    /// Writes it before this returns; false when the disk does not take it.
    bool finish();

Q_SIGNALS:
    void failureChanged();

protected:
    bool event(QEvent *event) override;

private:
    using Values = QMap<QString, QVariant>;

    /// Takes over what the file holds.
    void load();
    Values values() const;
    void settle(const QString &failure);

    QString m_path;
    QString m_setAside;
    QString m_failure;
    std::optional<Values> m_written; ///< what the file holds, as far as is known
    bool m_isAskedAgain = false;     ///< for what is written, or is being written
    FileWriter m_writer;
};

} // namespace kiv
