#pragma once

#include "Http.h"

#include <QStringList>

namespace kiv::sandbox {

/// A page of the platform, put together from top to bottom. Every text is escaped. It follows the
/// reader's light or dark theme and fetches nothing.
class HtmlPage {
public:
    struct Link {
        QString text;
        QString path;
        bool isHere = false;
    };
    struct Figure {
        QString label;
        QString value;
    };
    struct Column {
        QString name;
        bool isFigure = false;
    };

    explicit HtmlPage(const QString &heading);

    HtmlPage &line(const QString &text);
    HtmlPage &section(const QString &heading);
    HtmlPage &links(const QList<Link> &links);
    HtmlPage &figures(const QList<Figure> &figures);
    HtmlPage &list(const QStringList &points);
    /// Without rows it says so.
    HtmlPage &table(const QList<Column> &columns, const QList<QStringList> &rows);

    Reply reply(int status = 200) const;

private:
    QString m_title;
    QString m_body;
};

} // namespace kiv::sandbox
