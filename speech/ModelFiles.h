#pragma once

#include <QString>

#include <stdexcept>

namespace kiv::speech {

/// Files that recognition needs are missing or damaged; `what()` names the first of them.
class ModelError : public std::runtime_error {
public:
    /// The number of the fault, which is also what the program says of it.
    enum Kind { Damaged = 1, Unusable = 2, Missing = 3 };
    ModelError(Kind kind, const QString &text) : runtime_error(text.toStdString()), m_kind(kind) {}
    Kind kind() const { return m_kind; }

private:
    Kind m_kind;
};

/// The files of one model in a folder, each model known by its SHA-256.
class ModelFiles {
public:
    /// Throws ModelError unless all of them are there and what they should be: the recogniser ends
    /// the process when it is given a damaged model.
    ModelFiles(const QString &folder, const QString &model);

    QString library() const { return place(QStringLiteral("libsherpa-onnx-c-api.so")); }
    QString encoder() const { return place(m_model + QStringLiteral("/encoder.onnx")); }
    QString decoder() const { return place(m_model + QStringLiteral("/decoder.onnx")); }
    QString tokens() const { return place(QStringLiteral("tokens.txt")); }
    QString voice() const { return place(QStringLiteral("voice.onnx")); }

private:
    QString place(const QString &name) const { return m_folder + u'/' + name; }

    QString m_folder;
    QString m_model;
};

} // namespace kiv::speech
