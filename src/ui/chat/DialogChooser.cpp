#include "ui/chat/DialogChooser.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

namespace kiv::ui {

using namespace Qt::StringLiterals;

void DialogChooser::choose(const QString &title, const QStringList &extensions, Chosen chosen) {
    m_chosen = std::move(chosen);
    if (!m_dialog && !make()) {
        finish({});
        return;
    }
    QStringList patterns;
    for (const QString &extension : extensions)
        patterns << u"*."_s + extension << u"*."_s + extension.toUpper();
    m_dialog->setProperty("title", title);
    m_dialog->setProperty("nameFilters", QStringList{tr("Files (%1)").arg(patterns.join(u' '))});
    QMetaObject::invokeMethod(m_dialog, "open");
}

bool DialogChooser::make() {
    const QQmlContext *context = m_window ? qmlContext(m_window) : nullptr;
    if (!context)
        return false;
    QQmlComponent component(context->engine(), QUrl(u"qrc:/qt/qml/Kiv/Chat/AttachDialog.qml"_s));
    m_dialog = component.createWithInitialProperties(
        {{u"parentWindow"_s, QVariant::fromValue<QWindow *>(m_window)}});
    if (!m_dialog) {
        qWarning("%s", qPrintable(component.errorString()));
        return false;
    }
    m_dialog->setParent(m_window);
    connect(m_dialog, SIGNAL(accepted()), this, SLOT(accept()));
    connect(m_dialog, SIGNAL(rejected()), this, SLOT(reject()));
    return true;
}

void DialogChooser::accept() {
    finish(m_dialog->property("selectedFiles").value<QList<QUrl>>());
}

void DialogChooser::reject() {
    finish({});
}

void DialogChooser::finish(const QList<QUrl> &files) {
    if (const Chosen chosen = std::exchange(m_chosen, {}))
        chosen(files);
}

} // namespace kiv::ui
