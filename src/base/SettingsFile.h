#pragma once

#include <QSettings>

namespace kiv {

/// Settings in a file of their own. A file that cannot be read is set aside, and what can still be
/// understood of it is taken over; what the disk does not take stays here and is told.
class SettingsFile : public QSettings {
    Q_OBJECT
public:
    explicit SettingsFile(const QString &path);

    /// Where a damaged file has gone; empty when there was none.
    const QString &setAside() const { return m_setAside; }
    /// Why the disk does not take the settings; empty when it does.
    const QString &failure() const { return m_failure; }
    /// Writes at once what is not written.
    void save();

Q_SIGNALS:
    void failureChanged();

protected:
    bool event(QEvent *event) override;

private:
    struct Rescue {
        QString setAside;
        QMap<QString, QVariant> values;
    };
    SettingsFile(const QString &path, const Rescue &rescue);
    static Rescue rescue(const QString &path);
    QString whyUnwritten() const;

    QString m_setAside;
    QString m_failure;
};

} // namespace kiv
