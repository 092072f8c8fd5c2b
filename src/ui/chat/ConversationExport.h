#pragma once

#include "store/AppStore.h"
#include "ui/files/FileSaver.h"

#include <QObject>
#include <QPointer>

namespace kiv::ui {

/// Takes the conversation that is loaded out of the program, as Markdown. A child of the view that
/// shows it; what goes wrong is said below the ask bar.
class ConversationExport : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kiv::store::AppStore *store READ store WRITE setStore REQUIRED)
    Q_PROPERTY(kiv::ui::FileSaver *saver READ saver CONSTANT)
public:
    explicit ConversationExport(QObject *parent = nullptr);

    store::AppStore *store() const { return m_store; }
    void setStore(store::AppStore *store) { m_store = store; }
    FileSaver *saver() { return &m_saver; }

    /// Into a file that the person names.
    Q_INVOKABLE void save();
    Q_INVOKABLE void copy();

Q_SIGNALS:
    /// Both come with words that tell it.
    void copied(const QString &words);
    void saved(const QString &words, const QUrl &folder);

private:
    QString text() const;

    QPointer<store::AppStore> m_store;
    FileSaver m_saver{this};
};

} // namespace kiv::ui
