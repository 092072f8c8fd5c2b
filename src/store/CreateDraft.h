#pragma once

#include "store/CreateCatalogue.h"

namespace kiv::store {

/// What somebody has filled in for a new project or agent.
struct CreateDraft {
    static constexpr qsizetype nameLimit = 80;
    static constexpr qsizetype roleLimit = 80;
    static constexpr qsizetype briefLimit = 4000;

    QString templateId;
    QString name;
    QString text; ///< the brief of a project, the role of an agent
    QList<QString> tools;
    QString autonomy;

    /// Takes over what `source` proposes, except where the person has changed `filled`, which is
    /// what the template before has proposed.
    void fill(const CreateTemplate &source, const CreateDraft &filled);

    /// Tools and level as the lines that the backend keeps in an agent's description.
    QString description(const CreateCatalogue &catalogue) const;

    friend bool operator==(const CreateDraft &, const CreateDraft &) = default;
};

/// What a template proposes, unchanged.
CreateDraft draftOf(const CreateTemplate &source);

} // namespace kiv::store
