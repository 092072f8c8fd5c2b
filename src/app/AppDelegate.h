#pragma once

#include "ui/shell/Commands.h"

#include <functional>

class QWindow;

namespace kiv::store {
class AppStore;
enum class AuthSheetMode;
} // namespace kiv::store

namespace kiv::app {

/// Carries out the commands of the main menu on the store and on the window.
class AppDelegate : public ui::Commands {
    Q_OBJECT
public:
    /// The store outlives the delegate.
    explicit AppDelegate(store::AppStore &store);

    void setWindow(QWindow *window) { m_window = window; }
    /// Who knows what is asked for by "Copy diagnostics"; nothing is told without.
    void setDiagnostics(std::function<QString()> tell) { m_diagnostics = std::move(tell); }

    QList<ui::MenuDescription> menus() const override;
    void perform(ui::Command command) override;
    QString diagnostics() const override { return m_diagnostics ? m_diagnostics() : QString(); }

private:
    void toggleCall();
    void hangUpForGood();
    void showSheet(store::AuthSheetMode mode);
    void toWindow(ui::Command command);

    store::AppStore &m_store;
    QWindow *m_window = nullptr;
    std::function<QString()> m_diagnostics;
};

} // namespace kiv::app
