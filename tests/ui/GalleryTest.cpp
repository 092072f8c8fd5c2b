#include "ui/GalleryTest.h"

#include <QTest>

namespace kiv::ui {

using namespace Qt::StringLiterals;

void GalleryTest::init() {
    QTest::failOnWarning(QRegularExpression(u"qrc:|QML|ambiguous"_s));
    m_workspace = std::make_unique<Workspace>();
    m_gallery = std::make_unique<Gallery>();
    prepare();
}

void GalleryTest::cleanup() {
    m_gallery.reset();
    m_workspace.reset();
}

void GalleryTest::open(const QSize &size) {
    QVERIFY(m_workspace->signIn());
    m_gallery->open(*m_workspace->store, size);
}

QStringList GalleryTest::sent() const {
    QStringList texts;
    for (const auto &request : m_workspace->backend.requests(test::kivPost))
        texts.append(request.body.value(u"text"_s).toString());
    return texts;
}

} // namespace kiv::ui
