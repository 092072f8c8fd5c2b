#pragma once

#include "StoreFixture.h"

#include "store/FileTypes.h"

#include <QAbstractItemModelTester>

namespace kiv::test {

using namespace Qt::StringLiterals;

inline const QString kivUpload = u"POST "_s + kivChat + u"/files"_s;
inline const QByteArray planReply =
    R"({"files":[{"ok":true,"name":"plan.pdf","size":4,"mime":"application/pdf",
        "key":"k1","url":"https://files.example/k1","kind":"file"}]})";

/// Keeps what it was asked, until the test chooses.
class TestChooser : public store::FileChooser {
public:
    void choose(const QString &title, const QStringList &extensions, Chosen chosen) override {
        titles.append(title);
        offered = extensions;
        m_chosen = std::move(chosen);
    }
    void answer(const QList<QUrl> &files) { std::exchange(m_chosen, {})(files); }

    QStringList titles;
    QStringList offered;

private:
    Chosen m_chosen;
};

/// A store with files on the disk to attach.
class AttachmentFixture : public StoreFixture {
public:
    AttachmentFixture() {
        backend.answer(kivUpload, planReply);
        store->attachments()->setChooser(&chooser);
    }

    store::AttachmentRoom &room() { return *store->attachments(); }
    store::AttachmentModel &files() { return *room().chatFiles(); }
    QString note() { return store->chat()->chatNote(); }
    QUrl file(const QString &name, const QByteArray &content = "text") {
        QFile made(folder.filePath(name));
        if (!made.open(QIODevice::WriteOnly) || made.write(content) != content.size())
            qFatal("A file cannot be made");
        return QUrl::fromLocalFile(made.fileName());
    }
    /// Answers an upload of `count` files that are named by their place.
    void takeFiles(int count) {
        QByteArrayList taken;
        for (int i = 0; i < count; ++i)
            taken.append(R"({"ok":true,"key":"k)" + QByteArray::number(i) + "\"}");
        backend.answer(kivUpload, R"({"files":[)" + taken.join(',') + "]}");
    }
    bool attach(int count) {
        takeFiles(count);
        QList<QUrl> urls;
        for (int i = 0; i < count; ++i)
            urls.append(file(u"f%1.txt"_s.arg(i)));
        room().uploadChatFiles(urls);
        return soon([&] { return !room().chatUploading(); }) && files().attached() >= count;
    }
    QVariant cell(int row, store::AttachmentModel::Role role) {
        return files().index(row).data(role);
    }
    store::Upload uploadOf(int row) {
        return cell(row, store::AttachmentModel::UploadRole).value<store::Upload>();
    }
    QString idOf(int row) { return cell(row, store::AttachmentModel::FileIdRole).toString(); }
    QStringList names() {
        QStringList list;
        for (const store::ChatAttachment &attachment : files().attachments())
            list.append(attachment.name);
        return list;
    }

    TestChooser chooser;
    QAbstractItemModelTester tester{store->attachments()->chatFiles(),
                                    QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace kiv::test
