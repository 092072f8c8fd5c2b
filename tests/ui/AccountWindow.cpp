#include "ui/AccountWindow.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

void AccountWindow::prepare() {
    m_workspace->answerAccount();
    m_workspace->backend.answer(profilePatch, "{}");
}

void AccountWindow::open(const QString &tab, QSize size) {
    GalleryTest::open(size);
    layout().openAccount(tab);
    QTRY_COMPARE(m_workspace->store->account()->profileLoad(), store::LoadState::Ready);
    QTRY_COMPARE(m_workspace->store->account()->budgetLoad(), store::LoadState::Ready);
    m_gallery->item(tab + u"Page"_s);
}

QJsonObject AccountWindow::patched() const {
    const auto requests = m_workspace->backend.requests(profilePatch);
    return requests.isEmpty() ? QJsonObject() : requests.last().body;
}

void AccountWindow::click(const QString &item) {
    QTest::qWait(20);
    m_gallery->click(item);
}

} // namespace kiv::ui
